// Names and places of controls.
#pragma once

#include <QRect>
#include <QString>

class QWidget;

/// Gives a control its name, which is its objectName, and what a screen reader says of it. Returns the
/// control.
QWidget *nameWidget(QWidget *widget, const QString &name, const QString &accessibleName);

template <class W>
W *named(W *widget, const QString &name, const QString &accessibleName = {}) {
    nameWidget(widget, name, accessibleName);
    return widget;
}

/// "txtSearch(1)".
QString elementName(const QString &array, int index);

/// In twips inside the parent.
void place(QWidget *widget, int left, int top, int width, int height);
void place(QWidget *widget, const QRect &twips);
void moveTo(QWidget *widget, int left, int top);
void resizeTo(QWidget *widget, int width, int height);
/// Left, top, width and height in twips.
QRect placeOf(const QWidget *widget);
