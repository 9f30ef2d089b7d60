// What a screen reader is told of a grid: where the keyboard is, what heads a cell, how the rows are ordered.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QLineEdit>
#include <QTableView>
#include <QTest>
#include <QVBoxLayout>

#include "platform/runtime/x_array_db.h"
#include "tests/forms/grid_fixture.h"

namespace {

QStringList focused;
QStringList announced;

void listen(QAccessibleEvent *event) {
    if (event->type() == QAccessible::Focus) focused << event->accessibleInterface()->text(QAccessible::Name);
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    if (event->type() == QAccessible::Announcement)
        announced << static_cast<QAccessibleAnnouncementEvent *>(event)->message();
#else
    if (event->type() == QAccessible::ObjectShow &&
        event->accessibleInterface()->role() == QAccessible::Notification)
        announced << event->accessibleInterface()->text(QAccessible::Name);
#endif
}

class GridReader : public ::testing::Test {
protected:
    GridReader() {
        addThreeColumns(grid);
        grid.setDataSource(&source);
        source.setRecordset(madeRecordset(20));
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(&box);
        layout->addWidget(&grid);
        window.show();
        view = grid.findChild<QTableView *>();
        box.setFocus();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        focused.clear();
        announced.clear();
        QAccessible::setActive(true);
        QAccessible::installUpdateHandler(listen);
    }
    ~GridReader() override {
        QAccessible::installUpdateHandler(nullptr);
        QAccessible::setActive(false);
    }

    void keyboardIntoRows() {
        grid.setFocus();
        QCoreApplication::processEvents();
    }
    QString heading(int section, Qt::Orientation orientation = Qt::Horizontal) const {
        return view->model()->headerData(section, orientation, Qt::AccessibleTextRole).toString();
    }
    QString cell(int row, int column) const {
        return QAccessible::queryAccessibleInterface(view)
            ->tableInterface()
            ->cellAt(row, column)
            ->text(QAccessible::Name);
    }

    QWidget window;
    QLineEdit box;
    DataControl source;
    TDBGrid grid;
    QTableView *view = nullptr;
};

} // namespace

TEST_F(GridReader, TheKeyboardIsInACellOnlyWhereItIsInTheRows) {
    source.recordset()->MoveNext();
    source.setRecordset(madeRecordset(10));
    EXPECT_EQ(focused, QStringList()) << "a search moves the row, not the keyboard";
    source.recordset()->MoveNext();
    keyboardIntoRows();
    EXPECT_EQ(focused.value(focused.size() - 1), "name 1");
    QTest::keyClick(view, Qt::Key_Right);
    EXPECT_EQ(focused.value(focused.size() - 1), "number 1");
}

TEST_F(GridReader, NewRowsLeaveTheKeyboardInItsColumn) {
    keyboardIntoRows();
    QTest::keyClick(view, Qt::Key_Right);
    source.setRecordset(madeRecordset(5));
    EXPECT_EQ(view->currentIndex().column(), 1);
    source.setRecordset(madeRecordset(0));
    source.setRecordset(madeRecordset(5));
    EXPECT_EQ(view->currentIndex().column(), 0) << "without a row the keyboard is in no column";
}

TEST_F(GridReader, TheOrderOfTheRowsIsInTheHeadingAndSaidToWhomItConcerns) {
    grid.Columns(1).setCaption("number ▼");
    grid.setRowOrder(1, Qt::DescendingOrder);
    EXPECT_EQ(heading(1), "number, descending");
    EXPECT_EQ(heading(0), "name");
    EXPECT_EQ(announced, QStringList()) << "the keyboard is elsewhere";
    keyboardIntoRows();
    grid.setRowOrder(0, Qt::AscendingOrder);
    grid.setRowOrder(0, Qt::AscendingOrder);
    grid.setRowOrder(-1, Qt::AscendingOrder);
    EXPECT_EQ(announced, QStringList("name, ascending"));
    EXPECT_EQ(heading(0), "name");
}

TEST_F(GridReader, ARowIsHeadedByWhatStandsFirstInIt) {
    grid.Columns(0).setVisible(false);
    EXPECT_EQ(heading(3, Qt::Vertical), "number 3");
}

TEST_F(GridReader, AValueBelowACaptionRowSaysItsCaption) {
    const auto array = std::make_shared<XArrayDB>();
    array->ReDim(1, 4, 0, 2);
    const char *const cells[][3] = {
        {"Rp0,2 \r\n\r\n[MPa]", "(  ) - 16mm", ""}, {"", "173", "5"}, {}, {"E", "GPa", ""}};
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 3; ++column)
            array->Set(row + 1, column, QString(cells[row][column]));
    grid.setCaptionRows([](int row) { return row - row % 3; });
    grid.setArray(array);
    grid.Rebind();
    EXPECT_EQ(cell(0, 0), "Rp0,2 [MPa]");
    EXPECT_EQ(cell(0, 1), "( ) - 16mm");
    EXPECT_EQ(cell(1, 1), "173, ( ) - 16mm");
    EXPECT_EQ(cell(1, 2), "5") << "a column without a caption";
    EXPECT_EQ(cell(2, 1), "") << "nothing stands there";
    EXPECT_EQ(heading(1, Qt::Vertical), "Rp0,2 [MPa]");
    EXPECT_EQ(heading(3, Qt::Vertical), "E");
}
