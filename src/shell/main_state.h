// What menus and tool bar show together, each in one place: whether materials are open, how they are
// arranged.
#pragma once

class mdiVelmar;

namespace MainState {

/// The commands that mean a material: buttons, the View menu, saving and printing, the tool bar's entry.
void showMaterialsOpen(mdiVelmar &window, bool open);

/// Places the material windows, and lets menu, tool bar and both members of the arrangement tell it.
void arrange(mdiVelmar &window, bool tile);
/// The Window menu and iArrangement alone: what the settings say before there is a window to place.
void markArrangement(mdiVelmar &window, bool tile);

} // namespace MainState
