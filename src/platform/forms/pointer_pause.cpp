#include "platform/forms/pointer_pause.h"

#include <QGuiApplication>

PointerPause::PointerPause() {
    while (const QCursor *pointer = QGuiApplication::overrideCursor()) {
        m_pointers.prepend(*pointer);
        QGuiApplication::restoreOverrideCursor();
    }
}

PointerPause::~PointerPause() {
    for (const QCursor &pointer : m_pointers)
        QGuiApplication::setOverrideCursor(pointer);
}
