#include "platform/forms/help_context.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>
#include <QWindow>

#include "platform/forms/form.h"
#include "platform/forms/mdi_form.h"

namespace HelpContext {

namespace {

const char *const Property = "helpTopic";

std::function<void(const QString &)> theViewer;

/// The window that a form without a parent stands above.
const QWidget *windowBelow(const QWidget &window) {
    const QWindow *own = window.windowHandle();
    if (own == nullptr || own->transientParent() == nullptr) return nullptr;
    for (const QWidget *other : QApplication::topLevelWidgets())
        if (other->windowHandle() == own->transientParent()) return other;
    return nullptr;
}

} // namespace

void set(QWidget &window, const QString &topic) {
    window.setProperty(Property, topic);
}

QString of(const QWidget &widget) {
    for (const QWidget *at = &widget; at != nullptr;) {
        const QWidget *bearer = at;
        if (const auto *main = qobject_cast<const MDIForm *>(at); main != nullptr && main->activeChild())
            bearer = main->activeChild();
        const QString topic = bearer->property(Property).toString();
        if (!topic.isEmpty()) return topic;
        at = at->parentWidget() != nullptr ? at->parentWidget() : windowBelow(*at);
    }
    return {};
}

void setViewer(std::function<void(const QString &)> viewer) {
    theViewer = std::move(viewer);
}

bool pressed(const QWidget &widget, const QKeyEvent &event) {
    const Qt::KeyboardModifiers held = event.modifiers() & ~Qt::KeypadModifier;
    if (event.key() != Qt::Key_F1 || held != Qt::NoModifier || !theViewer) return false;
    const QWidget *modal = QApplication::activeModalWidget();
    bool inside = false;
    for (const QWidget *at = &widget; at != nullptr && !inside; at = at->parentWidget())
        inside = at == modal;
    if (modal == nullptr || !inside) return false;
    theViewer(of(widget));
    return true;
}

} // namespace HelpContext
