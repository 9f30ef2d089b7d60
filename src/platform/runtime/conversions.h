// Text to number and back as the classic Basic run-time does it under the current regional settings.
#pragma once

#include <QString>
#include <QVariant>

/// A cell without a value: Null.
inline bool IsNull(const QVariant &value) {
    return !value.isValid();
}

/// Single with 7 significant digits, double with 15, Boolean as "True" or "False", date in the short form.
/// Raises 94 for Null.
QString CStr(const QVariant &value);

/// A number, or a text that is one: blanks around it and group signs anywhere in it are passed over. Raises
/// 13 for what is no number, 94 for Null, 6 beyond the type's range.
double CDbl(const QVariant &value);
float CSng(const QVariant &value);
/// Rounds half to even. Raises 6 outside -32768 to 32767.
qint16 CInt(const QVariant &value);
/// Rounds half to even. Raises 6 outside 32 bits.
qint32 CLng(const QVariant &value);
/// "True" and "False" in any capitals, or a number (0 is False). Raises 13 for any other text.
bool CBool(const QVariant &value);

/// The patterns in use: "##0.00", "###0.00" and their like ("0" a digit that stands, "#" one that may, "."
/// the decimal sign). A text that is a number is read by CDbl's rules, any other text comes back as it is.
/// Rounds half away from zero on the decimal text.
QString Format(const QVariant &value, const QString &pattern);
