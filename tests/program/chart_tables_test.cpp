// What a graph is drawn from: series and arrays, from rows.
#include <gtest/gtest.h>

#include "design/chart_tables.h"
#include "design/design_headings.h"
#include "tests/support/error_of.h"
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

QString written(const SourceArray &source) {
    QStringList rows;
    for (int row = 1; row <= source.rowCount(); ++row) {
        QStringList texts;
        for (int column = 0; column <= source.lastColumn(); ++column)
            texts << source.text(row, column);
        rows << texts.join(QLatin1Char(';'));
    }
    return rows.join(QLatin1Char('|'));
}

TEST(ChartTablesTest, EachTableHasItsSeries) {
    const struct {
        const char *key;
        QVector<qint16> bands;
        const char *expected; // field=legend of each series, Y title, legend shown
    } cases[] = {
        {"Rp02", {}, "Rp02= Rp 0,2  [MPa] 0"},
        {"Rp10", {}, "Rp10= Rp 1,0  [MPa] 0"},
        {"Rm", {}, "Rm= Rm  [MPa] 0"},
        {"ModElast", {}, "ModElast= [kN/mm] 0"},
        {"ThermCond", {}, "ThermCond= [W/m*K] 0"},
        {"SpecElecRes", {}, "SpecElecRes= [MPa] 0"},
        {"ThermExp", {}, "ThermExp=ThermExp ThermExpDiff=ThermExpDiff [E-6/K] 1"},
        {"SpecThermCap", {}, "SpecThermCap=SpecThermCap SpecThermCapDiff=SpecThermCapDiff [J/kgK] 1"},
        {"Rp02", {0, 16, 40, 100}, "16=(   ) - 16mm 40=(16) - 40mm 100=(40) - 100mm  1"},
        {"Rm", {0, 60}, "60=(   ) - 60mm  1"},
        {"ImpEnergy", {}, " 0"},
    };
    for (const auto &item : cases) {
        const auto table = ChartTables::seriesOf(item.key, item.bands);
        QString text;
        for (const auto &series : table.series)
            text += series.field + QLatin1Char('=') + series.legend + QLatin1Char(' ');
        text += table.yAxisTitle + QLatin1Char(' ') + QString::number(table.ShowLegend);
        EXPECT_EQ(text.toStdString(), item.expected);
    }
}

TEST(ChartTablesTest, TheDesignTableHasItsHeadings) {
    const struct {
        const char *key;
        QVector<qint16> bands;
        const char *expected;
    } cases[] = {
        {"Rp02", {}, "Rp0,2 \r\n\r\n[MPa]: [MPa]"},
        {"Rp10", {0, 16}, "Rp1,0 \r\n\r\n[MPa]: (  ) - 16mm"},
        {"Rm", {0, 16, 40}, "Rm \r\n\r\n[MPa]: (  ) - 16mm; (16) - 40mm"},
        {"SpecElecRes", {}, "Ohm x mm² \r\n\r\n/ m: [MPa]"},
        {"ModElast", {}, "ModElast: [kN/mm]"},
        {"ThermCond", {}, "ThermCond: [W/m*K]"},
        {"ThermExp", {}, "ThermExp: ß20, t [E-6/K]; ßdiff, t [E-6/K]"},
        {"SpecThermCap", {}, "SpecThermCap: Cp20, t [J/kgK]; Cp diff, t [J/kgK]"},
        {"CreepProp", {}, "Creep Properties: A; B"},
    };
    for (const auto &item : cases) {
        const DesignHeadings headings = designHeadings(item.key, item.bands, {"Temp", "A", "B"});
        EXPECT_EQ((headings.label + ": " + headings.columns.join("; ")).toStdString(), item.expected);
    }
}

TEST(ChartTablesTest, RowsGiveWhatIsDrawnAndWhatStandsThere) {
    const PinnedSettings settings(u',', u'.');
    Recordset single = givenRows({"matID", "temp", "Rp02"}, {{1, 20.5f, "(235,5) a2"},
                                                             {1, 100, QVariant()},
                                                             {1, QVariant(), "200"},
                                                             {1, 200, "none"},
                                                             {1, 250, "a1,5b7"},
                                                             {1, 300, 12.5},
                                                             {1, 350, "13.5"}});
    const auto arrays = ChartTables::temperatureArrays(single, {{"Rp02", {}}}, false);
    EXPECT_EQ(written(arrays.chart).toStdString(), "20.5;235,5|100;|~;200|200;|250;1,5|300;12,5|350;13,5");
    EXPECT_EQ(written(arrays.text).toStdString(),
              "20,5;(235,5) a2|100;|;200|200;none|250;a1,5b7|300;12,5|350;13.5");
}

TEST(ChartTablesTest, SeveralSeriesGoInPairsByTheirFieldsNames) {
    const PinnedSettings settings(u'.', u',');
    const QVector<ChartTables::Series> bands{{"16", "a"}, {"40", "b"}, {"100", "c"}};
    Recordset pivot = givenRows({"temp", "ordering", "100", "16", "40"},
                                {{50, 1, QVariant(), "227", "219,5"}, {100, 2, "198", "214", QVariant()}});
    pivot.MoveLast();
    const auto arrays = ChartTables::temperatureArrays(pivot, bands, true);
    EXPECT_EQ(written(arrays.chart).toStdString(), "50;227;50;219.5;50;|100;214;100;;100;198");
    EXPECT_EQ(written(arrays.text).toStdString(), "50;227;219,5;|100;214;;198");

    EXPECT_EQ(errorOf([&] { ChartTables::temperatureArrays(pivot, {{"60", {}}}, true); }), 3265);
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
