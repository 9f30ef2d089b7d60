// How the system writes numbers and dates.
#pragma once

#include <QChar>
#include <QString>

class QDateTime;

/// Read once from the system's locale; a test puts its own in place.
struct RegionalSettings {
    QChar decimalSign = QLatin1Char('.');
    /// A null QChar where digits are not grouped.
    QChar groupSign = QLatin1Char(',');
    /// In QDateTime's notation, such as "dd.MM.yyyy".
    QString shortDateFormat = QStringLiteral("yyyy-MM-dd");
    QString timeFormat = QStringLiteral("HH:mm:ss");

    static const RegionalSettings &current();
    static void setCurrent(const RegionalSettings &settings);
    static RegionalSettings fromSystem();

    /// A date alone when its time is midnight, else date, blank, time.
    QString dateText(const QDateTime &moment) const;
};
