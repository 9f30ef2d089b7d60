// A grid and its data control: what is read, and how their current rows follow each other.
#include <gtest/gtest.h>

#include <QDateTime>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

#include "tests/forms/grid_fixture.h"
#include "tests/support/error_of.h"
#include "tests/support/given_rows.h"
#include "tests/support/pinned_settings.h"

namespace {

class BoundGrid : public ::testing::Test {
protected:
    BoundGrid() {
        addThreeColumns(grid);
        grid.setDataSource(&source);
        grid.resize(360, 220);
        grid.show();
        view = grid.findChild<QTableView *>();
    }

    DataControl source;
    TDBGrid grid;
    QTableView *view = nullptr;
};

} // namespace

TEST_F(BoundGrid, ReadsOnlyTheRowsOnTheScreen) {
    const auto rows = std::make_shared<MadeRows>(32767);
    source.setRecordset(std::make_shared<Recordset>(rows));
    QTest::qWait(0);
    grid.grab();
    const int onScreen = view->viewport()->height() / view->rowHeight(0) + 2;
    EXPECT_FALSE(rows->rowsRead.empty());
    EXPECT_LE(static_cast<int>(rows->rowsRead.size()), onScreen);

    rows->rowsRead.clear();
    source.recordset()->MoveLast();
    grid.grab();
    EXPECT_TRUE(rows->rowsRead.count(32766));
    EXPECT_LE(static_cast<int>(rows->rowsRead.size()), onScreen);

    rows->rowsRead.clear();
    QTest::keyClicks(view, "name 9");
    view->resizeColumnToContents(0);
    EXPECT_LE(static_cast<int>(rows->rowsRead.size()), onScreen);

    rows->rowsRead.clear();
    grid.Columns(1).setWordWrap(true); // rows now have heights of their own
    grid.grab();
    EXPECT_LE(static_cast<int>(rows->rowsRead.size()), onScreen);
}

TEST_F(BoundGrid, MovesTheRecordsetAndFollowsIt) {
    source.setRecordset(madeRecordset(50));
    QSignalSpy repositions(&source, &DataControl::Reposition);

    QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                      view->visualRect(view->model()->index(3, 1)).center());
    EXPECT_EQ(source.recordset()->AbsolutePosition(), 3);
    QTest::keyClick(view, Qt::Key_Down);
    EXPECT_EQ(source.recordset()->AbsolutePosition(), 4);
    EXPECT_EQ(repositions.count(), 2);
    QTest::keyClick(view, Qt::Key_Right); // the same row: no reposition
    EXPECT_EQ(repositions.count(), 2);

    source.recordset()->FindFirst("40");
    EXPECT_EQ(grid.Row(), 40);
    EXPECT_TRUE(view->viewport()->rect().intersects(view->visualRect(view->currentIndex())));
    EXPECT_EQ(repositions.count(), 3);

    grid.setRow(7);
    EXPECT_EQ(source.recordset()->AbsolutePosition(), 7);
    source.recordset()->MoveLast();
    source.recordset()->MoveNext(); // at end of file no row is current, and the grid stays where it was
    EXPECT_EQ(grid.Row(), 49);
    EXPECT_EQ(errorOf([this] { grid.setRow(50); }), 9);
}

TEST_F(BoundGrid, KeepsColumnsAndSidewaysScrollWhenItsRowsAreReplaced) {
    source.setRecordset(madeRecordset(50));
    grid.Columns(0).setWidth(9000);
    grid.Columns(1).setVisible(false);
    view->horizontalScrollBar()->setValue(120);
    source.recordset()->MoveLast();

    source.setRecordset(madeRecordset(20));
    EXPECT_EQ(grid.RowCount(), 20);
    EXPECT_EQ(grid.Row(), 0);
    EXPECT_EQ(view->verticalScrollBar()->value(), 0);
    EXPECT_EQ(view->columnWidth(0), 600);
    EXPECT_TRUE(view->isColumnHidden(1));
    EXPECT_EQ(view->horizontalScrollBar()->value(), 120);
    grid.ScrollToFirstColumn();
    EXPECT_EQ(view->horizontalScrollBar()->value(), 0);

    source.setRecordset(madeRecordset(0));
    EXPECT_EQ(grid.RowCount(), 0);
    EXPECT_EQ(grid.Row(), -1);
}

TEST_F(BoundGrid, WritesValuesAsTextAndLeavesNullAndUnknownFieldsEmpty) {
    const PinnedSettings german(RegionalSettings{',', '.', "dd.MM.yyyy", "HH:mm:ss"});
    const auto rows = std::make_shared<MadeRows>(1);
    rows->put(0, 0, QVariant());
    rows->put(0, 1, 235.5f);
    rows->put(0, 2, QDateTime(QDate(2004, 3, 1), QTime(0, 0)));
    source.setRecordset(std::make_shared<Recordset>(rows));
    EXPECT_EQ(grid.CellText(0, 0), "");
    EXPECT_EQ(grid.CellText(0, 1), "235,5");
    EXPECT_EQ(grid.CellText(0, 2), "01.03.2004");
    grid.Columns(1).setDataField("notThere");
    EXPECT_EQ(grid.CellText(0, 1), "");
    grid.Columns(1).setDataField("NUMBER");
    EXPECT_EQ(grid.CellText(0, 1), "235,5");
    EXPECT_EQ(errorOf([this] { grid.CellText(1, 0); }), 9);
}

TEST(GridFields, AreShownAllUntilTheyAreHeld) {
    DataControl source;
    TDBGrid grid;
    grid.setDataSource(&source);
    source.setRecordset(madeRecordset(2));
    ASSERT_EQ(grid.ColumnCount(), 3);
    EXPECT_EQ(grid.Columns(1).Caption(), "number");
    EXPECT_EQ(grid.CellText(1, 1), "number 1");

    grid.HoldFields();
    source.setRecordset(std::make_shared<Recordset>(std::make_shared<MadeRows>(2, QStringList{"other"})));
    EXPECT_EQ(grid.ColumnCount(), 3);
    EXPECT_EQ(grid.CellText(1, 1), "");
}

TEST_F(BoundGrid, FieldThatCannotBeReadIsAnErrorOnlyWhereAColumnShowsIt) {
    const auto rows = [] { return std::make_shared<Recordset>(givenRows({"name", "photo!"}, {{"a", {}}})); };
    source.setRecordset(rows());
    EXPECT_EQ(grid.CellText(0, 0), "a");
    grid.Columns(0).setDataField("");
    EXPECT_EQ(errorOf([&] { grid.Columns(0).setDataField("photo"); }), 3259);

    TDBGrid ofAllFields;
    ofAllFields.setDataSource(&source);
    EXPECT_EQ(ofAllFields.ColumnCount(), 1);
}

TEST(DataControl, RaisesWithoutDatabaseAndBeforeTheFirstRows) {
    DataControl source;
    EXPECT_EQ(source.Connect(), "Access 2000;");
    EXPECT_EQ(errorOf([&] { source.Refresh(); }), 3055);
    EXPECT_EQ(errorOf([&] { source.recordset(); }), 91);
}

TEST(DataControl, TellsOfItsOwnRecordsetOnly) {
    DataControl source;
    QStringList told;
    QObject::connect(&source, &DataControl::recordsetReplaced, [&] { told << "replaced"; });
    QObject::connect(&source, &DataControl::Reposition, [&] { told << "reposition"; });
    const auto first = madeRecordset(5);
    source.setRecordset(first);
    source.setRecordset(madeRecordset(0));
    EXPECT_EQ(told, QStringList({"replaced", "reposition", "replaced", "reposition"}));
    first->MoveLast();
    EXPECT_EQ(told.size(), 4);

    auto closed = std::make_unique<DataControl>();
    closed->setRecordset(first);
    closed.reset();
    first->MoveFirst(); // outlives its control
}
