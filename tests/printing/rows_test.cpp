// Which elements form a row, and which rows a table.
#include <gtest/gtest.h>

#include "tests/printing/test_report.h"

using namespace Printing;

namespace {

// "table a,b/c,d" for two rows of two cells; a heading row ends in "*".
std::string outline(const Document &document) {
    static const QHash<Block::Kind, QString> kinds = {{Block::Kind::Paragraph, "text"},
                                                      {Block::Kind::Table, "table"},
                                                      {Block::Kind::Aligned, "aligned"},
                                                      {Block::Kind::PageBreak, "break"}};
    QStringList result;
    for (const Block &block : document.blocks) {
        QStringList rows;
        for (const Row &row : block.rows) {
            QStringList cells;
            for (const Element &cell : row.cells)
                cells += cell.text + (cell.picture.isNull() ? "" : "+picture");
            rows += cells.join(',') + (row.isHeading ? "*" : "");
        }
        result += (kinds[block.kind] + ' ' + rows.join('/')).trimmed();
    }
    return result.join("; ").toStdString();
}

void addCells(Section &section, const QStringList &texts, int top, int height) {
    for (int i = 0; i < texts.size(); ++i)
        place<Field>(section, texts[i], {i * 1000, top, 1000, height}, texts[i]).Border = BorderStyles::all();
}

void addPicture(Section &section, const QString &name, const QRect &box) {
    auto &image = section.Controls.Add<Image>(name);
    image.Left = box.left();
    image.Top = box.top();
    image.Width = box.width();
    image.Height = box.height();
    QImage red(10, 10, QImage::Format_RGB32);
    red.fill(Qt::red);
    image.Content = Picture::fromImage(red);
}

TEST(Rows, BordersSideBySideInFollowingSectionsAreOneTable) {
    TestReport report;
    Section &head = report.AddSection(SectionType::GroupHeader, "head");
    head.RepeatOnNewPage = true;
    place<Label>(head, "title", {0, 0, 3000, 250}, "title");
    addCells(head, {"A", "B"}, 300, 800);
    report.countRows(3);
    Section &detail = report.AddSection(SectionType::Detail, "Detail");
    addCells(detail, {"a", "b"}, 10, 283);
    place<Label>(detail, "dummy", {0, 0, 10, 10});
    // The second row is a distance without anything to see.
    report.onFormat = [&](Section &section) {
        if (&section != &detail) return;
        const bool isRow = report.Fields("n") != 2;
        detail.Controls.Item("a").Visible = detail.Controls.Item("b").Visible = isRow;
        detail.Controls.Item("dummy").Top = isRow ? 343 : 50;
    };
    Section &foot = report.AddSection(SectionType::GroupFooter, "foot");
    place<Label>(foot, "continued", {0, 0, 3000, 250}, "continued");
    addCells(foot, {"x1", "y1"}, 300, 283);
    addCells(foot, {"x2", "y2"}, 583, 283);
    addCells(foot, {"far", "away"}, 2000, 283);
    EXPECT_EQ(outline(report.Run()),
              "text title*; table A,B*/a,b/a,b; text continued; table x1,y1/x2,y2; table far,away");
}

TEST(Rows, TextsAreReadRowByRowWhateverTheOrderOfTheControls) {
    TestReport report;
    Section &header = report.AddSection(SectionType::ReportHeader, "rh");
    place<Label>(header, "5", {0, 600, 2000, 250}, "alone");
    place<Label>(header, "4", {2000, 320, 2000, 250}, "right");
    place<Label>(header, "2", {2000, 40, 2000, 250}, "value");
    place<Label>(header, "3", {0, 300, 2000, 250}, "left");
    place<Label>(header, "1", {0, 0, 2000, 280}, "name");
    place<Label>(header, "empty", {4000, 0, 2000, 280});
    header.Controls.Add<PageBreak>("break").Top = 900;
    place<Label>(header, "6", {0, 900, 2000, 250}, "next page");
    EXPECT_EQ(outline(report.Run()), "aligned name,value,/left,right; text alone; break; text next page");
    QStringList texts;
    for (const Element &element : report.document().pages[0].elements)
        texts += element.text;
    texts.removeAll(QString());
    EXPECT_EQ(texts, QStringList({"name", "value", "left", "right", "alone"}));
}

TEST(Rows, APictureBelongsToItsCellOrToTheOnlyTextBesideIt) {
    TestReport report;
    Section &header = report.AddSection(SectionType::ReportHeader, "rh");
    place<Label>(header, "heading", {600, 0, 2000, 400}, "heading").HeadingLevel = 1;
    addPicture(header, "icon", {0, 0, 400, 400});
    addPicture(header, "photo", {0, 600, 4000, 1000});
    addCells(header, {"a", "b"}, 2000, 800);
    addPicture(header, "formula", {1100, 2100, 800, 600});
    EXPECT_EQ(outline(report.Run()), "text heading+picture; text +picture; table a,b+picture");
    EXPECT_EQ(report.document().headings.size(), 1u);
}

} // namespace
