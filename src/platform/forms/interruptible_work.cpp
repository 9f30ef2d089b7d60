#include "platform/forms/interruptible_work.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QWindow>

namespace {

constexpr int BetweenPaintings = 40; // ms

} // namespace

InterruptibleWork::InterruptibleWork(QWidget &window, QAbstractButton &stop)
    : m_window(window)
    , m_stop(stop) {
    connect(&stop, &QAbstractButton::clicked, this, [this] { m_stopped = true; });
    QApplication::instance()->installEventFilter(this);
}

InterruptibleWork::~InterruptibleWork() {
    QApplication::instance()->removeEventFilter(this);
    for (auto &[receiver, event] : m_kept)
        if (receiver) QCoreApplication::postEvent(receiver, event.release());
    if (m_closing) QMetaObject::invokeMethod(&m_window, &QWidget::close, Qt::QueuedConnection);
}

bool InterruptibleWork::goOn() {
    if (m_sincePaint.isValid() && m_sincePaint.elapsed() < BetweenPaintings) return !m_stopped;
    QCoreApplication::processEvents();
    m_sincePaint.restart();
    return !m_stopped;
}

bool InterruptibleWork::eventFilter(QObject *receiver, QEvent *event) {
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        return keyHeld(receiver, event);
    case QEvent::ShortcutOverride:
        event->accept(); // so that it comes as a key, and can be kept
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
        // A desktop's window hands it on to the control.
        return receiver != &m_stop && !receiver->isWindowType();
    case QEvent::Shortcut:
    case QEvent::ContextMenu:
    case QEvent::InputMethod:
    case QEvent::DragEnter:
    case QEvent::Drop:
        return true;
    case QEvent::Close:
        return closeHeld(receiver, event);
    case QEvent::WindowActivate:
        if (!receiver->isWidgetType() || isOfWindow(receiver)) return false;
        keep(receiver, *event);
        return true;
    default:
        return false;
    }
}

bool InterruptibleWork::isOfWindow(const QObject *receiver) const {
    if (receiver == m_window.windowHandle()) return true;
    for (const QObject *object = receiver; object != nullptr; object = object->parent())
        if (object == &m_window) return true;
    return false;
}

bool InterruptibleWork::keyHeld(QObject *receiver, QEvent *event) {
    const auto &key = static_cast<const QKeyEvent &>(*event);
    if (key.key() == Qt::Key_Escape) {
        m_stopped = true;
        return true;
    }
    const bool presses = key.key() == Qt::Key_Space || key.key() == Qt::Key_Return;
    const bool toTheButton = m_stop.hasFocus() && presses && isOfWindow(receiver);
    if (!toTheButton && isOfWindow(receiver)) {
        // To the control that has the focus now: a click may take it elsewhere meanwhile.
        QWidget *focused = receiver->isWindowType() ? QApplication::focusWidget() : nullptr;
        keep(focused != nullptr ? focused : receiver, *event);
    }
    return !toTheButton;
}

bool InterruptibleWork::closeHeld(QObject *receiver, QEvent *event) {
    if (isOfWindow(receiver)) m_stopped = m_closing = true;
    event->ignore();
    return true;
}

void InterruptibleWork::keep(QObject *receiver, const QEvent &event) {
    m_kept.emplace_back(receiver, std::unique_ptr<QEvent>(event.clone()));
}
