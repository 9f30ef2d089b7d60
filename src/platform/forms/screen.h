// The screen that the program stands on.
#pragma once

#include <QSize>

namespace Screen {
/// In twips.
int Width();
int Height();
int TwipsPerPixelX();
/// In pixels; an empty size takes the system's screen again.
void setSizeForTest(const QSize &pixels);
} // namespace Screen
