// What the columns of a table over temperature are: fields, headings, thickness bands, empty impact columns.
#pragma once

#include <QString>
#include <QVector>

class Recordset;

/// A column beside the temperature.
struct TemperatureColumn {
    QString field;
    QString heading;
    QString unit;
    /// The name of the formula that stands for the heading; empty without one.
    QString picture;
};

/// One to three columns. A table with thickness bands has others: see bandHeading.
QVector<TemperatureColumn> temperatureColumns(const QString &key);

/// The distinct values of `thickness` in the order of the rows, each compared with the one before it only.
/// The first band is element 1; element 0 is not used.
QVector<qint16> bandLimits(Recordset &rows);

/// Three lines. `limits` as bandLimits gives them, `band` from 1.
QString bandHeading(const QVector<qint16> &limits, int band);

/// Which of the three impact energy columns hold no value.
struct EmptyImpactColumns {
    bool kv = false;
    bool kvLong = false;
    bool kvTrans = false;

    /// 1 for kv, 2 for kvLong and 4 for kvTrans, each where the column has values.
    qint16 columnsWithValues() const;
};

/// Reads the third to fifth field of each row.
EmptyImpactColumns emptyImpactColumns(Recordset &rows);
