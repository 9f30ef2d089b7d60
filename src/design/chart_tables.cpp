#include "design/chart_tables.h"

#include "data/cell_values.h"
#include "data/source_array.h"
#include "data/table_vocabulary.h"
#include "design/value_text.h"
#include "platform/dao/recordset.h"

namespace {

ChartTables::SeriesTable bandSeries(const QVector<qint16> &aThickness) {
    ChartTables::SeriesTable table;
    table.ShowLegend = true;
    for (qsizetype i = 1; i < aThickness.size(); ++i) {
        // Three blanks in the first brackets, where the design values have two: graphs in design files read
        // so.
        const QString from = i == 1 ? QStringLiteral("   ") : QString::number(aThickness[i - 1]);
        table.legends << QStringLiteral("(%1) - %2mm").arg(from, QString::number(aThickness[i]));
    }
    return table;
}

/// What is drawn of a cell.
QString drawn(const QString &text, bool bDecimalPoint) {
    QString number = ValueText::GetNumberText(text, bDecimalPoint);
    // The chart would read past a point that groups digits, and draw 12.5 as 125 beside a design value of
    // 12,5.
    if (!bDecimalPoint) number.replace(QLatin1Char('.'), QLatin1Char(','));
    return number;
}

} // namespace

ChartTables::SeriesTable ChartTables::seriesOf(const QString &key, const QVector<qint16> &aThickness) {
    if (!aThickness.isEmpty()) return bandSeries(aThickness);
    SeriesTable result;
    const TableVocabulary::Table *table = TableVocabulary::find(key);
    if (!table || !table->yAxisTitle) return result;
    result.yAxisTitle = QString::fromUtf16(table->yAxisTitle);
    result.ShowLegend = table->columns.size() > 1;
    for (const TableVocabulary::Column &column : table->columns)
        result.legends << (result.ShowLegend ? QString::fromUtf16(column.field) : QString());
    return result;
}

XArrayDB ChartTables::temperatureChart(const SourceArray &source, const QVector<QVariant> &temperatures,
                                       bool bDecimalPoint) {
    XArrayDB chart;
    chart.ReDim(1, source.rowCount(), 0, 2 * source.lastColumn() - 1);
    for (int row = 1; row <= source.rowCount(); ++row) {
        for (int i = 1; i <= source.lastColumn(); ++i) {
            chart.Set(row, 2 * i - 2, temperatures[row - 1]);
            chart.Set(row, 2 * i - 1, drawn(source.text(row, i), bDecimalPoint));
        }
    }
    return chart;
}

XArrayDB ChartTables::columnPair(Recordset &cells, int count, bool sameColumn, bool bDecimalPoint) {
    XArrayDB pair;
    pair.ReDim(1, count, 0, 1);
    for (int column : {0, 1}) {
        if (column == 0 || sameColumn) cells.MoveFirst();
        for (int row = 1; row <= count; ++row) {
            QString point = QLatin1String("");
            if (!cells.Eof()) {
                point = drawn(cellText(cells.Fields(QStringLiteral("val"))), bDecimalPoint);
                cells.MoveNext();
            }
            pair.Set(row, column, point);
        }
    }
    return pair;
}
