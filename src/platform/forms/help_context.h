// F1 in a modal window, which the menu of the main window cannot hear.
#pragma once

#include <functional>

#include <QString>

class QKeyEvent;
class QWidget;

namespace HelpContext {

/// The topic of that window, and of each modal window above it that has none of its own. Of a child window it
/// holds while the child is in front.
void set(QWidget &window, const QString &topic);
/// Empty where none is set.
QString of(const QWidget &widget);

/// What shows a topic. Without one F1 does nothing.
void setViewer(std::function<void(const QString &topic)> viewer);

/// True when the key was F1 in a modal window and its topic was asked for.
bool pressed(const QWidget &widget, const QKeyEvent &event);

} // namespace HelpContext
