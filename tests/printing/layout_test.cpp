// Where controls come to stand in a section, what a report's events may change, and where its rows come from.
#include <gtest/gtest.h>

#include "platform/dao/recordset.h"
#include "platform/dao/recordset_rows.h"
#include "tests/printing/locate.h"
#include "tests/printing/test_report.h"
#include "tests/support/error_of.h"
#include "tests/support/given_rows.h"

using namespace Printing;

namespace {

constexpr int LineHeight = 224; // of Arial 10
constexpr int Padding = 50;     // above and below a text in a frame together

class Layout : public ::testing::Test {
protected:
    Layout()
        : detail(report.AddSection(SectionType::Detail, "Detail")) {}

    QRect boxOf(const QString &text) { return locate(report.document(), text).box.translated(-853, -850); }

    TestReport report;
    Section &detail;
};

TEST_F(Layout, NamesAreUniqueAndUnknownOnesRaiseTheirNumber) {
    detail.Controls.Add<Label>("lblOne");
    EXPECT_EQ(&detail.Controls.Item("LBLONE"), &detail.Controls.Item(0));
    EXPECT_EQ(errorOf([&] { detail.Controls.Add<Field>("lblone"); }), 457);
    EXPECT_EQ(errorOf([&] { detail.Controls.Item("lblTwo"); }), 5);
    EXPECT_EQ(errorOf([&] { detail.Controls.Item(1); }), 9);
    EXPECT_EQ(errorOf([&] { detail.Controls.Item<Field>("lblOne"); }), 13);
    EXPECT_EQ(errorOf([&] { report.AddSection(SectionType::Detail, "detail"); }), 457);
    EXPECT_EQ(errorOf([&] { report.Sections("gfNotes"); }), 5);
    report.Fields.Add("f");
    EXPECT_EQ(errorOf([&] { report.Fields.Add("F"); }), 457);
    EXPECT_EQ(errorOf([&] { report.Fields("g"); }), 5);
}

TEST_F(Layout, WhatStandsBelowAGrowingTextKeepsItsDistance) {
    detail.Height = 1000;
    place<Field>(detail, "grows", {0, 100, 2000, 250}, "one\r\ntwo\rthree\nfour");
    place<Label>(detail, "beside", {2500, 120, 2000, 250}, "beside");
    place<Label>(detail, "below", {0, 400, 2000, 250}, "below");
    place<Label>(detail, "belowBeside", {2500, 420, 2000, 250}, "last");
    Section &footer = report.AddSection(SectionType::ReportFooter, "ReportFooter");
    footer.Height = 250;
    place<Label>(footer, "end", {0, 0, 2000, 250}, "end");
    report.Run();

    const int grown = 4 * LineHeight;
    EXPECT_EQ(boxOf("one"), QRect(0, 100, 2000, grown));
    EXPECT_EQ(boxOf("beside").top(), 120);
    EXPECT_EQ(boxOf("below").top(), 400 + grown - 250);
    EXPECT_EQ(boxOf("last").top(), 420 + grown - 250);
    EXPECT_EQ(boxOf("end").top(), 1000 + grown - 250);
}

TEST_F(Layout, ARowOfCellsGrowsAsOne) {
    for (int i = 0; i < 3; ++i)
        place<Field>(detail, QString::number(i), {i * 1155, 10, 1155, 283},
                     i == 1 ? "wider than its cell" : "cell")
            .Border = BorderStyles::all();
    report.Run();
    for (const Element &element : report.document().pages[0].elements)
        EXPECT_EQ(element.box.height(), 2 * LineHeight + Padding) << element.text.toStdString();
}

TEST_F(Layout, AnEmptyTextAndAnEmptySubReportShrinkAndHiddenControlsTakeNoPlace) {
    detail.Height = 1200;
    place<Field>(detail, "empty", {0, 0, 2000, 300}).CanShrink = true;
    place<Field>(detail, "hidden", {0, 300, 2000, 5000}, "hidden").Visible = false;
    auto &subReport = detail.Controls.Add<SubReport>("sub");
    subReport.Top = 300;
    subReport.Height = 400;
    place<Label>(detail, "below", {0, 800, 2000, 250}, "below");
    report.Run();
    EXPECT_EQ(boxOf("below").top(), 100);
    EXPECT_TRUE(locate(report.document(), "hidden").box.isNull());
}

TEST_F(Layout, ATextThatMayNotGrowEndsInAnEllipsis) {
    auto &tight =
        place<Label>(detail, "tight", {0, 0, 1500, 500}, "a text of many words that needs more room");
    tight.CanGrow = false;
    auto &line = place<Label>(detail, "line", {0, 600, 1500, 250}, "a line that is too long");
    line.CanGrow = false;
    line.WordWrap = false;
    report.Run();
    const std::vector<Element> &elements = report.document().pages[0].elements;
    ASSERT_EQ(elements.size(), 2u);
    EXPECT_EQ(elements[0].lines.size(), 2u);
    EXPECT_EQ(elements[1].lines.size(), 1u);
    for (const Element &element : elements) {
        EXPECT_TRUE(element.lines.back().text.endsWith(QChar(0x2026)));
        EXPECT_LE(element.lines.back().width, 1500);
    }
}

TEST_F(Layout, AWordIsBrokenAtBlanksOnlyAndDrawnSmallerInANarrowCell) {
    struct Case {
        QString text;
        int width;
        QStringList lines;
        double fontSize;
    };
    const QString longWord(70, QLatin1Char('W'));
    const Case cases[] = {{"180", 250, {"180"}, 6.5},
                          {"180", 1155, {"180"}, 10},
                          {"[MPa] min", 350, {"[MPa]", "min"}, 6},
                          {"Cp20, t [J/kgK]", 1155, {"Cp20, t", "[J/kgK]"}, 10},
                          {"of X5CrNi18-10", 1300, {"of", "X5CrNi18-10"}, 10},
                          {"Rm / 100 000 h", 1155, {"Rm /", "100 000 h"}, 10},
                          {"Rm / 100 000 h", 640, {"Rm /", "100 000", "h"}, 7},
                          {longWord, 900, {longWord.left(4)}, 10}};
    for (const Case &given : cases)
        place<Field>(detail, QString::number(detail.Controls.Count()), {0, 0, given.width, 283}, given.text)
            .Border = BorderStyles::all();
    report.Run();
    const auto &elements = report.document().pages[0].elements;
    ASSERT_EQ(elements.size(), std::size(cases));
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        for (qsizetype line = 0; line < cases[i].lines.size(); ++line)
            EXPECT_EQ(elements[i].lines.at(std::size_t(line)).text, cases[i].lines[line]);
        EXPECT_EQ(elements[i].Font.Size, cases[i].fontSize) << qPrintable(cases[i].text);
    }
}

TEST_F(Layout, TextsStandInTheirBoxAsTheAlignmentsSay) {
    const auto add = [this](int alignment, int vertical, bool frame) {
        auto &label =
            place<Label>(detail, QString::number(detail.Controls.Count()), {0, 0, 3000, 1000}, "word");
        label.Alignment = alignment;
        label.VerticalAlignment = vertical;
        if (frame) label.Border = BorderStyles::all();
    };
    add(0, 0, true);
    add(1, 1, false);
    add(2, 2, false);
    report.Run();
    const std::vector<Element> &elements = report.document().pages[0].elements;
    const int width = elements[0].lines[0].width;
    EXPECT_EQ(elements[0].lines[0].left, 60);
    EXPECT_EQ(elements[0].lines[0].top, Padding / 2);
    EXPECT_EQ(elements[1].lines[0].left, 3000 - width);
    EXPECT_EQ(elements[1].lines[0].top, (1000 - LineHeight) / 2);
    EXPECT_EQ(elements[2].lines[0].left, (3000 - width) / 2);
    EXPECT_EQ(elements[2].lines[0].top, 1000 - LineHeight);
}

TEST_F(Layout, EventsComeInTheirOrderAndASubReportRunsWithinItsSection) {
    QStringList log;
    report.log = &log;
    report.countRows(2);
    report.AddSection(SectionType::PageFooter, "PageFooter");
    report.AddSection(SectionType::GroupFooter, "gf");
    report.AddSection(SectionType::ReportHeader, "rh").Visible = false;
    auto inner = std::make_shared<TestReport>();
    inner->log = &log;
    inner->name = "inner ";
    inner->AddSection(SectionType::PageHeader, "ph");
    report.AddSection(SectionType::GroupHeader, "gh").Controls.Add<SubReport>("sub").Object = inner;
    report.onEnd = [&] { EXPECT_EQ(report.document().pages.size(), 1u); };
    report.Run();
    const QStringList expected = {"ReportStart",
                                  "DataInitialize",
                                  "FetchData",
                                  "Format rh",
                                  "Format gh",
                                  "inner ReportStart",
                                  "inner DataInitialize",
                                  "inner FetchData",
                                  "inner FetchData",
                                  "inner ReportEnd",
                                  "Format Detail",
                                  "FetchData",
                                  "Format Detail",
                                  "FetchData",
                                  "Format gf",
                                  "Format PageFooter",
                                  "ReportEnd"};
    EXPECT_EQ(log, expected) << log.join(", ").toStdString();
}

TEST_F(Layout, ControlsAndFieldsAddedAtRunTimeAreFilledAndPlaced) {
    detail.Height = 283;
    report.onInitialize = [this] {
        for (int column = 0; column < 3; ++column) {
            const QString name = QStringLiteral("Field%1").arg(column);
            report.Fields.Add(name);
            place<Field>(detail, "txt" + name, {column * 1155, 10, 1155, 283}).DataField = name.toLower();
        }
    };
    int row = 0;
    report.onFetch = [&](bool &eof) {
        eof = row == 2;
        if (eof) return;
        ++row;
        report.Fields("Field0") = QStringLiteral("row %1").arg(row);
        report.Fields("Field1") = 1.5f * float(row);
        report.Fields("Field2") = QVariant();
    };
    report.onFormat = [&](Section &section) {
        section.Controls.Item("txtField1").Top = row == 2 ? 60 : 10;
        EXPECT_EQ(section.Controls.Item<Field>("txtField2").Text, QString());
    };
    report.Run();
    EXPECT_EQ(boxOf("row 1").topLeft(), QPoint(0, 10));
    EXPECT_EQ(boxOf("1.5").topLeft(), QPoint(1155, 10));
    EXPECT_EQ(boxOf("row 2").topLeft(), QPoint(0, 293 + 10));
    EXPECT_EQ(boxOf("3").topLeft(), QPoint(1155, 293 + 60));
}

class FakeRows : public RecordsetRows {
public:
    const FieldDefinitions &fields() const override {
        static const FieldDefinitions definitions = {{"temp", FieldType::Integer, 0},
                                                     {"16", FieldType::Single, 0}};
        return definitions;
    }
    int count() const override { return 3; }
    QVariant value(int row, int column) const override {
        if (column == 0) return (row + 1) * 100;
        return row == 1 ? QVariant() : QVariant(0.5f * float(row));
    }
    int find(const QString &, int, int) const override { return -1; }
};

TEST_F(Layout, ARecordsetGivesARowForEachRecord) {
    detail.Height = 283;
    place<Field>(detail, "txtTemp", {0, 0, 1000, 283}).DataField = "TEMP";
    place<Field>(detail, "txt16", {1000, 0, 1000, 283}).DataField = "16";
    place<Field>(detail, "txtNone", {2000, 0, 1000, 283}, "template text").DataField = "20";
    report.onInitialize = [this] {
        report.DataSource = std::make_shared<Recordset>(std::make_shared<FakeRows>());
    };
    report.onFormat = [](Section &section) {
        EXPECT_EQ(section.Controls.Item<Field>("txtNone").Text, QString());
    };
    report.Run();
    EXPECT_EQ(boxOf("100").top(), 0);
    EXPECT_EQ(boxOf("200").top(), 283);
    EXPECT_EQ(boxOf("300").top(), 566);
    EXPECT_EQ(boxOf("1").topLeft(), QPoint(1000, 566));
    // The null of the second record.
    EXPECT_EQ(report.document().pages[0].elements[4].text, QString());
}

TEST_F(Layout, AFieldThatCannotBeReadIsAnErrorOnlyWhereAControlShowsIt) {
    auto &shown = place<Field>(detail, "txtName", {0, 0, 1000, 283});
    report.onInitialize = [this] {
        report.DataSource = std::make_shared<Recordset>(givenRows({"photo!", "name"}, {{{}, "a"}}));
    };
    shown.DataField = "name";
    report.Run();
    EXPECT_EQ(boxOf("a").top(), 0);
    shown.DataField = "photo";
    EXPECT_EQ(errorOf([&] { report.Run(); }), 3259);
}

TEST_F(Layout, AChartIsDrawnOnceWhenItsSectionIsLaidOut) {
    int drawn = 0;
    auto &chart = detail.Controls.Add<Chart>("chart");
    chart.Width = 3000;
    chart.Height = 1500;
    QColor colour = Qt::red;
    chart.Paint = [&](QPainter &painter, const QSizeF &size) {
        ++drawn;
        EXPECT_EQ(size, QSizeF(200, 100));
        painter.fillRect(QRectF(QPointF(), size), colour);
    };
    report.Run();
    colour = Qt::blue;
    const QImage image = report.document().pages[0].elements[0].picture.toImage(QSize(3000, 1500), 96);
    EXPECT_EQ(image.size(), QSize(200, 100));
    EXPECT_EQ(image.pixelColor(100, 50), QColor(Qt::red));
    EXPECT_EQ(drawn, 1);
}

} // namespace
