#include "platform/forms/announcement.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QApplication>
#include <QTableView>
#include <QTimer>

namespace {

void tellFocus() {
    QWidget *focused = QApplication::focusWidget();
    QAccessibleInterface *place = QAccessible::queryAccessibleInterface(focused);
    if (place == nullptr) return;
    const auto *view = qobject_cast<QTableView *>(focused);
    if (view != nullptr && view->currentIndex().isValid())
        place = place->tableInterface()->cellAt(view->currentIndex().row(), view->currentIndex().column());
    QAccessibleEvent event(place, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

} // namespace

void tellFocusLater(QWidget &place) {
    if (QAccessible::isActive()) QMetaObject::invokeMethod(&place, tellFocus, Qt::QueuedConnection);
}

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)

void announce(QWidget &place, const QString &text) {
    if (text.isEmpty() || !QAccessible::isActive()) return;
    QAccessibleAnnouncementEvent event(&place, text);
    QAccessible::updateAccessibility(&event);
}

#else

namespace {

/// Readers ask for the text after they have heard of it, and maybe not at once.
constexpr int TimeToAsk = 10'000; // milliseconds

/// The library does not know announcements yet. A notification that shows, beside the widgets, is said as
/// well.
class Notification : public QAccessibleObject {
public:
    Notification(QObject *own, QWidget &window, const QString &text)
        : QAccessibleObject(own)
        , m_window(window)
        , m_text(text) {}

    QAccessibleInterface *parent() const override { return QAccessible::queryAccessibleInterface(&m_window); }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? m_text : QString();
    }
    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override { return {}; }

private:
    QWidget &m_window;
    QString m_text;
};

} // namespace

void announce(QWidget &place, const QString &text) {
    if (text.isEmpty() || !QAccessible::isActive()) return;
    auto *own = new QObject(place.window());
    QTimer::singleShot(TimeToAsk, own, &QObject::deleteLater);
    auto *notification = new Notification(own, *place.window(), text);
    QAccessible::registerAccessibleInterface(notification);
    QAccessibleEvent shown(notification, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
}

#endif
