// The pointer during a work that a person waits for.
#pragma once

#include <QGuiApplication>

/// While it lives the mouse pointer is the hourglass, over all windows.
class BusyPointer {
public:
    BusyPointer() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~BusyPointer() { QGuiApplication::restoreOverrideCursor(); }
    BusyPointer(const BusyPointer &) = delete;
    BusyPointer &operator=(const BusyPointer &) = delete;
};
