#include "platform/dao/date_serial.h"

#include <cmath>

#include <QTimeZone>

namespace {
constexpr double FirstDay = -657434; // 100-01-01
constexpr double LastDay = 2958465;  // 9999-12-31
constexpr qint64 MillisecondsOfDay = 86400000;
} // namespace

bool isDateSerial(double serial) {
    return serial > FirstDay - 1 && serial < LastDay + 1;
}

std::optional<QDateTime> fromDateSerial(double serial) {
    if (!isDateSerial(serial)) return {};
    double day = 0;
    const double partOfDay = std::abs(std::modf(serial, &day));
    qint64 milliseconds = std::llround(partOfDay * MillisecondsOfDay);
    if (milliseconds == MillisecondsOfDay) {
        day += 1;
        milliseconds = 0;
    }
    return calendarMoment(QDate(1899, 12, 30).addDays(static_cast<qint64>(day)),
                          QTime::fromMSecsSinceStartOfDay(static_cast<int>(milliseconds)));
}

QDateTime calendarMoment(const QDate &date, const QTime &time) {
    const QDateTime local(date, time);
    return local.isValid() && local.time() == time ? local : QDateTime(date, time, QTimeZone::utc());
}
