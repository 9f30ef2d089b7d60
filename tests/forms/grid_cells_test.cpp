// Rows of a grid that are made when they are looked at, with cells that stand out.
#include <gtest/gtest.h>

#include <set>

#include <QApplication>
#include <QClipboard>
#include <QHelpEvent>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <QToolTip>

#include "platform/forms/grid_cells.h"
#include "platform/forms/tdb_grid.h"
#include "platform/runtime/x_array_db.h"

namespace {

class MadeCells : public ::testing::Test {
protected:
    MadeCells() {
        for (const char *caption : {"one", "two"})
            grid.AddColumn(caption).setWidth(1800);
        grid.resize(400, 300);
        grid.show();
        view = grid.findChild<QTableView *>();
    }

    std::shared_ptr<GridCells> cells(int rows, const QString &text = "%1/%2") {
        auto made = std::make_shared<GridCells>();
        made->rows = rows;
        made->text = [this, text](int row, int column) {
            asked.insert(row);
            return QString(text).replace("%1", QString::number(row)).replace("%2", QString::number(column));
        };
        return made;
    }

    TDBGrid grid;
    QTableView *view = nullptr;
    std::set<int> asked;
};

} // namespace

TEST_F(MadeCells, OnlyRowsInSightAreMade) {
    for (const bool grow : {false, true}) {
        asked.clear();
        const auto many = cells(1'000'000);
        many->rowsGrow = grow;
        grid.setCells(many);
        grid.grab();
        EXPECT_EQ(grid.RowCount(), 1'000'000);
        EXPECT_GT(asked.size(), 5u);
        EXPECT_LT(asked.size(), 60u);
        QTest::keyClick(view, Qt::Key_End, Qt::ControlModifier);
        grid.grab();
        EXPECT_LT(asked.size(), 120u);
        EXPECT_EQ(grid.CellText(999'999, 1), "999999/1");
    }
}

TEST_F(MadeCells, NewOnesInAsManyRowsLeaveTheUserWhereHeWas) {
    grid.setCells(cells(100));
    grid.setRow(60);
    grid.grab();
    const int top = view->verticalScrollBar()->value();
    EXPECT_GT(top, 0);
    grid.setCells(cells(100, "new %1/%2"));
    EXPECT_EQ(grid.Row(), 60);
    EXPECT_EQ(view->verticalScrollBar()->value(), top);
    EXPECT_EQ(grid.CellText(60, 0), "new 60/0");
    grid.setCells(cells(50));
    EXPECT_EQ(grid.Row(), 0);
    grid.setCells(nullptr);
    EXPECT_EQ(grid.RowCount(), 0);
    grid.grab();
}

TEST_F(MadeCells, RowsThatGrowAreAsTallAsTheirText) {
    const auto tall = cells(3);
    tall->text = [](int row, int) { return row == 1 ? QString("a\nb\nc\nd") : QString("a"); };
    grid.setCells(tall);
    grid.grab();
    EXPECT_EQ(view->rowHeight(1), view->rowHeight(0)) << "all have one line";
    const auto growing = std::make_shared<GridCells>(*tall);
    growing->rowsGrow = true;
    grid.setCells(growing);
    grid.grab();
    EXPECT_GT(view->rowHeight(1), 2 * view->rowHeight(0));
    grid.setCells(tall);
    grid.grab();
    EXPECT_EQ(view->rowHeight(1), view->rowHeight(0));
}

TEST_F(MadeCells, AMarkIsSeenAndTold) {
    const QColor ground(0xff, 0xe0, 0x9a);
    const auto marked = cells(3);
    marked->mark = [ground](int row, int column) {
        GridCellMark mark;
        if (row != 1 || column != 1) return mark;
        return GridCellMark{true, ground, "It differs."};
    };
    grid.setCells(marked);
    const auto pictureOf = [this](int row, int column) {
        return view->viewport()->grab(view->visualRect(view->model()->index(row, column))).toImage();
    };
    EXPECT_EQ(pictureOf(1, 1).pixelColor(2, 2), ground);
    EXPECT_NE(pictureOf(1, 0).pixelColor(2, 2), ground);
    const auto ink = [](const QImage &image) {
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                count += image.pixelColor(x, y).lightness() < 100;
        return count;
    };
    const auto same = cells(3, "bold");
    same->mark = marked->mark;
    grid.setCells(same);
    EXPECT_GT(ink(pictureOf(1, 1)), ink(pictureOf(2, 1)));

    const QModelIndex cell = view->model()->index(1, 1);
    EXPECT_EQ(cell.data(Qt::AccessibleDescriptionRole).toString(), "It differs.");
    const QPoint at = view->visualRect(cell).center();
    QHelpEvent rest(QEvent::ToolTip, at, view->viewport()->mapToGlobal(at));
    QApplication::sendEvent(view->viewport(), &rest);
    EXPECT_EQ(QToolTip::text(), "It differs.");
    QToolTip::hideText();
}

TEST_F(MadeCells, AreCopiedAndGiveWayToAnArray) {
    grid.setCells(cells(2));
    grid.activateWindow();
    view->setFocus();
    ASSERT_TRUE(QTest::qWaitFor([this] { return view->hasFocus(); }));
    QTest::keyClick(view, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(view, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "one\ttwo\n0/0\t0/1\n1/0\t1/1");
    const auto array = std::make_shared<XArrayDB>();
    array->ReDim(1, 1, 0, 1);
    array->Set(1, 0, "array");
    grid.setArray(array);
    grid.Rebind();
    EXPECT_EQ(grid.RowCount(), 1);
    EXPECT_EQ(grid.CellText(0, 0), "array");
    grid.setCells(cells(2));
    EXPECT_EQ(grid.CellText(1, 1), "1/1");
}
