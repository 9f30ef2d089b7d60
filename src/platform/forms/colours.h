// Colour numbers: blue, green, red from the high byte down; or a system colour, marked by the sign bit.
#pragma once

#include <QColor>
#include <QPalette>

class QWidget;

inline constexpr int vbWhite = 0xFFFFFF;
inline constexpr int vbScrollBars = static_cast<int>(0x80000000u);
inline constexpr int vbWindowBackground = static_cast<int>(0x80000005u);
inline constexpr int vbWindowText = static_cast<int>(0x80000008u);
inline constexpr int vbApplicationWorkspace = static_cast<int>(0x8000000Cu);
inline constexpr int vbHighlight = static_cast<int>(0x8000000Du);
inline constexpr int vbButtonFace = static_cast<int>(0x8000000Fu);
inline constexpr int vbInfoText = static_cast<int>(0x80000017u);
/// -2147483624
inline constexpr int vbInfoBackground = static_cast<int>(0x80000018u);

constexpr int RGB(int red, int green, int blue) {
    return red | green << 8 | blue << 16;
}

/// A system colour is looked up in the application's palette.
QColor toQColor(int colour);
/// Never a system colour.
int toColourNumber(const QColor &colour);
/// What can be read on `colour`: the system's partner of a system colour, else black or white.
QColor textColourOn(int colour);

/// Fills the widget with `colour` and writes on it in what can be read there.
void setBackColor(QWidget *widget, int colour);
