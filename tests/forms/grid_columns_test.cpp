// A grid's columns, headings and rows on the screen.
#include <gtest/gtest.h>

#include <QFile>
#include <QHeaderView>
#include <QImage>
#include <QSignalSpy>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

#include "platform/forms/legible_text.h"
#include "platform/runtime/runtime_error.h"
#include "platform/runtime/x_array_db.h"
#include "tests/forms/grid_fixture.h"

namespace {

class ArrayGrid : public ::testing::Test {
protected:
    ArrayGrid()
        : array(std::make_shared<XArrayDB>()) {
        array->ReDim(1, 4, 0, 2);
        for (int row = 1; row <= 4; ++row)
            for (int column = 0; column <= 2; ++column)
                array->Set(row, column, QString("%1/%2").arg(row).arg(column));
        addThreeColumns(grid);
        grid.setArray(array);
        grid.Rebind();
        grid.resize(400, 300);
        grid.show();
        view = grid.findChild<QTableView *>();
    }

    QColor cellColour(int row, int column) {
        const QImage image = view->viewport()->grab().toImage();
        return image.pixelColor(view->visualRect(view->model()->index(row, column)).bottomRight() -
                                QPoint(6, 4));
    }
    QImage heading(int column) {
        QHeaderView *header = view->horizontalHeader();
        const QRect section(header->sectionViewportPosition(column), 0, header->sectionSize(column),
                            header->height());
        return header->viewport()->grab(section).toImage();
    }

    std::shared_ptr<XArrayDB> array;
    TDBGrid grid;
    QTableView *view = nullptr;
};

} // namespace

TEST_F(ArrayGrid, ShowsTheArrayFromItsLowerBounds) {
    EXPECT_EQ(grid.RowCount(), 4);
    EXPECT_EQ(grid.CellText(0, 0), "1/0");
    array->Set(2, 1, QVariant());
    EXPECT_EQ(grid.CellText(1, 1), "");
    grid.AddColumn("beyond the array").setWidth(300);
    EXPECT_EQ(grid.CellText(0, 3), "");

    array->ReDim(1, 1, 0, 0); // smaller than what is on show, until the grid is told
    EXPECT_EQ(grid.RowCount(), 4);
    EXPECT_EQ(grid.CellText(3, 2), "");
    grid.grab();
    grid.Refresh();
    EXPECT_EQ(grid.RowCount(), 1);

    grid.setArray(std::make_shared<XArrayDB>());
    grid.Rebind();
    EXPECT_EQ(grid.RowCount(), 0);
}

TEST_F(ArrayGrid, StaysWhereItIsOverNewValuesAndStartsAtTheTopOverNewRows) {
    grid.setRow(2);
    array->Set(3, 0, "new");
    grid.Rebind();
    EXPECT_EQ(grid.Row(), 2);
    EXPECT_EQ(grid.CellText(2, 0), "new");
    array->ReDim(1, 9, 0, 2);
    grid.Rebind();
    EXPECT_EQ(grid.Row(), 0);
}

TEST_F(ArrayGrid, AddsRemovesHidesAndSizesColumns) {
    GridColumn &added = grid.AddColumn("fourth");
    added.setWidth(780);
    EXPECT_EQ(view->columnWidth(3), 52);
    added.setWidth(250);
    EXPECT_EQ(view->columnWidth(3), 17);
    grid.Columns(1).setVisible(false);
    EXPECT_TRUE(view->isColumnHidden(1));
    grid.Columns(1).setWidth(3000);
    EXPECT_TRUE(view->isColumnHidden(1));
    grid.Columns(1).setVisible(true);
    EXPECT_EQ(view->columnWidth(1), 200);
    grid.Columns(1).setWidth(1e38);
    EXPECT_GT(view->columnWidth(1), 100'000);
    grid.Columns(1).setWidth(-1e38);
    EXPECT_LT(view->columnWidth(1), 200);

    grid.RemoveColumn(1);
    EXPECT_EQ(grid.ColumnCount(), 3);
    EXPECT_EQ(grid.Columns(2).Caption(), "fourth");
    EXPECT_EQ(view->columnWidth(2), 17);
    EXPECT_THROW(grid.Columns(3), RuntimeError);
    EXPECT_THROW(grid.RemoveColumn(-1), RuntimeError);
}

TEST_F(ArrayGrid, TellsOfAWidthThatTheUserHasDragged) {
    QSignalSpy resized(&grid, &TDBGrid::ColResize);
    grid.Columns(1).setWidth(1800);
    grid.Columns(2).setVisible(false);
    grid.Columns(2).setVisible(true);
    grid.Rebind();
    EXPECT_EQ(resized.count(), 0);

    QHeaderView *header = view->horizontalHeader();
    const QPoint edge(header->sectionViewportPosition(2) - 1, header->height() / 2);
    QTest::mouseMove(header->viewport(), edge);
    QTest::mousePress(header->viewport(), Qt::LeftButton, {}, edge);
    QTest::mouseMove(header->viewport(), edge + QPoint(30, 0));
    QTest::mouseRelease(header->viewport(), Qt::LeftButton, {}, edge + QPoint(30, 0));
    ASSERT_GE(resized.count(), 1);
    EXPECT_EQ(resized.last().first().toInt(), 1);
    EXPECT_EQ(grid.Columns(1).Width(), 1800 + 450);
}

TEST_F(ArrayGrid, HeadingsHaveRoomForTheirLinesAndPictures) {
    const int line = view->horizontalHeader()->fontMetrics().height();
    const int oneLine = view->horizontalHeader()->height();
    grid.Columns(0).setCaption("Rp0,2 \r\n\r\n[MPa]");
    const int threeLines = view->horizontalHeader()->height();
    EXPECT_GE(threeLines, oneLine + 2 * line);
    grid.Columns(0).setVisible(false);
    EXPECT_EQ(view->horizontalHeader()->height(), oneLine);

    QTemporaryDir folder;
    const QString file = folder.filePath("picture.svg");
    QFile svg(file);
    ASSERT_TRUE(svg.open(QIODevice::WriteOnly));
    svg.write("<svg xmlns='http://www.w3.org/2000/svg' width='40' height='70'>"
              "<rect width='40' height='70' fill='#ff0000'/></svg>");
    svg.close();
    GridColumn &column = grid.Columns(1);
    column.setHeadPicture(file);
    EXPECT_EQ(view->horizontalHeader()->height(), oneLine);
    column.setPicturePosition(HeadPicturePosition::PictureOnly);
    EXPECT_GE(view->horizontalHeader()->height(), 70);
    const QImage picture = heading(1);
    EXPECT_EQ(picture.pixelColor(picture.rect().center()),
              view->palette().color(QPalette::ButtonText)); // whatever colour the file has
    column.setHeadPicture(folder.filePath("missing.svg"));
    EXPECT_EQ(view->horizontalHeader()->height(), oneLine);
}

TEST_F(ArrayGrid, RowsGrowWithTheirText) {
    // as painted
    const auto height = [this](int row) {
        grid.grab();
        return view->rowHeight(row);
    };
    const int oneLine = height(1);
    array->Set(1, 0, "Rp0,2 \r\n\r\n[MPa]");
    array->Set(2, 1, "words that go on beyond the width of their column");
    grid.Rebind();
    EXPECT_GT(height(0), 2 * oneLine);
    EXPECT_EQ(height(1), oneLine);
    grid.Columns(1).setWordWrap(true);
    EXPECT_GT(height(1), 2 * oneLine);
    grid.Columns(1).setWidth(12000);
    EXPECT_EQ(height(1), oneLine);
}

TEST_F(ArrayGrid, AlternatesFromAnOddFirstRow) {
    const QColor green(162, 251, 168);
    const QColor blue(165, 198, 254);
    grid.setEvenRowStyle({green});
    grid.setOddRowStyle({blue});
    EXPECT_EQ(cellColour(0, 2), view->palette().color(QPalette::Base));
    grid.setAlternatingRowStyle(true);
    EXPECT_EQ(cellColour(0, 2), blue);
    EXPECT_EQ(cellColour(1, 2), green);
    EXPECT_EQ(cellColour(2, 2), blue);
    grid.setMarqueeStyle(MarqueeStyle::Row);
    EXPECT_NE(cellColour(0, 2), blue);
    EXPECT_EQ(cellColour(1, 2), green);
}

TEST(LegibleText, KeepsTheThemesColourWhereItCanBeRead) {
    const QColor blue(165, 198, 254);
    const QColor nearlyWhite(240, 240, 240);
    EXPECT_EQ(legibleText(Qt::white, QColor(30, 30, 30)), QColor(30, 30, 30));
    EXPECT_EQ(legibleText(blue, nearlyWhite), QColor(Qt::black));
    EXPECT_EQ(legibleText(QColor(20, 20, 60), QColor(40, 40, 40)), QColor(Qt::white));
    EXPECT_EQ(legibleText(QColor(35, 35, 35), nearlyWhite), nearlyWhite);
}
