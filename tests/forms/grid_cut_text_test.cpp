// Texts that are too wide or too high for their cell or heading, by pixels.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QImage>
#include <QScrollBar>
#include <QTableView>
#include <QToolTip>

#include "platform/forms/colours.h"
#include "platform/runtime/x_array_db.h"
#include "tests/forms/grid_fixture.h"

namespace {

constexpr double WideColumn = 6000;

/// What differs between two pictures of one size, without the empty space around it.
QImage differing(const QImage &image, const QImage &empty) {
    QImage ink(image.size(), QImage::Format_Grayscale8);
    ink.fill(Qt::white);
    QRect used;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) == empty.pixel(x, y)) continue;
            ink.setPixelColor(x, y, Qt::black);
            used |= QRect(x, y, 1, 1);
        }
    }
    return used.isEmpty() ? QImage() : ink.copy(used);
}

class CutText : public ::testing::Test {
protected:
    CutText()
        : array(std::make_shared<XArrayDB>()) {
        array->ReDim(1, 2, 0, 1);
        for (int i : {0, 1}) {
            GridColumn &column = grid.AddColumn();
            column.setAlignment(Qt::AlignHCenter);
            column.setHeadAlignment(Qt::AlignHCenter);
            column.setWordWrap(true);
            column.setWidth(i == 0 ? 1200 : 600);
        }
        grid.setRecordSelectors(false);
        grid.setArray(array);
        grid.Rebind();
        grid.resize(500, 400);
        grid.show();
        view = grid.findChild<QTableView *>();
        header = view->horizontalHeader();
    }

    void show(const QString &text, double width) {
        array->Set(1, 0, text);
        grid.Columns(0).setWidth(width);
        grid.Rebind();
        grid.grab(); // the rows take their heights
    }
    QImage cellPicture() {
        return view->viewport()->grab(view->visualRect(view->model()->index(0, 0))).toImage();
    }
    /// The ink of the text in the first cell.
    QImage inkOfCell(const QString &text, double width) {
        show(text, width);
        const QImage full = cellPicture();
        QImage empty(full.size(), full.format());
        empty.fill(full.pixelColor(0, 0));
        return differing(full, empty);
    }
    QImage headingPicture(int column) {
        const QRect section(header->sectionViewportPosition(column), 0, header->sectionSize(column),
                            header->height());
        return header->viewport()->grab(section).toImage();
    }
    /// The ink of the first heading. The second one keeps the height, and with it the ground of both.
    QImage inkOfHeading(const QString &text, double width) {
        grid.Columns(1).setCaption(QString("1234 ").repeated(12)); // one line that wraps
        grid.Columns(0).setWidth(width);
        grid.Columns(0).setCaption(text);
        const QImage full = headingPicture(0);
        grid.Columns(0).setCaption({});
        return differing(full, headingPicture(0));
    }
    QString tipAt(QWidget *place, const QPoint &at) {
        QToolTip::showText({1, 1}, "none", place); // an older tip takes its time to go
        QHelpEvent event(QEvent::ToolTip, at, place->mapToGlobal(at));
        QApplication::sendEvent(place, &event);
        return QToolTip::text() == "none" ? QString() : QToolTip::text();
    }
    QString tipOfCell(int row, int column) {
        return tipAt(view->viewport(), view->visualRect(view->model()->index(row, column)).center());
    }

    std::shared_ptr<XArrayDB> array;
    TDBGrid grid;
    QTableView *view = nullptr;
    QHeaderView *header = nullptr;
};

const char *const Texts[] = {"180", "≤ 16", "(-20)", "490 - 690", "1 250", "Rp0,2", "[MPa]"};

/// Every part of a text that it could be taken for, with its ink where there is room.
QList<QImage> inkOfParts(const QString &text, const std::function<QImage(const QString &)> &ink) {
    QList<QImage> parts;
    for (int from = 0; from < text.size(); ++from)
        for (int length = 1; length <= text.size() - from; ++length)
            if (length < text.size()) parts << ink(text.mid(from, length).trimmed());
    return parts;
}

} // namespace

TEST_F(CutText, NeverLooksAbsentOrLikeAShorterOne) {
    for (const char *utf8 : Texts) {
        const QString text = QString::fromUtf8(utf8);
        const QList<QImage> cells =
            inkOfParts(text, [this](const QString &part) { return inkOfCell(part, WideColumn); });
        const QList<QImage> headings =
            inkOfParts(text, [this](const QString &part) { return inkOfHeading(part, WideColumn); });
        for (double width = 120; width < 1200; width += 30) {
            for (const bool wrap : {true, false}) {
                grid.Columns(0).setWordWrap(wrap);
                const QImage cell = inkOfCell(text, width);
                EXPECT_FALSE(cell.isNull() || cells.contains(cell)) << utf8 << " in a cell of " << width;
            }
            const QImage heading = inkOfHeading(text, width);
            EXPECT_FALSE(heading.isNull() || headings.contains(heading)) << utf8 << " over " << width;
        }
    }
}

TEST_F(CutText, NeverLooksLikeAShorterOneAtTheEdgeOfTheView) {
    const QString text = "123456789";
    const QList<QImage> parts =
        inkOfParts(text, [this](const QString &part) { return inkOfCell(part, WideColumn); });
    grid.Columns(1).setWidth(WideColumn * 2);
    grid.setRow(1);
    for (int left = 40; left < 78; ++left) {
        show(text, 1200);
        view->horizontalScrollBar()->setValue(left);
        const QImage full = cellPicture().copy(left, 0, 80 - left, view->rowHeight(0));
        QImage empty(full.size(), full.format());
        empty.fill(full.pixelColor(0, 0));
        EXPECT_FALSE(parts.contains(differing(full, empty))) << left;
        EXPECT_EQ(tipAt(view->viewport(), QPoint(1, 4)), text) << left;
    }
}

TEST_F(CutText, IsToldWholeByTipAndToAScreenReader) {
    array->Set(2, 0, "16");
    show("a long word: incomprehensibilities", 600);
    grid.Columns(0).setCaption("Rp0,2-limit \r\n\r\n[MPa]");
    EXPECT_EQ(tipOfCell(0, 0), "a long word: incomprehensibilities");
    EXPECT_EQ(tipOfCell(1, 0), "");
    const QPoint heading(10, header->height() / 2);
    EXPECT_EQ(tipAt(header->viewport(), heading), "Rp0,2-limit [MPa]");
    grid.Columns(0).setWidth(WideColumn);
    grid.grab();
    EXPECT_EQ(tipOfCell(0, 0), "");
    EXPECT_EQ(tipAt(header->viewport(), heading), "");

    QAccessibleTableInterface *table = QAccessible::queryAccessibleInterface(view)->tableInterface();
    grid.Columns(0).setWidth(250);
    EXPECT_EQ(table->cellAt(0, 0)->text(QAccessible::Name), "a long word: incomprehensibilities");
    EXPECT_EQ(table->columnDescription(0), "Rp0,2-limit \n\n[MPa]");
}

TEST_F(CutText, TheLinesOfHeadingsStandSideBySide) {
    // where the lines of a heading begin, seen by the rows with ink
    const auto lineTops = [this](int column) {
        const QImage heading = headingPicture(column);
        QList<int> tops;
        bool inLine = false;
        for (int y = 0; y < heading.height(); ++y) {
            bool any = false;
            for (int x = 0; x < heading.width(); ++x)
                any = any || heading.pixelColor(x, y).lightness() < 100;
            if (any && !inLine) tops << y;
            inLine = any;
        }
        return tops;
    };
    grid.AddColumn("H\r\n\r\nH").setWidth(900);
    grid.Columns(0).setCaption("HHH HHH HHH HHH\r\n\r\nH");
    grid.Columns(0).setWidth(600);
    grid.Columns(1).setCaption("H\r\n\r\nH");
    const QList<int> first = lineTops(0);
    ASSERT_EQ(first.size(), 5) << "four lines of words and the unit";
    for (int column : {1, 2})
        EXPECT_EQ(lineTops(column), QList<int>({first.first(), first.last()})) << column;
}
