#include "design/chart_tables.h"

#include "design/value_text.h"
#include "platform/dao/recordset.h"
#include "platform/runtime/conversions.h"

namespace {

struct KnownSeries {
    const char *key;
    const char *secondField;
    const char *yAxisTitle;
};

constexpr KnownSeries Known[] = {
    {"Rp02", nullptr, "Rp 0,2  [MPa]"},
    {"Rp10", nullptr, "Rp 1,0  [MPa]"},
    {"Rm", nullptr, "Rm  [MPa]"},
    {"ModElast", nullptr, "[kN/mm]"},
    {"ThermExp", "ThermExpDiff", "[E-6/K]"},
    {"ThermCond", nullptr, "[W/m*K]"},
    {"SpecThermCap", "SpecThermCapDiff", "[J/kgK]"},
    {"SpecElecRes", nullptr, "[MPa]"}, // a resistivity, and yet meant so
};

ChartTables::SeriesTable bandSeries(const QVector<qint16> &aThickness) {
    ChartTables::SeriesTable table;
    table.ShowLegend = true;
    for (qsizetype i = 1; i < aThickness.size(); ++i) {
        // Three blanks in the first brackets, where the design values have two: meant so.
        const QString from = i == 1 ? QStringLiteral("   ") : QString::number(aThickness[i - 1]);
        const QString limit = QString::number(aThickness[i]);
        table.series << ChartTables::Series{limit, QStringLiteral("(%1) - %2mm").arg(from, limit)};
    }
    return table;
}

// The pair of a value: what is drawn and what stands in the table.
struct Cell {
    QVariant chart = QString();
    QString text;
};

Cell readCell(const QVariant &value, bool bDecimalPoint) {
    if (IsNull(value)) return {};
    const QString text = CStr(value);
    QString number = ValueText::GetNumberText(text, bDecimalPoint);
    // The chart would read past a point that groups digits, and draw 12.5 as 125 beside a design value of
    // 12,5.
    if (!bDecimalPoint) number.replace(QLatin1Char('.'), QLatin1Char(','));
    return {number, text};
}

} // namespace

ChartTables::SeriesTable ChartTables::seriesOf(const QString &key, const QVector<qint16> &aThickness) {
    if (!aThickness.isEmpty()) return bandSeries(aThickness);
    for (const KnownSeries &known : Known) {
        if (key != QLatin1String(known.key)) continue;
        SeriesTable table;
        table.yAxisTitle = QString::fromLatin1(known.yAxisTitle);
        if (known.secondField == nullptr) {
            table.series << Series{key, {}};
        } else {
            const QString second = QString::fromLatin1(known.secondField);
            table.series << Series{key, key} << Series{second, second};
            table.ShowLegend = true;
        }
        return table;
    }
    return {};
}

ChartTables::TemperatureArrays ChartTables::temperatureArrays(Recordset &rows, const QVector<Series> &series,
                                                              bool bDecimalPoint) {
    const int count = rows.RecordCount();
    const auto seriesCount = static_cast<int>(series.size());
    TemperatureArrays arrays{{}, SourceArray(count, seriesCount)};
    arrays.chart.ReDim(1, count, 0, 2 * seriesCount - 1);
    rows.MoveFirst();
    for (int row = 1; row <= count; ++row, rows.MoveNext()) {
        const QVariant temperature = rows.Fields(QStringLiteral("temp"));
        if (!IsNull(temperature)) arrays.text.setText(row, 0, CStr(temperature));
        for (int i = 1; i <= seriesCount; ++i) {
            const Cell cell = readCell(rows.Fields(series[i - 1].field), bDecimalPoint);
            arrays.chart.Set(row, 2 * i - 2, temperature);
            arrays.chart.Set(row, 2 * i - 1, cell.chart);
            arrays.text.setText(row, i, cell.text);
        }
    }
    return arrays;
}

XArrayDB ChartTables::columnPair(Recordset &cells, int count, bool sameColumn, bool bDecimalPoint) {
    XArrayDB pair;
    pair.ReDim(1, count, 0, 1);
    for (int column : {0, 1}) {
        if (column == 0 || sameColumn) cells.MoveFirst();
        for (int row = 1; row <= count; ++row) {
            Cell cell;
            if (!cells.Eof()) {
                cell = readCell(cells.Fields(QStringLiteral("val")), bDecimalPoint);
                cells.MoveNext();
            }
            pair.Set(row, column, cell.chart);
        }
    }
    return pair;
}
