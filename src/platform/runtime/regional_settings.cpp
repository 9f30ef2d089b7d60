#include "platform/runtime/regional_settings.h"

#include <optional>

#include <QDateTime>
#include <QLocale>
#include <QRegularExpression>

namespace {

std::optional<RegionalSettings> &held() {
    static std::optional<RegionalSettings> settings;
    return settings;
}

QChar firstOf(const QString &text) {
    return text.isEmpty() ? QChar() : text.front();
}

// A date of '68 or of 2068? Its reader needs the century, whatever the locale prefers.
QString withCentury(QString format) {
    if (!format.contains(QLatin1String("yyyy"))) format.replace(QLatin1String("yy"), QLatin1String("yyyy"));
    return format;
}

QString withoutZone(QString format) {
    static const QRegularExpression zone(QStringLiteral("^t+\\s+|\\s*[(\\[]?t+[)\\]]?\\s*$"));
    return format.remove(zone);
}

} // namespace

const RegionalSettings &RegionalSettings::current() {
    if (!held()) held() = fromSystem();
    return *held();
}

void RegionalSettings::setCurrent(const RegionalSettings &settings) {
    held() = settings;
}

RegionalSettings RegionalSettings::fromSystem() {
    RegionalSettings settings;
    const QLocale locale = QLocale::system();
    if (locale.language() == QLocale::C) return settings;
    settings.decimalSign = firstOf(locale.decimalPoint());
    settings.groupSign = firstOf(locale.groupSeparator());
    settings.shortDateFormat = withCentury(locale.dateFormat(QLocale::ShortFormat));
    settings.timeFormat = withoutZone(locale.timeFormat(QLocale::LongFormat));
    return settings;
}

QString RegionalSettings::dateText(const QDateTime &moment) const {
    const QString date = moment.toString(shortDateFormat);
    if (moment.time() == QTime(0, 0)) return date;
    return date + QLatin1Char(' ') + moment.toString(timeFormat);
}
