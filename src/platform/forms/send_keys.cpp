#include "platform/forms/send_keys.h"

#include <QApplication>
#include <QHash>
#include <QKeyEvent>
#include <QWidget>

#include "platform/forms/form.h"
#include "platform/forms/mdi_form.h"
#include "platform/runtime/runtime_error.h"

namespace {

struct Stroke {
    int key = 0;
    QString text;
    Qt::KeyboardModifiers modifiers;
};

int namedKey(const QString &name) {
    static const QHash<QString, int> keys = {
        {"TAB", Qt::Key_Tab},       {"ENTER", Qt::Key_Return}, {"ESC", Qt::Key_Escape},
        {"BS", Qt::Key_Backspace},  {"DEL", Qt::Key_Delete},   {"HOME", Qt::Key_Home},
        {"END", Qt::Key_End},       {"UP", Qt::Key_Up},        {"DOWN", Qt::Key_Down},
        {"LEFT", Qt::Key_Left},     {"RIGHT", Qt::Key_Right},  {"PGUP", Qt::Key_PageUp},
        {"PGDN", Qt::Key_PageDown}, {"F1", Qt::Key_F1},        {"F4", Qt::Key_F4},
        {"F6", Qt::Key_F6}};
    const int key = keys.value(name.toUpper());
    if (key == 0) throw RuntimeError(5);
    return key;
}

QList<Stroke> parse(const QString &keys) {
    QList<Stroke> strokes;
    Qt::KeyboardModifiers held;
    for (qsizetype i = 0; i < keys.size(); ++i) {
        const QChar character = keys[i];
        if (character == QLatin1Char('^')) {
            held |= Qt::ControlModifier;
        } else if (character == QLatin1Char('+')) {
            held |= Qt::ShiftModifier;
        } else if (character == QLatin1Char('%')) {
            held |= Qt::AltModifier;
        } else {
            Stroke stroke{character.toUpper().unicode(), QString(character), held};
            if (character == QLatin1Char('{')) {
                const qsizetype end = keys.indexOf(QLatin1Char('}'), i);
                if (end < 0) throw RuntimeError(5);
                stroke.key = namedKey(keys.mid(i + 1, end - i - 1));
                stroke.text.clear();
                i = end;
            }
            strokes.append(stroke);
            held = {};
        }
    }
    return strokes;
}

/// The control that has the focus; where the desktop gave it to nobody, the child in front.
QWidget *receiver() {
    if (QWidget *focused = QApplication::focusWidget()) return focused;
    if (QWidget *window = QApplication::activeWindow()) return window;
    if (MDIForm::current() == nullptr) return nullptr;
    if (Form *child = MDIForm::current()->activeChild()) return child;
    return MDIForm::current();
}

} // namespace

void SendKeys(const QString &keys) {
    const QList<Stroke> strokes = parse(keys);
    QWidget *target = receiver();
    if (target == nullptr) return;
    for (const Stroke &stroke : strokes)
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease})
            QCoreApplication::postEvent(target,
                                        new QKeyEvent(type, stroke.key, stroke.modifiers, stroke.text));
}
