// How the material windows stand in the main window.
#pragma once

#include <functional>

class Form;

/// All sizes in twips.
namespace WindowArrangement {

/// Each window 300 lower than the one before, centred, and in front of it. `placed` is called for each.
void cascade(int mainWidth, const std::function<void(Form &)> &placed);

/// Two rows, centred for windows 11280 wide; `materials` is the number of selected materials. The first
/// window ends in front.
void tileHorizontal(int mainWidth, int materials, const std::function<void(Form &)> &placed);

} // namespace WindowArrangement
