// What a graph is drawn from: series and arrays, from rows.
#include <gtest/gtest.h>

#include "data/source_array.h"
#include "design/chart_tables.h"
#include "tests/support/given_rows.h"
#include "tests/support/pinned_settings.h"

namespace {

// "20;235|100;-" : the cells of a row parted by semicolons, Null as "~".
QString written(const XArrayDB &cells) {
    QStringList rows;
    for (int row = 1; row <= cells.UpperBound(1); ++row) {
        QStringList texts;
        for (int column = 0; column <= cells.UpperBound(2); ++column) {
            const QVariant cell = cells.Get(row, column);
            texts << (cell.isValid() ? cell.toString() : QStringLiteral("~"));
        }
        rows << texts.join(QLatin1Char(';'));
    }
    return rows.join(QLatin1Char('|'));
}

TEST(ChartTablesTest, EachTableHasItsSeries) {
    const struct {
        const char *key;
        QVector<qint16> bands;
        const char *expected; // legend of each series, Y title, legend shown
    } cases[] = {
        {"Rp02", {}, "| Rp 0,2  [MPa] 0"},
        {"Rp10", {}, "| Rp 1,0  [MPa] 0"},
        {"Rm", {}, "| Rm  [MPa] 0"},
        {"ModElast", {}, "| [kN/mm] 0"},
        {"ThermCond", {}, "| [W/m*K] 0"},
        {"SpecElecRes", {}, "| [MPa] 0"},
        {"ThermExp", {}, "ThermExp|ThermExpDiff| [E-6/K] 1"},
        {"SpecThermCap", {}, "SpecThermCap|SpecThermCapDiff| [J/kgK] 1"},
        {"Rp02", {0, 16, 40, 100}, "(   ) - 16mm|(16) - 40mm|(40) - 100mm|  1"},
        {"Rm", {0, 60}, "(   ) - 60mm|  1"},
        {"ImpEnergy", {}, "  0"},
    };
    for (const auto &item : cases) {
        const auto table = ChartTables::seriesOf(item.key, item.bands);
        QString text;
        for (const QString &legend : table.legends)
            text += legend + QLatin1Char('|');
        text += QLatin1Char(' ') + table.yAxisTitle + QLatin1Char(' ') + QString::number(table.ShowLegend);
        EXPECT_EQ(text.toStdString(), item.expected);
    }
}

TEST(ChartTablesTest, RowsAreDrawnInPairsByTheirFirstNumber) {
    SourceArray source(7, 1);
    const QStringList texts{"(235,5) a2", "", "200", "none", "a1,5b7", "12.5", "13,5"};
    for (int row = 1; row <= 7; ++row)
        source.setText(row, 1, texts[row - 1]);
    const QVector<QVariant> temperatures{20.5, 100, QVariant(), 200, 250, 300, 350};
    EXPECT_EQ(written(ChartTables::temperatureChart(source, temperatures, false)).toStdString(),
              "20.5;235,5|100;|~;200|200;|250;1,5|300;12,5|350;13,5");

    SourceArray bands(2, 2);
    bands.setText(1, 1, "227");
    bands.setText(1, 2, "219,5");
    bands.setText(2, 2, "198");
    EXPECT_EQ(written(ChartTables::temperatureChart(bands, {50, 100}, true)).toStdString(),
              "50;227;50;219.5|100;;100;198");
}

TEST(ChartTablesTest, TwoColumnsAreDrawnOverEachOther) {
    const PinnedSettings settings(u',', u'.');
    const QStringList names{"val"};
    Recordset both = givenRows(names, {{"400"}, {"450"}, {"118 a)"}, {QVariant()}});
    EXPECT_EQ(written(ChartTables::columnPair(both, 2, false, false)).toStdString(), "400;118|450;");
    EXPECT_EQ(written(ChartTables::columnPair(both, 2, true, false)).toStdString(), "400;400|450;450");
    EXPECT_EQ(written(ChartTables::columnPair(both, 3, false, false)).toStdString(), "400;|450;|118;");
    Recordset none = givenRows(names, {});
    EXPECT_EQ(written(ChartTables::columnPair(none, 2, false, false)).toStdString(), ";|;");
}

} // namespace
