// Dates as the rows in memory and the statements count them: days since 1899-12-30, the time of day as the
// fraction.
#pragma once

#include <optional>

#include <QDateTime>

/// Unlike the serials in a file this counts forward everywhere, so that it sorts.
double dateNumber(const QDateTime &moment);
/// To the nearest millisecond, local time.
QDateTime dateOfNumber(double days);
/// The inside of a date literal: "2017-09-30", "9/30/2017" (the month first, wherever the program runs), and
/// after either a blank and "13:45" or "13:45:59". Nothing if it is no date.
std::optional<double> dateNumberOfLiteral(const QString &text);
