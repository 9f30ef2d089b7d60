#include "platform/forms/accessible_roles.h"

#include <QAccessibleWidget>
#include <QHash>

namespace {

constexpr char RoleProperty[] = "accessibleRole";

/// A form may be a window of its own or fill the frame of a child, which the library tells of.
class AccessibleForm : public QAccessibleWidget {
public:
    explicit AccessibleForm(QWidget *form)
        : QAccessibleWidget(form) {}

    QAccessible::Role role() const override {
        return widget()->isWindow() ? QAccessible::Dialog : QAccessible::Client;
    }
};

QAccessibleInterface *make(const QString &className, QObject *object) {
    if (object == nullptr || !object->isWidgetType()) return nullptr;
    auto *widget = static_cast<QWidget *>(object);
    if (const QVariant own = widget->property(RoleProperty); own.isValid())
        return new QAccessibleWidget(widget, static_cast<QAccessible::Role>(own.toInt()));
    if (className == QLatin1String("Form")) return new AccessibleForm(widget);
    static const QHash<QString, QAccessible::Role> roles{
        {QStringLiteral("QFrame"), QAccessible::Grouping},
        {QStringLiteral("ImageBox"), QAccessible::Graphic},
        {QStringLiteral("MSChart"), QAccessible::Chart},
        {QStringLiteral("ScatterPlot"), QAccessible::Chart},
    };
    const auto role = roles.constFind(className);
    return role == roles.constEnd() ? nullptr : new QAccessibleWidget(widget, *role);
}

} // namespace

void AccessibleRoles::install() {
    QAccessible::installFactory(make);
}

void AccessibleRoles::set(QWidget &widget, QAccessible::Role role) {
    widget.setProperty(RoleProperty, static_cast<int>(role));
}
