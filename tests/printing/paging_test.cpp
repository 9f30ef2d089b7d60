// What stands on which page, and where.
#include <gtest/gtest.h>

#include "tests/printing/locate.h"
#include "tests/printing/test_report.h"

using namespace Printing;

namespace {

constexpr int Top = 850;
constexpr int Left = 853;
constexpr int RowHeight = 283;
constexpr int RowsOnPage = (16838 - 2 * 850) / RowHeight; // 53

// A detail section of one bordered cell that shows the number of the row.
Section &addRows(TestReport &report, int count) {
    report.countRows(count);
    Section &detail = report.AddSection(SectionType::Detail, "Detail");
    detail.Height = RowHeight;
    auto &cell = place<Field>(detail, "cell", {0, 0, 1155, RowHeight});
    cell.DataField = "n";
    cell.Border = BorderStyles::all();
    return detail;
}

Section &addTextSection(Report &report, SectionType type, const QString &name, int height) {
    Section &section = report.AddSection(type, name);
    section.Height = height;
    place<Label>(section, "lbl" + name, {0, 0, 3000, 250}, name);
    return section;
}

std::shared_ptr<TestReport> table(const QString &title, int rows) {
    auto report = std::make_shared<TestReport>();
    addTextSection(*report, SectionType::GroupHeader, title, 400).RepeatOnNewPage = true;
    addRows(*report, rows);
    return report;
}

SubReport &addSubReport(Section &section, const QString &name, const QRect &box,
                        std::shared_ptr<Report> report) {
    auto &control = section.Controls.Add<SubReport>(name);
    control.Left = box.left();
    control.Top = box.top();
    control.Width = box.width();
    control.Height = box.height();
    control.Object = std::move(report);
    return control;
}

QStringList textsOf(const Page &page) {
    QStringList texts;
    for (const Element &element : page.elements)
        texts += element.text;
    return texts;
}

TEST(Paging, RowsFillAPageToItsLastTwipAndAreNeverCut) {
    TestReport report;
    addRows(report, RowsOnPage + 2);
    report.Run();
    ASSERT_EQ(report.document().pages.size(), 2u);
    const std::vector<Element> &first = report.document().pages[0].elements;
    ASSERT_EQ(int(first.size()), RowsOnPage);
    EXPECT_EQ(first[52].box, QRect(Left, Top + 52 * RowHeight, 1155, RowHeight));
    EXPECT_EQ(locate(report.document(), "54").box.top(), Top);
}

TEST(Paging, TheHeadingOfRowsIsRepeatedButNotAboveNotes) {
    TestReport report;
    addTextSection(report, SectionType::GroupHeader, "Heading", 400).RepeatOnNewPage = true;
    addRows(report, 2 * RowsOnPage);
    addTextSection(report, SectionType::GroupFooter, "Notes", 14500).KeepTogether = true;
    addTextSection(report, SectionType::GroupFooter, "Block", 1000).BelowHeadings = true;
    const Document &document = report.Run();
    ASSERT_EQ(document.pages.size(), 5u);
    const int withHeading = (16838 - 2 * 850 - 400) / RowHeight;
    EXPECT_EQ(textsOf(document.pages[1]).mid(0, 2),
              QStringList({"Heading", QString::number(withHeading + 1)}));
    EXPECT_EQ(locate(document, QString::number(withHeading + 1)).box.top(), Top + 400);
    EXPECT_EQ(textsOf(document.pages[2])[0], "Heading");
    EXPECT_EQ(textsOf(document.pages[3]), QStringList({"Notes"}));
    EXPECT_EQ(textsOf(document.pages[4]), QStringList({"Heading", "Block"}));
    // The content itself holds each heading once.
    int headings = 0;
    for (const Block &block : document.blocks)
        for (const Row &row : block.rows)
            headings += row.cells[0].text == "Heading";
    EXPECT_EQ(headings, 1);
}

TEST(Paging, AHeadingNeverStandsAloneAtThePageFoot) {
    // The space above leaves room for the heading, or for the heading and the first row.
    for (const bool fits : {false, true}) {
        TestReport report;
        Section &header = report.AddSection(SectionType::ReportHeader, "rh");
        header.Height = 16838 - 2 * 850 - 400 - 500 - (fits ? RowHeight : RowHeight - 1);
        place<Label>(header, "lbl", {0, 0, 3000, 250}, "above");
        Section &group = report.AddSection(SectionType::GroupHeader, "gh");
        group.Height = 800;
        place<Label>(group, "lbl", {0, 0, 3000, 250}, "Group");
        addSubReport(group, "sub", {0, 500, 5000, 300}, table("Table", 3));
        const Document &document = report.Run();
        const int expected = fits ? 0 : 1;
        EXPECT_EQ(locate(document, "Group").page, expected);
        EXPECT_EQ(locate(document, "Table").page, expected);
        EXPECT_EQ(locate(document, "1").page, expected);
        EXPECT_EQ(locate(document, "2").page, 1);
        // Where the table goes over, its own heading is repeated and the group's is not.
        EXPECT_EQ(textsOf(document.pages[1])[0], fits ? "Table" : "Group");
        EXPECT_EQ(locate(document, "2").box.top(), fits ? Top + 400 : Top + 500 + 400 + RowHeight);
    }
}

TEST(Paging, AHeadingWithNothingOfItsOwnGoesWithTheNextSection) {
    for (const bool fits : {false, true}) {
        TestReport report;
        addTextSection(report, SectionType::ReportHeader, "above",
                       16838 - 2 * 850 - 500 - 300 - 400 - (fits ? RowHeight : RowHeight - 1));
        Section &group = addTextSection(report, SectionType::GroupHeader, "Group", 500);
        addSubReport(group, "none", {0, 500, 5000, 0}, nullptr);
        Section &next = report.AddSection(SectionType::GroupHeader, "next");
        addSubReport(next, "sub", {0, 300, 5000, 0}, table("Table", 3));
        const Document &document = report.Run();
        EXPECT_EQ(locate(document, "Group").page, fits ? 0 : 1);
        EXPECT_EQ(locate(document, "Table").page, fits ? 0 : 1);
    }
}

TEST(Paging, SubReportsRunInTheOrderOfTheirControlsAndGoOverPages) {
    TestReport report;
    Section &detail = report.AddSection(SectionType::Detail, "Detail");
    detail.Height = 1000;
    QStringList started;
    const auto sub = [&](const QString &title, int rows) {
        auto inner = table(title, rows);
        inner->onStart = [&started, title] { started += title; };
        return inner;
    };
    addSubReport(detail, "one", {100, 0, 5000, 300}, sub("First", 60));
    detail.Controls.Add<PageBreak>("break").Top = 300;
    addSubReport(detail, "two", {0, 300, 5000, 300}, sub("Second", 2));
    place<Label>(detail, "after", {0, 700, 3000, 250}, "after");
    const Document &document = report.Run();

    EXPECT_EQ(started, QStringList({"First", "Second"}));
    ASSERT_EQ(document.pages.size(), 3u);
    EXPECT_EQ(locate(document, "First").box.topLeft(), QPoint(Left + 100, Top));
    EXPECT_EQ(locate(document, "60").page, 1);
    EXPECT_EQ(locate(document, "60").box.left(), Left + 100);
    EXPECT_EQ(locate(document, "Second").page, 2);
    EXPECT_EQ(locate(document, "Second").box.topLeft(), QPoint(Left, Top));
    EXPECT_EQ(locate(document, "after").box.top(), Top + 400 + 2 * RowHeight + 100);
}

TEST(Paging, PageHeaderAndFooterFrameEachPageAndKnowTheTotal) {
    TestReport report;
    report.PageSetup = {10000, 8000, 500, 600, 500, 700};
    addTextSection(report, SectionType::PageHeader, "Header", 300);
    Section &footer = report.AddSection(SectionType::PageFooter, "Footer");
    footer.Height = 400;
    place<Field>(footer, "txtPage", {0, 100, 1000, 250}).Summary = PageValue::PageNumber;
    auto &total = place<Field>(footer, "txtTotal", {1000, 100, 1000, 250});
    total.Summary = PageValue::PageTotal;
    total.Alignment = 1;
    addRows(report, 3 * ((8000 - 600 - 700 - 300 - 400) / RowHeight));
    const Document &document = report.Run();
    ASSERT_EQ(document.pages.size(), 3u);
    EXPECT_EQ(document.printWidth(), 9000);
    for (int page = 0; page < 3; ++page) {
        const std::vector<Element> &elements = document.pages[std::size_t(page)].elements;
        EXPECT_EQ(elements[0].box.topLeft(), QPoint(500, 600));
        EXPECT_EQ(elements[1].text, QString::number(page + 1));
        EXPECT_EQ(elements[1].box.topLeft(), QPoint(500, 8000 - 700 - 400 + 100));
        EXPECT_EQ(elements[2].text, "3");
        EXPECT_EQ(elements[2].lines[0].left + elements[2].lines[0].width, 1000);
        EXPECT_EQ(elements[3].box.top(), 600 + 300);
    }
}

TEST(Paging, ALongTextIsBrokenBetweenLinesWithoutLosingOne) {
    TestReport report;
    QStringList lines;
    for (int i = 0; i < 100; ++i)
        lines += QStringLiteral("line %1").arg(i);
    Section &section = report.AddSection(SectionType::GroupFooter, "Notes");
    place<Label>(section, "title", {0, 12000, 3000, 250}, "Notes").HeadingLevel = 2;
    place<Field>(section, "text", {0, 12300, 9000, 250}, lines.join("\r\n"));
    const Document &document = report.Run();
    ASSERT_EQ(document.pages.size(), 3u);
    QStringList printed;
    for (const Page &page : document.pages)
        for (const Element &element : page.elements) {
            EXPECT_LE(element.box.top() + element.box.height(), 16838 - 850);
            if (element.HeadingLevel > 0) continue;
            EXPECT_GE(element.lines.size(), 2u);
            for (const TextLine &line : element.lines) {
                printed += line.text;
                EXPECT_EQ(element.text.mid(line.start, line.text.size()), line.text);
                EXPECT_LE(line.top + line.height, element.box.height());
            }
        }
    EXPECT_EQ(printed, lines);
}

TEST(Paging, AKeptSectionMovesAsAWholeAndAHeadingGoesWithItsText) {
    struct Case {
        bool keepTogether;
        int room; // in lines, below the heading
        int page; // of heading and text's first line
    };
    for (const Case &c : {Case{true, 5, 1}, Case{false, 5, 0}, Case{false, 1, 1}}) {
        TestReport report;
        addTextSection(report, SectionType::ReportHeader, "above", 16838 - 1700 - 300 - 40 - c.room * 224);
        Section &notes = report.AddSection(SectionType::GroupFooter, "Notes");
        notes.KeepTogether = c.keepTogether;
        place<Label>(notes, "title", {0, 0, 3000, 250}, "Notes").HeadingLevel = 2;
        place<Field>(notes, "text", {0, 300, 9000, 250}, QStringList(8, "line").join("\n"));
        const Document &document = report.Run();
        EXPECT_EQ(locate(document, "Notes").page, c.page) << c.keepTogether << c.room;
        EXPECT_EQ(locate(document, "line").page, c.page) << c.keepTogether << c.room;
        EXPECT_EQ(document.headings[0].page, c.page);
    }
}

TEST(Paging, AKeptTableMovesAsAWholeUnlessThatLeavesMuchOfThePageEmpty) {
    struct Case {
        bool keepTogether;
        int rows;
        int rowsThatFit;
        int page; // of the first row
    };
    for (const Case &c :
         {Case{true, 3, 2, 1}, Case{false, 3, 2, 0}, Case{true, 30, 10, 1}, Case{true, 30, 18, 0}}) {
        TestReport report;
        addTextSection(report, SectionType::ReportHeader, "above",
                       16838 - 2 * 850 - 300 - 100 - 400 - c.rowsThatFit * RowHeight);
        Section &place = report.AddSection(SectionType::GroupHeader, "place");
        place.KeepTogether = c.keepTogether;
        ::place<Label>(place, "group", {0, 100, 3000, 250}, "Group").HeadingLevel = 1;
        addSubReport(place, "sub", {0, 400, 5000, 0}, table("Table", c.rows));
        const Document &document = report.Run();
        EXPECT_EQ(locate(document, "Group").page, c.page) << c.rows << ' ' << c.rowsThatFit;
        EXPECT_EQ(locate(document, "1").page, c.page);
        EXPECT_EQ(locate(document, QString::number(c.rows)).page, 1);
        // The distance above is lost where the section begins the page.
        EXPECT_EQ(locate(document, "Group").box.top() == Top, c.page == 1);
    }
}

TEST(Paging, ATableCutWithinASectionHasItsTitleAndCaptionsOnEachPage) {
    TestReport report;
    Section &block = report.AddSection(SectionType::ReportHeader, "block");
    block.KeepTogether = true;
    place<Label>(block, "title", {0, 0, 5000, 270}, "Title").KeepWithNext = true;
    for (int column = 0; column < 2; ++column) {
        const QRect box(column * 1155, 300, 1155, 400);
        auto &caption = place<Label>(block, QStringLiteral("c%1").arg(column), box, "caption");
        caption.Border = BorderStyles::all();
        caption.BackStyle = 1;
        for (int row = 0; row < 120; ++row)
            place<Field>(block, QStringLiteral("%1_%2").arg(column).arg(row),
                         {box.left(), 700 + row * RowHeight, 1155, RowHeight}, QString::number(row))
                .Border = BorderStyles::all();
    }
    report.Run();
    const auto &pages = report.document().pages;
    ASSERT_EQ(pages.size(), 3U);
    QStringList rows;
    for (const Page &page : pages) {
        const QStringList texts = textsOf(page);
        EXPECT_EQ(texts.mid(0, 3), QStringList({"Title", "caption", "caption"}));
        EXPECT_EQ(page.elements[0].box.top(), Top);
        EXPECT_EQ(page.elements[1].box, QRect(Left, Top + 300, 1155, 400));
        EXPECT_EQ(page.elements[3].box.top(), Top + 700);
        rows += texts.mid(3);
    }
    EXPECT_EQ(rows.size(), 240);
    EXPECT_EQ(rows.last(), "119");
    EXPECT_EQ(report.document().blocks[1].rows.size(), 121U); // the files have them once
}

TEST(Paging, ARowAsHighAsAPageGoesWithoutItsCaptions) {
    TestReport report;
    Section &block = report.AddSection(SectionType::ReportHeader, "block");
    const int highest = 16838 - 2 * 850;
    const std::pair<const char *, QRect> cells[] = {{"caption", {0, 0, 1155, 400}},
                                                    {"first", {0, 400, 1155, RowHeight}},
                                                    {"high", {0, 400 + RowHeight, 1155, highest - 200}}};
    for (const auto &[text, box] : cells) {
        auto &cell = place<Label>(block, text, box, text);
        cell.Border = BorderStyles::all();
        cell.BackStyle = box.top() == 0 ? 1 : 0;
    }
    const auto &pages = report.Run().pages;
    ASSERT_EQ(pages.size(), 2U);
    ASSERT_EQ(textsOf(pages[1]), QStringList({"high"}));
    EXPECT_EQ(pages[1].elements[0].box.top(), Top);
}

TEST(Paging, TheOutlineMayCallAHeadingByAnotherName) {
    TestReport report;
    Section &section = addTextSection(report, SectionType::ReportHeader, "Title", 300);
    auto &title = section.Controls.Item<Label>("lblTitle");
    title.HeadingLevel = 1;
    title.OutlineText = "Name";
    const Document &document = report.Run();
    EXPECT_EQ(document.headings[0].text, "Name");
    EXPECT_EQ(locate(document, "Title").page, 0);
}

TEST(Paging, ARowHigherThanAPageIsBrokenRatherThanLost) {
    TestReport report;
    Section &detail = addRows(report, 2);
    report.onFormat = [&](Section &section) {
        if (&section == &detail && report.Fields("n") == 1)
            detail.Controls.Item<Field>("cell").Text = QStringList(90, "x").join("\n");
    };
    const Document &document = report.Run();
    ASSERT_EQ(document.pages.size(), 2u);
    std::size_t lines = 0;
    for (const Page &page : document.pages)
        lines += page.elements[0].lines.size();
    EXPECT_EQ(lines, 90u);
    EXPECT_EQ(locate(document, "2").page, 1);
}

TEST(Paging, DistanceAtAPageFootIsLostAndMakesNoEmptyPage) {
    TestReport report;
    addRows(report, RowsOnPage);
    report.AddSection(SectionType::GroupFooter, "space").Height = 5000;
    report.Run();
    EXPECT_EQ(report.document().pages.size(), 1u);
}

} // namespace
