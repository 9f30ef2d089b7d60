// A document's pages and blocks as bytes: what comes out is what went in, and it takes little room.
#include <gtest/gtest.h>

#include "platform/printing/packed_list.h"
#include "platform/printing/report.h"
#include "tests/printing/test_report.h"

using namespace Printing;

namespace {

Picture dot() {
    return Picture::record([](QPainter &painter, const QSizeF &) { painter.drawPoint(0, 0); }, {10, 10});
}

TextLine line(const QString &text, int start, int left, int top) {
    return {text, start, left, top, 1200, 210, 170};
}

Element plainText() {
    Element element;
    element.box = QRect(-120, 16838, 10200, 0);
    element.text = "plain";
    element.lines = {line("plain", 0, -3, 0)};
    return element;
}

/// No member has the value of a new element.
Element everything() {
    Element element = plainText();
    element.Alignment = 1;
    element.VerticalAlignment = 2;
    element.BackStyle = 1;
    element.BackColor = QColor(1, 2, 3, 4);
    element.ForeColor = QColor::fromRgbF(0.1F, 0.2F, 0.3F);
    element.Font = {"Courier", 7.5, true, true};
    element.Border = {1, 0, 2, 0};
    element.HeadingLevel = 3;
    element.KeepWithNext = true;
    element.OutlineText = "of the outline";
    element.text = QString::fromUtf8("Größe ≤ 5 µm\nα₂ and 100 °C").repeated(20);
    // a part of the text; with an ellipsis; longer than what is left; from behind the text
    element.lines = {line(element.text.mid(7, 5), 7, 60, 25), line(QString::fromUtf8("Größ…"), 0, 60, 235),
                     line("Cx", int(element.text.size()) - 1, 60, 445), line("y", 100000, 60, 655),
                     line(QString(), 3, 0, 0)};
    element.pageValue = PageValue::PageTotal;
    element.isRule = true;
    element.picture = dot();
    element.pictureSize = QSize(300, 0);
    element.alternativeText = QString::fromUtf8("αₘ");
    return element;
}

void expectSame(const Element &a, const Element &b) {
    EXPECT_TRUE(a.Alignment == b.Alignment && a.VerticalAlignment == b.VerticalAlignment);
    EXPECT_TRUE(a.BackStyle == b.BackStyle && a.BackColor == b.BackColor && a.ForeColor == b.ForeColor);
    EXPECT_TRUE(a.Font == b.Font && a.Border == b.Border);
    EXPECT_TRUE(a.HeadingLevel == b.HeadingLevel && a.KeepWithNext == b.KeepWithNext);
    EXPECT_EQ(a.OutlineText, b.OutlineText);
    EXPECT_EQ(a.box, b.box);
    EXPECT_EQ(a.text, b.text);
    ASSERT_EQ(a.lines.size(), b.lines.size());
    for (std::size_t i = 0; i < a.lines.size(); ++i) {
        const TextLine &one = a.lines[i];
        const TextLine &other = b.lines[i];
        EXPECT_EQ(one.text, other.text) << i;
        EXPECT_TRUE(one.start == other.start && one.left == other.left && one.top == other.top) << i;
        EXPECT_TRUE(one.width == other.width && one.height == other.height && one.ascent == other.ascent);
    }
    EXPECT_TRUE(a.pageValue == b.pageValue && a.isRule == b.isRule);
    EXPECT_TRUE(a.picture.isSame(b.picture));
    EXPECT_EQ(a.pictureSize, b.pictureSize);
    EXPECT_EQ(a.alternativeText, b.alternativeText);
}

} // namespace

TEST(PackedList, GivesElementsAsTheyWere) {
    std::vector<Element> elements{plainText(), everything(), Element(), plainText(), everything()};
    // each member that makes a look of its own, alone
    for (int i = 0; i < 12; ++i)
        elements.push_back(plainText());
    elements[5].Alignment = elements[6].VerticalAlignment = elements[7].BackStyle = 1;
    elements[8].BackColor.setAlpha(254);
    elements[9].ForeColor = QColor(Qt::darkBlue);
    elements[10].Font.Size = 9.5;
    elements[11].Font.Italic = elements[12].KeepWithNext = true;
    elements[13].Border.LeftStyle = elements[14].HeadingLevel = 1;
    elements[15].OutlineText = "a";
    elements[16].OutlineText = "b";
    PackedList<Element> list;
    for (const Element &element : elements)
        list.append(element);
    ASSERT_EQ(list.size(), elements.size());
    for (std::size_t i = elements.size(); i-- > 0;) {
        SCOPED_TRACE(i);
        expectSame(list[i], elements[i]);
    }

    PackedList<Element> moved;
    moved.append(elements[1], QPoint(853, -20));
    elements[1].box.translate(853, -20);
    expectSame(moved[0], elements[1]);
}

TEST(PackedList, GivesBlocksAsTheyWere) {
    Block table{Block::Kind::Table, {Row{{plainText(), everything()}}, Row{{everything()}}, Row{}}};
    table.rows[0].isHeading = table.rows[0].ruleBelow = true;
    table.rows[1].keepWithNext = table.rows[1].ruleAbove = true;
    PackedList<Block> list;
    list.append({Block::Kind::PageBreak, {}});
    list.append(table);
    const std::vector<Block> blocks = list;
    ASSERT_EQ(blocks.size(), 2U);
    EXPECT_TRUE(blocks[0].kind == Block::Kind::PageBreak && blocks[0].rows.empty());
    EXPECT_EQ(blocks[1].kind, Block::Kind::Table);
    ASSERT_EQ(blocks[1].rows.size(), 3U);
    for (std::size_t i = 0; i < 3; ++i) {
        const Row &row = blocks[1].rows[i];
        const Row &packed = table.rows[i];
        EXPECT_TRUE(row.isHeading == packed.isHeading && row.keepWithNext == packed.keepWithNext &&
                    row.ruleAbove == packed.ruleAbove && row.ruleBelow == packed.ruleBelow)
            << i;
        ASSERT_EQ(row.cells.size(), packed.cells.size());
        for (std::size_t cell = 0; cell < row.cells.size(); ++cell)
            expectSame(row.cells[cell], packed.cells[cell]);
    }
}

/// An element alone, with one line, takes more than 350 bytes as it is.
TEST(PackedList, APrintedPageTakesLittleRoom) {
    const auto report = stationReport(600);
    const Document &document = report->Run();
    ASSERT_GT(document.pages.size(), 10U);
    qsizetype bytes = 0;
    std::size_t elements = 0;
    for (const Page &page : document.pages) {
        bytes += page.elements.bytes();
        elements += page.elements.size();
    }
    EXPECT_LE(bytes, qsizetype(elements) * 60);
    EXPECT_LE(document.blocks.bytes(), qsizetype(elements) * 60);
}
