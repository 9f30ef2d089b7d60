// How rows become tables and texts, without a window.
#include <gtest/gtest.h>

#include "data/composition.h"
#include "data/CreepColumns.h"
#include "data/material_texts.h"
#include "data/temperature_columns.h"
#include "data/unbound_columns.h"
#include "tests/support/error_of.h"
#include "tests/support/given_rows.h"

namespace {

const QVariant Null;

// One line a row, cells parted by a stroke.
QStringList linesOf(const XArrayDB &table) {
    QStringList lines;
    for (int row = table.LowerBound(1); row <= table.UpperBound(1); ++row) {
        QStringList cells;
        for (int column = table.LowerBound(2); column <= table.UpperBound(2); ++column)
            cells << table.Get(row, column).toString();
        lines << cells.join('|');
    }
    return lines;
}

Recordset limits(std::vector<QVariantList> rows) {
    return givenRows({"element", "val", "note"}, std::move(rows));
}

Recordset limitsOfCarbon(int count) {
    std::vector<QVariantList> rows;
    for (int i = 0; i < count; ++i)
        rows.push_back({"C", i, Null});
    return limits(std::move(rows));
}

Recordset cellsOf(const QVariantList &values) {
    std::vector<QVariantList> rows;
    for (const QVariant &value : values)
        rows.push_back({value});
    return givenRows({"val"}, std::move(rows));
}

XArrayDB tableOf(const std::vector<QVariantList> &rows) {
    XArrayDB table;
    table.ReDim(1, static_cast<int>(rows.size()), 0, static_cast<int>(rows[0].size()) - 1);
    for (int row = 1; row <= table.UpperBound(1); ++row)
        for (int column = 0; column <= table.UpperBound(2); ++column)
            table.Set(row, column, rows[static_cast<std::size_t>(row - 1)][column]);
    return table;
}

TEST(CompositionTest, PairsOfRowsBecomeColumns) {
    Recordset rows =
        limits({{"C", Null, Null}, {"C", "0,16", "a)"}, {"minimum", "0,4", "b)"}, {"Mn", "1,2", Null}});
    const Composition composition = readComposition(rows, true);
    EXPECT_EQ(linesOf(composition.cells), QStringList({"min||0,4", "max|0,16|1,2"}));
    EXPECT_EQ(composition.headings, QStringList({"C\r\n\r\na)", "Mn\r\n\r\n"}))
        << "element and marker are those of the second row of a pair";

    rows.MoveFirst();
    EXPECT_EQ(readComposition(rows, false).headings[0], "C\r\n\r\n");
}

TEST(CompositionTest, TheNumberOfPairsIsRoundedToEven) {
    for (const auto &[rows, elements] : {std::pair(1, 0), {2, 1}, {5, 2}, {6, 3}, {26, 13}}) {
        Recordset recordset = limitsOfCarbon(rows);
        EXPECT_EQ(readComposition(recordset, false).headings.size(), elements) << rows << " rows";
    }
    for (const int rows : {3, 7}) {
        Recordset recordset = limitsOfCarbon(rows);
        EXPECT_EQ(errorOf([&] { readComposition(recordset, false); }), 3021) << rows << " rows";
    }
}

TEST(UnboundColumnsTest, AHeadingAlwaysHasFourLines) {
    EXPECT_EQ(unboundHeading("ReH", "1)", shownUnit("[MPa]"), "min"), "ReH\r\n1)\r\n[MPa]\r\nmin");
    EXPECT_EQ(unboundHeading("Z", {}, shownUnit("[NoUnit]"), {}), "Z\r\n\r\n\r\n");
}

TEST(UnboundColumnsTest, CellsFillTheTableByTheirPosition) {
    Recordset cells = cellsOf({"16", 235, Null, "40", " ", "-"});
    EXPECT_EQ(linesOf(readUnboundCells(cells, unboundRowCount(6, 3), 3)), QStringList({"16|235|", "40| |-"}));

    Recordset tooFew = cellsOf({"1", "2", "3"});
    EXPECT_EQ(linesOf(readUnboundCells(tooFew, unboundRowCount(3, 2), 2)), QStringList({"1|2", "3|"}));
    EXPECT_EQ(unboundRowCount(5, 2), 2) << "a half goes to the even neighbour";
    EXPECT_EQ(errorOf([] { unboundRowCount(4, 0); }), 11);
}

TEST(UnboundColumnsTest, OnlyASingleRowOfEmptyCellsIsNoTable) {
    EXPECT_TRUE(isSingleEmptyRow(tableOf({{"", Null}})));
    EXPECT_FALSE(isSingleEmptyRow(tableOf({{"", "-"}})));
    EXPECT_FALSE(isSingleEmptyRow(tableOf({{"", ""}, {"", ""}})));
}

struct CreepFixture : ::testing::Test {
    CreepColumns build(const XArrayDB &cells) const {
        return BuildCreepColumns(
            {cells, [](int column) { return QString("head %1").arg(column); }, widths, colIDs, names});
    }
    const QVector<float> widths{1250, 800, 900, 1000};
    const QVector<qint16> colIDs{11, 12, 13, 14, 0};
    const QStringList names{"T [°C]", "Rm", "Rp", "A", ""};
};

TEST_F(CreepFixture, LeavesOutColumnsWithoutAnyValue) {
    const CreepColumns creep =
        build(tableOf({{"400", "-", " ", "182"}, {"410", "", "96", Null}, {"420", "-", "-", "x"}}));
    EXPECT_EQ(creep.EmptyCreepCols, QVector<bool>({false, true, false, false}));
    EXPECT_EQ(creep.aCreepData.lastColumn(), 2);
    EXPECT_EQ(creep.aCreepData.text(2, 1), "96");
    EXPECT_EQ(creep.aCreepData.text(2, 2), "");
    EXPECT_EQ(creep.aCreepCaptions, QStringList({"head 0", "head 2", "head 3"}));
    EXPECT_EQ(creep.aCreepWidths, QVector<float>({1250, 900, 1000}));
    EXPECT_EQ(creep.aCreepColIDs, QVector<qint16>({13, 14}));
    EXPECT_EQ(creep.columnNames, QStringList({"Rp", "A"}));
    EXPECT_EQ(creep.xAxisName, "T [°C]");
    EXPECT_EQ(creep.maxDesignCols(1), 2);
    EXPECT_EQ(creep.maxDesignCols(6), 6);
}

TEST_F(CreepFixture, AnEmptyTemperatureColumnGivesItsPlaceAway) {
    const CreepColumns creep = build(tableOf({{"-", "1", "2", "3"}}));
    EXPECT_EQ(creep.aCreepData.text(1, 0), "1");
    EXPECT_EQ(creep.aCreepColIDs, QVector<qint16>({12, 13, 14}));
    EXPECT_FALSE(creep.xAxisName);

    const CreepColumns none = build(tableOf({{"", "-", " ", ""}}));
    EXPECT_EQ(none.maxDesignCols(6), 0);
}

TEST(TemperatureColumnsTest, BandsAreNamedByTheirLimits) {
    Recordset rows = givenRows({"thickness"}, {{16}, {16}, {40}, {100}, {100}});
    const QVector<qint16> bands = bandLimits(rows);
    EXPECT_EQ(bands, QVector<qint16>({0, 16, 40, 100}));
    EXPECT_EQ(bandHeading(bands, 1), "(   ) - \r\n\r\n16mm");
    EXPECT_EQ(bandHeading(bands, 3), "(40) - \r\n\r\n100mm");

    Recordset unsorted = givenRows({"thickness"}, {{16}, {40}, {16}});
    EXPECT_EQ(bandLimits(unsorted), QVector<qint16>({0, 16, 40, 16}));
}

TEST(TemperatureColumnsTest, AnImpactColumnIsEmptyWhenNoRowHasAValue) {
    struct Case {
        std::vector<QVariantList> rows;
        int columns;
    };
    const Case cases[] = {
        {{{1, 20, "27", Null, "-"}}, 1},
        {{{1, -20, "", "-", Null}, {1, 0, "-", "40", "x"}}, 6},
        {{{1, -20, "1", "2", "3"}, {1, 0, "-", Null, ""}}, 7},
        {{{1, -20, "-", "-", "-"}, {1, 0, "-", "-", "-"}}, 0},
    };
    for (const Case &each : cases) {
        Recordset rows = givenRows({"matID", "temp", "kv", "kvLong", "kvTrans"}, each.rows);
        EXPECT_EQ(emptyImpactColumns(rows).columnsWithValues(), each.columns);
    }
}

TEST(MaterialTextsTest, ParagraphsWithoutATitleStandLast) {
    const auto titleOf = [](int titleID) {
        return QStringList({"?", "General", "[NoTitle]", "Welding"}).value(titleID);
    };
    EXPECT_EQ(additionalInfoText({{0, "zero"}, {1, "one"}, {1, "more"}, {2, "loose"}, {3, "weld"}}, titleOf),
              "General\r\n\r\none\r\nmore"
              "\r\n\r\nWelding\r\n\r\nweld"
              "\r\n\r\n\r\nzero\r\nloose");
    EXPECT_EQ(additionalInfoText({{1, "one"}}, titleOf), "General\r\n\r\none\r\n\r\n");
}

TEST(MaterialTextsTest, ProductFormsNeedANameEach) {
    const auto names = [] { return givenRows({"prodFID", "productForm"}, {{3, "Plate"}, {1, "Strip"}}); };
    Recordset two = names();
    EXPECT_EQ(readProductForms(two, 2), QStringList({"Plate", "Strip"}));
    Recordset three = names();
    EXPECT_EQ(errorOf([&] { readProductForms(three, 3); }), 3021);
}

} // namespace
