// What a screen reader learns of a grid: headings, captions and order. What it is told of the keyboard, only
// a real accessibility bus shows: tests/screen_reader.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QTableView>
#include <QTest>

#include "platform/runtime/x_array_db.h"
#include "tests/forms/grid_fixture.h"

namespace {

class GridReader : public ::testing::Test {
protected:
    GridReader() {
        addThreeColumns(grid);
        grid.setDataSource(&source);
        source.setRecordset(madeRecordset(20));
        view = grid.findChild<QTableView *>();
    }

    std::string heading(int section, Qt::Orientation orientation = Qt::Horizontal) const {
        return view->model()
            ->headerData(section, orientation, Qt::AccessibleTextRole)
            .toString()
            .toStdString();
    }
    std::string cell(int row, int column) const {
        QAccessibleTableInterface *table = QAccessible::queryAccessibleInterface(view)->tableInterface();
        return table->cellAt(row, column)->text(QAccessible::Name).toStdString();
    }

    DataControl source;
    TDBGrid grid;
    QTableView *view = nullptr;
};

} // namespace

TEST_F(GridReader, NewRowsLeaveTheKeyboardInItsColumn) {
    QTest::keyClick(view, Qt::Key_Right);
    source.setRecordset(madeRecordset(5));
    EXPECT_EQ(view->currentIndex().column(), 1);
    grid.Columns(1).setVisible(false);
    source.setRecordset(madeRecordset(5));
    EXPECT_EQ(view->currentIndex().column(), 0) << "a column that does not show";
}

TEST_F(GridReader, AHeadingSaysTheOrderOfTheRows) {
    grid.Columns(1).setCaption("number ▼");
    grid.setRowOrder(1, Qt::DescendingOrder);
    EXPECT_EQ(heading(1), "number, descending");
    EXPECT_EQ(heading(0), "name");
    grid.setRowOrder(0, Qt::AscendingOrder);
    EXPECT_EQ(heading(0), "name, ascending");
    grid.setRowOrder(-1, Qt::AscendingOrder);
    EXPECT_EQ(heading(0), "name");
}

TEST_F(GridReader, ARowIsHeadedByWhatStandsFirstInIt) {
    grid.Columns(0).setVisible(false);
    EXPECT_EQ(heading(3, Qt::Vertical), "number 3");
}

TEST_F(GridReader, AValueBelowACaptionRowSaysItsCaption) {
    const char *const cells[][3] = {
        {"Rp0,2 \r\n\r\n[MPa]", "(16) - 40mm", ""}, {"", "166", "5"}, {"", "", ""}, {"E", "GPa", ""}};
    const auto array = std::make_shared<XArrayDB>();
    array->ReDim(1, 4, 0, 2);
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 3; ++column)
            array->Set(row + 1, column, QString(cells[row][column]));
    grid.setCaptionRows([](int row) { return row - row % 3; });
    grid.setArray(array);
    grid.Rebind();
    EXPECT_EQ(cell(0, 0), "Rp0,2 [MPa]");
    EXPECT_EQ(cell(0, 1), "(16) - 40mm");
    EXPECT_EQ(cell(1, 1), "166, (16) - 40mm");
    EXPECT_EQ(cell(1, 2), "5") << "a column without a caption";
    EXPECT_EQ(cell(2, 1), "") << "nothing stands there";
    EXPECT_EQ(heading(1, Qt::Vertical), "Rp0,2 [MPa]");
    EXPECT_EQ(heading(3, Qt::Vertical), "E");
}
