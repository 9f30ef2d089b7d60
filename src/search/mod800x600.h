// The search window on a small screen.
#pragma once

namespace mod800x600 {

/// Rearranges the controls of the search window so that it fits a screen of 800 by 600 pixels: the criteria
/// one below another at the left, and both lists beside them.
void FitSearchWindow();

} // namespace mod800x600
