#include "platform/forms/placement.h"

#include <QWidget>

#include "platform/runtime/twips.h"

QWidget *nameWidget(QWidget *widget, const QString &name, const QString &accessibleName) {
    widget->setObjectName(name);
    if (!accessibleName.isEmpty()) widget->setAccessibleName(accessibleName);
    return widget;
}

QString elementName(const QString &array, int index) {
    return QStringLiteral("%1(%2)").arg(array).arg(index);
}

void place(QWidget *widget, int left, int top, int width, int height) {
    widget->setGeometry(toPixels(left), toPixels(top), toPixels(width), toPixels(height));
}

void place(QWidget *widget, const QRect &twips) {
    place(widget, twips.left(), twips.top(), twips.width(), twips.height());
}

void moveTo(QWidget *widget, int left, int top) {
    widget->move(toPixels(left), toPixels(top));
}

void resizeTo(QWidget *widget, int width, int height) {
    widget->resize(toPixels(width), toPixels(height));
}

QRect placeOf(const QWidget *widget) {
    return {toTwips(widget->x()), toTwips(widget->y()), toTwips(widget->width()), toTwips(widget->height())};
}
