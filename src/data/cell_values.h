// How a value from the database becomes a text.
#pragma once

#include <QString>
#include <QVariant>

#include "platform/runtime/conversions.h"

/// Null is the empty text.
inline QString cellText(const QVariant &value) {
    return IsNull(value) ? QString() : CStr(value);
}

/// The value as it stands; Null is the empty text.
inline QVariant cellValue(const QVariant &value) {
    return IsNull(value) ? QVariant(QString()) : value;
}

/// What a table, or a text beside it, holds where there is nothing to say.
inline bool isNoValue(const QString &text) {
    return text.isEmpty() || text == QLatin1String("-");
}

inline const QString LineEnd = QStringLiteral("\r\n");
