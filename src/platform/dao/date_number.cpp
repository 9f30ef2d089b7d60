#include "platform/dao/date_number.h"

#include <cmath>

#include "platform/dao/date_serial.h"

namespace {

constexpr int MillisecondsPerDay = 24 * 60 * 60 * 1000;

QDate dayZero() {
    return QDate(1899, 12, 30);
}

} // namespace

double dateNumber(const QDateTime &moment) {
    const double time = moment.time().msecsSinceStartOfDay();
    return static_cast<double>(dayZero().daysTo(moment.date())) + time / MillisecondsPerDay;
}

QDateTime dateOfNumber(double days) {
    const double milliseconds = std::round(days * MillisecondsPerDay);
    const double day = std::floor(milliseconds / MillisecondsPerDay);
    const int time = static_cast<int>(milliseconds - day * MillisecondsPerDay);
    return calendarMoment(dayZero().addDays(static_cast<qint64>(day)), QTime::fromMSecsSinceStartOfDay(time));
}

std::optional<double> dateNumberOfLiteral(const QString &text) {
    const QStringList parts = text.simplified().split(' ');
    if (parts.size() > 2) return std::nullopt;
    QDate date = QDate::fromString(parts[0], "yyyy-M-d");
    if (!date.isValid()) date = QDate::fromString(parts[0], "M/d/yyyy");
    QTime time(0, 0);
    if (parts.size() == 2) {
        time = QTime::fromString(parts[1], "H:m:s");
        if (!time.isValid()) time = QTime::fromString(parts[1], "H:m");
    }
    if (!date.isValid() || !time.isValid()) return std::nullopt;
    return dateNumber(QDateTime(date, time));
}
