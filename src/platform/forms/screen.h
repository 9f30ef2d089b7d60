// The screen that the program stands on.
#pragma once

#include <QRect>

class QWidget;

namespace Screen {
/// In twips.
int Width();
int Height();
int TwipsPerPixelX();
/// What the desktop's panels leave free of the screen that the window is on, in pixels. Where the desktop
/// keeps them to itself, room for one is left.
QRect freeArea(const QWidget &window);
/// Makes a window smaller and moves it until it lies in the free area with its frame, as far as its smallest
/// size lets it. A maximised one is the desktop's.
void fit(QWidget &window);
/// In pixels; an empty size takes the system's screen again. Without a free area of its own all of it is
/// free.
void setSizeForTest(const QSize &pixels, const QRect &freeArea = {});
} // namespace Screen
