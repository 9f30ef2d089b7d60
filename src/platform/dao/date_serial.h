// Dates as the files store them.
#pragma once

#include <optional>

#include <QDateTime>

/// Days since 1899-12-30; the part of a day counts forward also before that day. Nothing for what is no day
/// of the years 100 to 9999.
/// Whether a moment has this number.
bool isDateSerial(double serial);
std::optional<QDateTime> fromDateSerial(double serial);

/// A moment of the calendar. It is local time, except where the clocks jump over it.
QDateTime calendarMoment(const QDate &date, const QTime &time);
