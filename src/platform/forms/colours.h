// Colour numbers: blue, green, red from the high byte down; or a system colour, marked by the sign bit.
#pragma once

#include <QColor>
#include <QPalette>

class QWidget;

inline constexpr int vbWhite = 0xFFFFFF;
inline constexpr int vbWindowBackground = static_cast<int>(0x80000005u);
inline constexpr int vbApplicationWorkspace = static_cast<int>(0x8000000Cu);
inline constexpr int vbButtonFace = static_cast<int>(0x8000000Fu);
/// -2147483624
inline constexpr int vbInfoBackground = static_cast<int>(0x80000018u);

/// A system colour is looked up in the application's palette.
QColor toQColor(int colour);
/// What can be read on `colour`: the system's partner of a system colour, else black or white.
QColor textColourOn(int colour);

/// Fills the widget with `colour` and writes on it in what can be read there.
void setBackColor(QWidget *widget, int colour);
