// What a screen reader takes the platform's own windows and controls for.
#pragma once

#include <QAccessible>

class QWidget;

namespace AccessibleRoles {

/// The library knows nothing of a widget's class but its own, and takes every frame for the frame of a
/// window.
void install();

/// For a widget that the library has no role for, before it has a name: that asks what it is.
void set(QWidget &widget, QAccessible::Role role);

} // namespace AccessibleRoles
