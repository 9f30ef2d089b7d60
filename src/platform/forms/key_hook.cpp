#include "platform/forms/key_hook.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QWidget>

#include "platform/forms/key_hooks.h"

void onKeyPress(QWidget *box, std::function<void(int &)> handler) {
    KeyHook::of(box).onPress = std::move(handler);
}

void onKeyDown(QWidget *box, std::function<bool(QKeyEvent &)> handler) {
    KeyHook::of(box).onDown = std::move(handler);
}

KeyHook &KeyHook::of(QWidget *box) {
    if (auto *hook = box->findChild<KeyHook *>(QString(), Qt::FindDirectChildrenOnly)) return *hook;
    auto *hook = new KeyHook(box);
    box->installEventFilter(hook);
    return *hook;
}

bool KeyHook::eventFilter(QObject *watched, QEvent *event) {
    if (m_resending || !watched->isWidgetType()) return false;
    auto &box = *static_cast<QWidget *>(watched);
    if (event->type() == QEvent::KeyPress) return keyPressed(box, *static_cast<QKeyEvent *>(event));
    if (event->type() == QEvent::InputMethod) return committed(box, *static_cast<QInputMethodEvent *>(event));
    return false;
}

namespace {

/// 0 for a key that types nothing.
int typedCharacter(const QKeyEvent &event) {
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return 0;
    switch (event.key()) {
    case Qt::Key_Backspace:
        return vbKeyBack;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return vbKeyReturn;
    case Qt::Key_Escape:
        return vbKeyEscape;
    default:
        break;
    }
    const QString text = event.text();
    return text.size() == 1 && text.front().isPrint() ? text.front().unicode() : 0;
}

} // namespace

bool KeyHook::keyPressed(QWidget &box, QKeyEvent &event) {
    if (onDown && onDown(event)) return true;
    const int typed = typedCharacter(event);
    if (!onPress || typed == 0) return false;
    int wanted = typed;
    onPress(wanted);
    if (wanted == typed) return false;
    if (wanted != 0) {
        QKeyEvent other(QEvent::KeyPress, 0, event.modifiers(), QString(QChar(wanted)), event.isAutoRepeat());
        const QScopedValueRollback resending(m_resending, true);
        QCoreApplication::sendEvent(&box, &other);
    }
    return true;
}

bool KeyHook::committed(QWidget &box, QInputMethodEvent &event) {
    const QString commit = event.commitString();
    if (!onPress || commit.isEmpty()) return false;
    QString passed;
    for (const QChar character : commit) {
        int wanted = character.unicode();
        onPress(wanted);
        if (wanted != 0) passed += QChar(wanted);
    }
    if (passed == commit) return false;
    QInputMethodEvent other(event.preeditString(), event.attributes());
    other.setCommitString(passed, event.replacementStart(), event.replacementLength());
    const QScopedValueRollback resending(m_resending, true);
    QCoreApplication::sendEvent(&box, &other);
    return true;
}
