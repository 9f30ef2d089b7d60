// What a graph is drawn from: its series, and the arrays that a table's rows give.
#pragma once

#include <QStringList>
#include <QVariant>
#include <QVector>

#include "platform/runtime/x_array_db.h"

class Recordset;
class SourceArray;

/// `bDecimalPoint` is that of ValueText.
namespace ChartTables {

struct SeriesTable {
    /// One a series; all of them empty where the graph has no legend.
    QStringList legends;
    QString yAxisTitle;
    bool ShowLegend = false;
};

/// `aThickness` holds the upper limits of the bands in mm, the first at index 1, and no element for a table
/// without bands; with bands the key does not count. No series for a key that has no graph over temperature.
SeriesTable seriesOf(const QString &key, const QVector<qint16> &aThickness);

/// Rows from 1; pairs of columns from 0, temperature and value of one series each. A text without a number,
/// and a temperature that is Null, leaves the point out. `temperatures` has an element for each row of
/// `source`.
XArrayDB temperatureChart(const SourceArray &source, const QVector<QVariant> &temperatures,
                          bool bDecimalPoint);

/// X and Y in columns 0 and 1 of rows 1 to `count`. `cells` holds the cells of the X column and then, unless
/// it is the same, those of the Y column; without cells, and where they run out, the points are empty.
XArrayDB columnPair(Recordset &cells, int count, bool sameColumn, bool bDecimalPoint);

} // namespace ChartTables
