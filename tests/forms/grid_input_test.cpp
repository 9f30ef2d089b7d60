// What mouse and keys do on a grid: clicks on headings and footers, tips, keys, copying, drag and drop.
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QDrag>
#include <QDragEnterEvent>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <QVBoxLayout>

#include "platform/forms/drop_target.h"
#include "platform/forms/grid_footer.h"
#include "tests/forms/grid_fixture.h"

namespace {

class GridInput : public ::testing::Test {
protected:
    GridInput()
        : target("folder")
        , drops(&target) {
        grid.setObjectName("tdbSource");
        addThreeColumns(grid);
        grid.setDataSource(&source);
        source.setRecordset(madeRecordset(200));
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(&grid);
        layout->addWidget(&target);
        window.resize(420, 320);
        window.show();
        view = grid.findChild<QTableView *>();
        footer = grid.findChild<GridFooter *>();
        grid.setFocus();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    QPoint cell(int row, int column) { return view->visualRect(view->model()->index(row, column)).center(); }
    QPoint heading(int column) {
        const QHeaderView *header = view->horizontalHeader();
        return {header->sectionViewportPosition(column) + 20, header->height() / 2};
    }
    QString tipAt(QWidget *place, const QPoint &at) {
        QToolTip::showText({}, {});
        QHelpEvent event(QEvent::ToolTip, at, place->mapToGlobal(at));
        QApplication::sendEvent(place, &event);
        return QToolTip::text();
    }

    /// Opens the menu by its key and chooses in it by a letter. Gives the entries with their keys.
    QStringList chosenInMenu(Qt::Key letter) {
        QStringList entries;
        QTimer::singleShot(0, view, [&entries, letter] {
            auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            for (const QAction *entry : menu->actions())
                entries << entry->text().remove('&') + ": " + entry->shortcut().toString();
            QTest::keyClick(menu, letter);
            menu->close();
        });
        QContextMenuEvent byKey(QContextMenuEvent::Keyboard, cell(1, 0), view->mapToGlobal(cell(1, 0)));
        QApplication::sendEvent(view, &byKey);
        return entries;
    }

    QWidget window;
    DataControl source;
    TDBGrid grid;
    QLabel target;
    DropTarget drops;
    QTableView *view = nullptr;
    GridFooter *footer = nullptr;
};

} // namespace

TEST_F(GridInput, TheFocusCanBeSeenEvenWithoutARow) {
    for (const int rows : {200, 0}) {
        source.setRecordset(madeRecordset(rows));
        view->setFocus();
        const QImage focused = view->viewport()->grab().toImage();
        view->clearFocus();
        EXPECT_NE(view->viewport()->grab().toImage(), focused) << rows << " rows";
    }
}

TEST_F(GridInput, HeadingsAndFootersTellTheirColumn) {
    QSignalSpy heads(&grid, &TDBGrid::HeadClick);
    QSignalSpy foots(&grid, &TDBGrid::FootClick);
    EXPECT_FALSE(footer->isVisible());
    grid.setColumnFooters(true);
    QTest::qWait(0);
    grid.Columns(0).setVisible(false);

    QTest::mouseClick(view->horizontalHeader()->viewport(), Qt::LeftButton, {}, heading(2));
    EXPECT_EQ(heads.count(), 1);
    EXPECT_EQ(heads.last().first().toInt(), 2);
    EXPECT_EQ(view->selectionModel()->selectedIndexes().size(), 1); // no column selected by the way

    QTest::mouseClick(footer, Qt::LeftButton, {}, footer->columnRect(1).center());
    EXPECT_EQ(foots.count(), 1);
    EXPECT_EQ(foots.last().first().toInt(), 1);
    // Let go elsewhere, or beside the columns, it is no click.
    QTest::mousePress(footer, Qt::LeftButton, {}, footer->columnRect(1).center());
    QTest::mouseRelease(footer, Qt::LeftButton, {}, footer->columnRect(2).center());
    QTest::mouseClick(footer, Qt::LeftButton, {}, QPoint(footer->columnRect(2).right() + 20, 4));
    EXPECT_EQ(foots.count(), 1);
}

TEST_F(GridInput, HeadingsAndFootersAreReachedByKeys) {
    QSignalSpy heads(&grid, &TDBGrid::HeadClick);
    QSignalSpy foots(&grid, &TDBGrid::FootClick);
    view->setFocus();
    view->setCurrentIndex(view->model()->index(1, 0));
    QTest::keyClick(view, Qt::Key_Right);
    QTest::keyClick(view, Qt::Key_Up, Qt::AltModifier);
    ASSERT_EQ(heads.count(), 1);
    EXPECT_EQ(heads.last().first().toInt(), 1);
    EXPECT_EQ(view->currentIndex().row(), 1);

    QTest::keyClick(view, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(foots.count(), 0); // none shown
    grid.setColumnFooters(true);
    QTest::keyClick(view, Qt::Key_Down, Qt::AltModifier);
    ASSERT_EQ(foots.count(), 1);
    EXPECT_EQ(foots.last().first().toInt(), 1);
}

TEST_F(GridInput, AsksForTheTipOfThePlaceUnderTheMouse) {
    grid.setColumnFooters(true);
    grid.setToolTip("of the grid");
    QTest::qWait(0);
    QStringList asked;
    grid.setCellTipFetcher([&](GridArea area, int column) {
        asked << QString("%1:%2").arg(int(area)).arg(column);
        return area == GridArea::Cell ? QString() : QString(" Order by '%1' ").arg(column);
    });
    EXPECT_EQ(tipAt(view->horizontalHeader()->viewport(), heading(1)), "of the grid");
    EXPECT_TRUE(asked.isEmpty());
    grid.setCellTips(2);
    EXPECT_EQ(tipAt(view->horizontalHeader()->viewport(), heading(1)), " Order by '1' ");
    EXPECT_EQ(tipAt(footer, footer->columnRect(2).center()), " Order by '2' ");
    EXPECT_EQ(tipAt(view->viewport(), cell(1, 0)), "of the grid");
    EXPECT_EQ(tipAt(view->viewport(), QPoint(view->viewport()->width() - 2, 4)), "of the grid");
    EXPECT_EQ(asked, QStringList({"0:1", "2:2", "1:0", "1:-1"}));
}

TEST_F(GridInput, KeysMoveTheCurrentCell) {
    const struct {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        int row;
        int column;
    } steps[] = {{Qt::Key_Down, Qt::NoModifier, 1, 0},     {Qt::Key_Right, Qt::NoModifier, 1, 1},
                 {Qt::Key_End, Qt::NoModifier, 1, 2},      {Qt::Key_Home, Qt::NoModifier, 1, 0},
                 {Qt::Key_Up, Qt::NoModifier, 0, 0},       {Qt::Key_End, Qt::ControlModifier, 199, 2},
                 {Qt::Key_Home, Qt::ControlModifier, 0, 0}};
    for (const auto &step : steps) {
        QTest::keyClick(view, step.key, step.modifiers);
        EXPECT_EQ(view->currentIndex().row(), step.row) << int(step.key);
        EXPECT_EQ(view->currentIndex().column(), step.column) << int(step.key);
        EXPECT_EQ(source.recordset()->AbsolutePosition(), step.row) << int(step.key);
    }
    QTest::keyClick(view, Qt::Key_PageDown);
    EXPECT_GT(grid.Row(), 4);
    QTest::keyClick(view, Qt::Key_PageUp);
    EXPECT_EQ(grid.Row(), 0);
}

TEST_F(GridInput, EnterAndDoubleClickOnARow) {
    QSignalSpy enters(&grid, &TDBGrid::EnterPressed);
    QSignalSpy doubles(&grid, &TDBGrid::DblClick);
    QTest::keyClick(view, Qt::Key_Return);
    QTest::keyClick(view, Qt::Key_Enter);
    EXPECT_EQ(enters.count(), 2);
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, cell(2, 1));
    EXPECT_EQ(doubles.count(), 1);
    source.setRecordset(madeRecordset(1));
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, QPoint(20, view->viewport()->height() - 4));
    EXPECT_EQ(doubles.count(), 1);
}

TEST_F(GridInput, CopiesTheSelectionForASpreadsheet) {
    const auto rows = std::make_shared<MadeRows>(10);
    rows->put(1, 2, "two\r\nlines, \"quoted\"");
    rows->put(2, 0, QVariant());
    source.setRecordset(std::make_shared<Recordset>(rows));
    grid.Columns(1).setVisible(false);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, cell(1, 0));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::ShiftModifier, cell(2, 2));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::ControlModifier, cell(4, 2));
    QTest::keyClick(view, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(),
              "name 1\t\"two\nlines, \"\"quoted\"\"\"\n\tdate 2\n\tdate 4");

    // A click on a record selector takes the row.
    QHeaderView *selectors = view->verticalHeader();
    QTest::mouseClick(selectors->viewport(), Qt::LeftButton, {},
                      QPoint(4, selectors->sectionViewportPosition(3) + 4));
    QTest::keyClick(view, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "name 3\tdate 3");
    EXPECT_EQ(source.recordset()->AbsolutePosition(), 3);
}

TEST_F(GridInput, TheMenuCopiesWithHeadings) {
    grid.Columns(0).setCaption("Rp0,2 \r\n\r\n[MPa]\r\nmin");
    grid.Columns(1).setVisible(false);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, cell(1, 0));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::ShiftModifier, cell(2, 2));
    const QString expected = "Rp0,2 [MPa] min\tdate\nname 1\tdate 1\nname 2\tdate 2";
    QTest::keyClick(view, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), expected);

    QApplication::clipboard()->clear();
    EXPECT_EQ(chosenInMenu(Qt::Key_H),
              QStringList({"Copy: Ctrl+C", "Copy with Headings: Ctrl+Shift+C", "Select All: Ctrl+A"}));
    EXPECT_EQ(QApplication::clipboard()->text(), expected);
}

TEST_F(GridInput, TheMenuSavesForWhoeverDoesIt) {
    const auto pressKeys = [this] {
        window.activateWindow(); // without a window manager a menu leaves no window active
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        QTest::keyClick(view, Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    };
    int first = 0;
    int second = 0;
    grid.setSaver([&] {
        ++first;
        grid.setSaver([&second] { ++second; });
    });
    EXPECT_EQ(chosenInMenu(Qt::Key_S).last(), "Save Table As...: Ctrl+Shift+S");
    EXPECT_EQ(chosenInMenu(Qt::Key_S).size(), 4);
    pressKeys();
    EXPECT_EQ(first, 1);
    EXPECT_EQ(second, 2);
    grid.setSaver({});
    pressKeys();
    EXPECT_EQ(chosenInMenu(Qt::Key_S).size(), 3);
    EXPECT_EQ(second, 2);
}

TEST_F(GridInput, ACellDragCarriesTheGridsNameFromTheRowUnderTheMouse) {
    const auto drag = [this]() -> QDrag * {
        QTest::mousePress(view->viewport(), Qt::LeftButton, {}, cell(3, 1));
        QTest::mouseMove(view->viewport(), cell(4, 1) + QPoint(40, 20));
        QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, cell(4, 1) + QPoint(40, 20));
        return grid.findChild<QDrag *>(); // off the screen it ends at once, but lives to the next event
    };
    EXPECT_EQ(drag(), nullptr);
    EXPECT_EQ(view->selectionModel()->selectedIndexes().size(), 3);
    grid.setRow(0);
    grid.setCellDrag(true);
    QDrag *started = drag();
    ASSERT_NE(started, nullptr);
    EXPECT_EQ(source.recordset()->AbsolutePosition(), 3);
    EXPECT_EQ(view->selectionModel()->selectedIndexes().size(), 1);

    QSignalSpy dropped(&drops, &DropTarget::Dropped);
    QSignalSpy onGrid(&grid, &TDBGrid::Dropped);
    const auto drop = [](QWidget *place, const QMimeData *data) {
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(place, &enter);
        if (!enter.isAccepted()) return false;
        QDropEvent event({5, 5}, Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(place, &event);
        return event.isAccepted();
    };
    EXPECT_EQ(started->mimeData()->formats().size(), 1);
    EXPECT_TRUE(drop(&target, started->mimeData()));
    EXPECT_TRUE(drop(&grid, started->mimeData()));
    QMimeData fromElsewhere;
    fromElsewhere.setText("tdbSource");
    EXPECT_FALSE(drop(&target, &fromElsewhere));
    ASSERT_EQ(dropped.count(), 1);
    EXPECT_EQ(dropped.first().first().toString(), "tdbSource");
    EXPECT_EQ(onGrid.count(), 1);
}
