// What a graph is drawn from: its series, and the arrays that a table's rows give.
#pragma once

#include <QString>
#include <QVector>

#include "design/source_array.h"
#include "platform/runtime/x_array_db.h"

class Recordset;

/// `bDecimalPoint` is that of ValueText.
namespace ChartTables {

struct Series {
    QString field;
    /// Empty where the graph has no legend.
    QString legend;
};

struct SeriesTable {
    QVector<Series> series;
    QString yAxisTitle;
    bool ShowLegend = false;
};

/// `aThickness` holds the upper limits of the bands in mm, the first at index 1, and no element for a table
/// without bands; with bands the key does not count. No series for a key that has no graph over temperature.
SeriesTable seriesOf(const QString &key, const QVector<qint16> &aThickness);

/// One table's rows twice: as drawn and as computed with. Rows count from 1.
struct TemperatureArrays {
    /// Pairs of columns from 0, temperature and value of one series each; Null or a text without a number
    /// leaves the point out.
    XArrayDB chart;
    /// Column 0 the temperature, then a column a series: the cells as they stand.
    SourceArray text;
};

/// Reads all rows from the first. Raises 3265 for a field that they lack.
TemperatureArrays temperatureArrays(Recordset &rows, const QVector<Series> &series, bool bDecimalPoint);

/// X and Y in columns 0 and 1 of rows 1 to `count`. `cells` holds the cells of the X column and then, unless
/// it is the same, those of the Y column; without cells, and where they run out, the points are empty.
XArrayDB columnPair(Recordset &cells, int count, bool sameColumn, bool bDecimalPoint);

} // namespace ChartTables
