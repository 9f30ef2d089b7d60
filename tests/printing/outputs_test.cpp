// What the files hold, read back with other eyes.
#include <gtest/gtest.h>

#include <QFile>
#include <QPrinter>
#include <QTemporaryDir>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFOutlineDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include "platform/printing/pdf_outline.h"
#include "platform/printing/pdf_output.h"
#include "platform/printing/print_output.h"
#include "platform/printing/rtf_output.h"
#include "platform/printing/text_grid.h"
#include "platform/printing/text_output.h"
#include "tests/printing/test_report.h"
#include "tests/support/error_of.h"
#include "tests/support/pdf_tool.h"
#include "tests/support/rtf_reader.h"

using namespace Printing;

namespace {

constexpr int RowCount = 70;

QByteArray contentOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Each entry as "title at y, count", those below it in brackets.
QString entriesText(std::vector<QPDFOutlineObjectHelper> entries) {
    QStringList texts;
    for (QPDFOutlineObjectHelper &entry : entries) {
        texts += QStringLiteral("%1 at %2, %3")
                     .arg(QString::fromStdString(entry.getTitle()))
                     .arg(entry.getDest().getArrayItem(3).getNumericValue())
                     .arg(entry.getCount());
        if (const auto below = entry.getKids(); !below.empty())
            texts.back() += " (" + entriesText(below) + ")";
    }
    return texts.join("; ");
}

QString outlineText(QPDF &pdf) {
    return QStringLiteral("%1: ").arg(pdf.getRoot().getKey("/Outlines").getKey("/Count").getIntValue()) +
           entriesText(QPDFOutlineDocumentHelper(pdf).getTopLevelOutlines());
}

class Outputs : public ::testing::Test {
protected:
    Outputs()
        : report(stationReport(RowCount))
        , document(report->Run()) {}

    QString path(const QString &name) const { return folder.filePath(name); }
    QStringList cellsOf(int row) const {
        const QString remark = row % 7 != 0
                                   ? QString()
                                   : QStringLiteral("gale ≥ 8 Bft, the reading was taken twice and the mean "
                                                    "of both is what stands here");
        return {QString::number(row), QStringLiteral("%1,%2").arg(row % 30).arg(row % 10),
                QStringLiteral("(%1 x 10²)").arg(990 + row % 40), remark};
    }

    QTemporaryDir folder;
    std::shared_ptr<TestReport> report;
    const Document &document;
};

TEST_F(Outputs, PdfHoldsEveryRowInReadingOrder) {
    savePdf(document, path("a.pdf"));
    const QString text = pdfTool("pdftotext", {"-layout", path("a.pdf"), "-"});
    qsizetype at = 0;
    for (int row = 1; row <= RowCount; ++row) {
        const QStringList cells = cellsOf(row);
        const QRegularExpression line(
            QStringLiteral("^ +%1 +%2 +%3").arg(cells[0], cells[1], QRegularExpression::escape(cells[2])),
            QRegularExpression::MultilineOption);
        at = text.indexOf(line, at);
        ASSERT_GE(at, 0) << "row " << row;
    }
    EXPECT_EQ(text.count("[N / m²]"), 2);
    EXPECT_EQ(text.count(QRegularExpression("Page +[123] of +3")), 3);
    // Without the layout the stream's own order counts: a cell's two lines stay together.
    EXPECT_EQ(pdfTool("pdftotext", {"-raw", path("a.pdf"), "-"}).count("taken twice\nand the mean"),
              RowCount / 7);
}

TEST_F(Outputs, PdfTellsTitleAuthorAndOutlineAndIsMadeOfVectors) {
    savePdf(document, path("a.pdf"));
    const QString info = pdfTool("pdfinfo", {path("a.pdf")});
    EXPECT_TRUE(info.startsWith(QStringLiteral("Title:           Yearbook 7 – Großer Sand\n"
                                               "Author:          Weather office (north)\n")))
        << info.toStdString();
    EXPECT_TRUE(info.contains("Pages:           3\n"));
    EXPECT_TRUE(info.endsWith("PDF version:     1.4\n")) << "a complaint: " << info.toStdString();
    EXPECT_TRUE(info.contains("(A4)"));
    const QString pages = pdfTool("pdftohtml", {"-xml", "-stdout", "-i", path("a.pdf")});
    EXPECT_EQ(pages.mid(pages.indexOf("<outline>")).remove('\n'),
              QStringLiteral("<outline><item page=\"1\">Wetterstation Großer Sand</item>"
                             "<outline><item page=\"1\">Readings</item>"
                             "<outline><item page=\"1\">Readings of the year</item></outline>"
                             "<item page=\"3\">Course of the year</item></outline></outline></pdf2xml>"));
    for (const QString &font : pdfTool("pdffonts", {path("a.pdf")}).split('\n', Qt::SkipEmptyParts).mid(2))
        EXPECT_TRUE(font.contains(QRegularExpression("LiberationSans.*Identity-H +yes")))
            << font.toStdString();
    EXPECT_EQ(pdfTool("pdfimages", {"-list", path("a.pdf")}).count('\n'), 2) << "a picture became pixels";
}

TEST_F(Outputs, ThePdfOutlineLeadsToTheHeadingsWhateverWroteThePages) {
    const std::string sections = "(Readings at 655, -1 (Readings of the year at 632.5, 0); "
                                 "Course of the year at 779.4, 0)";
    savePdf(document, path("a.pdf"));
    QPDF pdf;
    pdf.processFile(path("a.pdf").toUtf8().constData());
    EXPECT_EQ(outlineText(pdf).toStdString(), "3: Wetterstation Großer Sand at 779.4, 2 " + sections);
    // Two titles show none of their sections.
    Document several = document;
    several.headings.push_back({"Appendix", 1, 2, 8419});
    several.headings.push_back({"Deep", 3, 2, 16838});
    QPDFWriter packing(pdf);
    packing.setObjectStreamMode(qpdf_o_generate);
    packing.setOutputMemory();
    packing.write();
    const auto packed = packing.getBufferSharedPointer();
    const QByteArray again = withOutline(
        {reinterpret_cast<const char *>(packed->getBuffer()), qsizetype(packed->getSize())}, several);
    QPDF changed;
    changed.processMemoryFile("again", again.constData(), std::size_t(again.size()));
    EXPECT_EQ(outlineText(changed).toStdString(), "2: Wetterstation Großer Sand at 779.4, -2 " + sections +
                                                      "; Appendix at 420.95, -1 (Deep at 0, 0)");
    const auto identifier = [](QPDF &file) { return file.getTrailer().getKey("/ID").unparse(); };
    EXPECT_EQ(identifier(pdf), identifier(changed)) << "the pages are the same";
    EXPECT_EQ(errorOf([&] { withOutline("%PDF-1.4\n", document); }), 321);
}

TEST_F(Outputs, TwoPdfFilesDifferInTheDateOnly) {
    savePdf(document, path("a.pdf"));
    const auto again = stationReport(RowCount);
    savePdf(again->Run(), path("b.pdf"));
    const auto dateless = [](QByteArray pdf) {
        for (const char *date : {"/CreationDate", "/ModDate"}) // newer versions of Qt write both
            for (qsizetype at = pdf.indexOf(date); at >= 0; at = pdf.indexOf(date, at + 1))
                pdf.replace(at, pdf.indexOf(')', at) - at, "/");
        return pdf;
    };
    EXPECT_EQ(dateless(contentOf(path("a.pdf"))), dateless(contentOf(path("b.pdf"))));
}

TEST_F(Outputs, RtfHoldsTheTablesAsTables) {
    saveRtf(document, path("a.rtf"));
    const RtfContent rtf = RtfReader::read(contentOf(path("a.rtf")));
    EXPECT_TRUE(rtf.isSound);
    EXPECT_EQ(rtf.title, document.title);
    ASSERT_EQ(rtf.rows.size(), std::size_t(4 + 1 + RowCount));
    EXPECT_EQ(rtf.rows[1].join('|'), QStringLiteral("Height||≤ 12 m"));
    EXPECT_EQ(rtf.rows[3].last(), "Harbour office {north} \\ pilot station");
    EXPECT_EQ(rtf.rows[4], QStringList({"Day", QStringLiteral("Temperature\n\n[°C]"),
                                        QStringLiteral("Pressure\n\n[N / m²]"), "Remark"}));
    EXPECT_EQ(rtf.headingRows, 1);
    for (int row = 1; row <= RowCount; ++row) {
        EXPECT_EQ(rtf.rows[std::size_t(4 + row)].join('|').toStdString(),
                  cellsOf(row).join('|').toStdString());
        EXPECT_EQ(rtf.edges[std::size_t(4 + row)], std::vector<int>({1155, 2655, 4455, 8455}));
    }
    EXPECT_EQ(rtf.headings, QStringList({QStringLiteral("Wetterstation Großer Sand"), "Readings",
                                         "Readings of the year", "Course of the year"}));
    EXPECT_TRUE(
        rtf.paragraphs.contains("All temperatures in the shade.\nPressures are not reduced to sea level."));
    EXPECT_EQ(rtf.pictures, 2);
    EXPECT_TRUE(
        QRegularExpression("\\\\brdrb[^\n]*Weather office").match(contentOf(path("a.rtf"))).hasMatch());
    EXPECT_TRUE(rtf.pageText.contains("<PAGE>"));
    EXPECT_TRUE(rtf.pageText.contains("<NUMPAGES>"));
    EXPECT_TRUE(rtf.pageText.contains(QStringLiteral("Weather office – yearbook")));
}

TEST(Rtf, AShortTableStaysOnOnePage) {
    // Of a long one, its first rows.
    for (const auto &[rows, kept] : {std::pair(3, 2), std::pair(30, 1)}) {
        TestReport report;
        report.countRows(rows);
        Section &detail = report.AddSection(SectionType::Detail, "Detail");
        place<Field>(detail, "cell", {0, 0, 1155, 283}).Border = BorderStyles::all();
        const QByteArray rtf = rtfText(report.Run());
        EXPECT_EQ(rtf.count("\\row\n"), rows);
        EXPECT_EQ(rtf.count("\\intbl\\keepn"), kept);
    }
}

TEST(Rtf, ATitleStaysWithItsKeptTextAndAShortRowKeepsItsCellsWidths) {
    TestReport report;
    Section &detail = report.AddSection(SectionType::Detail, "Detail");
    detail.KeepTogether = true;
    place<Label>(detail, "title", {0, 0, 5000, 250}, "Notes");
    place<Label>(detail, "text", {0, 300, 5000, 250}, "None.");
    for (const QRect &box : {QRect(0, 600, 900, 283), QRect(900, 600, 900, 283), QRect(0, 883, 900, 283)})
        place<Field>(detail, QString::number(detail.Controls.Count()), box, "cell").Border =
            BorderStyles::all();
    const QByteArray rtf = rtfText(report.Run());
    EXPECT_TRUE(QRegularExpression("\\\\keepn[^\n]* Notes\\\\par").match(rtf).hasMatch());
    const RtfContent content = RtfReader::read(rtf);
    EXPECT_EQ(content.edges, (std::vector<std::vector<int>>{{900, 1800}, {900, 1800}}));
    EXPECT_EQ(content.rows[1], QStringList({"cell", ""}));
}

TEST(Rtf, APictureLeavesTheFrameOfItsCellFree) {
    TestReport report;
    Section &detail = report.AddSection(SectionType::Detail, "Detail");
    auto &cell = place<Label>(detail, "cell", {0, 0, 1000, 600});
    cell.Border = BorderStyles::all();
    auto &image = detail.Controls.Add<Image>("image");
    image.Width = 1000;
    image.Height = 600;
    image.Content = Picture::fromImage(blankImage({40, 24}));
    const QByteArray rtf = rtfText(report.Run());
    EXPECT_TRUE(rtf.contains("\\picwgoal880\\pichgoal540")) << rtf.left(2000).constData();
}

TEST_F(Outputs, TextHoldsTheTableInColumns) {
    saveText(document, path("a.txt"));
    const QStringList lines = QString::fromUtf8(contentOf(path("a.txt"))).split('\n');
    int row = 0;
    for (const QString &line : lines) {
        EXPECT_LE(line.size(), LineCharacters);
        const bool isReading = line.count('|') == 3 && line.left(4).contains(QRegularExpression("\\d"));
        if (!isReading) continue;
        QStringList cells = line.split('|');
        EXPECT_EQ(line.indexOf('|'), 4) << line.toStdString();
        for (QString &cell : cells)
            cell = cell.trimmed();
        EXPECT_EQ(cells.join('|').toStdString(), cellsOf(++row).join('|').toStdString());
    }
    EXPECT_EQ(row, RowCount);
    EXPECT_TRUE(lines.contains(QStringLiteral("Keeper       Harbour office {north} \\ pilot station")));
}

Block tableOf(const std::vector<QStringList> &rows, const std::vector<int> &widths) {
    Block block{Block::Kind::Table, {}};
    for (const QStringList &texts : rows) {
        Row row;
        int left = 0;
        for (int i = 0; i < texts.size(); ++i) {
            Element cell;
            cell.box = QRect(left, int(block.rows.size()) * 283, widths[std::size_t(i)], 283);
            cell.text = texts[i];
            left += widths[std::size_t(i)];
            row.cells.push_back(cell);
        }
        row.isHeading = block.rows.empty();
        block.rows.push_back(row);
    }
    return block;
}

TEST(TextGrid, SpanningCellsKeepTheColumnsBelowThemInLine) {
    Block block = tableOf({{"a", "b", "c"}, {"1", "22", "333"}}, {1000, 1000, 1000});
    block.rows[0].cells.erase(block.rows[0].cells.begin() + 1);
    block.rows[0].cells[0].box.setWidth(2000);
    block.rows[0].cells[0].text = "wide heading";
    block.rows[1].cells[2].Alignment = 1;
    EXPECT_EQ(gridLines(block),
              QStringList({"wide heading | c", "--+----------+----", "1 | 22       | 333"}));
}

TEST(TextGrid, EveryLineOfARowHasItsColumns) {
    EXPECT_EQ(gridLines(tableOf({{"", "C", "Al\na)"}, {"min", "1", "2"}}, {1000, 1000, 1000})),
              QStringList({"    | C | Al", "    |   | a)", "----+---+---", "min | 1 | 2"}));
}

TEST(TextGrid, ATableTooWideForTheLineGoesOnBelowWithItsFirstColumn) {
    QStringList words;
    for (int i = 0; i < 12; ++i)
        words += QString(16, QLatin1Char('a' + char(i)));
    const QStringList lines = gridLines(tableOf({words, words}, std::vector<int>(12, 1155)));
    QString all;
    for (const QString &line : lines) {
        EXPECT_LE(line.size(), LineCharacters);
        all += line;
    }
    for (const QString &word : words)
        EXPECT_EQ(all.count(word), word == words[0] ? 4 : 2);
}

TEST(TextGrid, RunningTextIsBrokenAtWordsAndALongWordKeptWhole) {
    const QString text = QStringList(60, "word").join(' ');
    for (const QString &line : gridLines(tableOf({{"n", text}, {"1", "x"}}, {1155, 8000})))
        EXPECT_LE(line.size(), LineCharacters);
    const QString longWord(200, 'x');
    EXPECT_EQ(wrapText("a " + longWord + " b", 10), QStringList({"a", longWord, "b"}));
}

TEST(TextGrid, ANumberIsOneWordAndOtherBlanksStay) {
    EXPECT_EQ(wrapText("Rp1,0 / 100 000 h", 12), QStringList({"Rp1,0 /", "100 000 h"}));
    EXPECT_EQ(wrapText("(   ) -", 20), QStringList("(   ) -"));
    EXPECT_EQ(
        gridLines(tableOf({{"n", "100 000 h"}, {"1", QString(200, QLatin1Char('x'))}}, {900, 900})).size(),
        3);
}

TEST(TextGrid, ARowThatLacksItsFirstCellsHasItsBars) {
    Block block = tableOf({{"a", "b", "c"}, {"1", "2", "3"}}, {1000, 1000, 1000});
    block.rows[1].cells.erase(block.rows[1].cells.begin(), block.rows[1].cells.begin() + 2);
    EXPECT_EQ(gridLines(block).last(), "  |   | 3");
}

TEST(Files, AnEmptyFieldStaysInItsBlockAndNoControlCharacterComesThrough) {
    TestReport report;
    Section &header = report.AddSection(SectionType::ReportHeader, "header");
    const QChar controls[] = {'x', QChar(0), QChar(1), QChar(0x7f), QChar(0x85), 'y'};
    const QString texts[] = {"100 000 h", {}, QString(controls, std::size(controls))};
    for (int row = 0; row < 3; ++row) {
        place<Label>(header, QStringLiteral("l%1").arg(row), {0, 300 * row, 1200, 270}, "caption");
        place<Field>(header, QStringLiteral("t%1").arg(row), {1200, 300 * row, 1200, 270}, texts[row]);
    }
    auto &rule = header.Controls.Add<Line>("rule");
    rule.Top = 880;
    rule.Width = 3000;
    const Document &document = report.Run();
    EXPECT_EQ(gridText(document), "caption  100 000 h\ncaption\ncaption  xy\n");
    const QByteArray rtf = rtfText(document);
    EXPECT_TRUE(rtf.contains(" 100\\~000 h\\cell"));
    EXPECT_TRUE(rtf.contains(" xy\\cell"));
    EXPECT_EQ(rtf.count("\\clbrdrb"), 2) << "the rule is the last row's";
}

struct PrintCase {
    int from, to, copies;
    bool collate, reverse;
    const char *pages;
};

class Prints : public Outputs {
protected:
    Prints() {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(path("printed.pdf"));
    }
    QString printed(const QStringList &how) {
        printDocument(document, printer);
        return pdfTool(how.first(), how.mid(1) + QStringList({path("printed.pdf"), "-"}));
    }

    QPrinter printer{QPrinter::HighResolution};
};

TEST_F(Prints, PagesComeAsTheDialogWasSet) {
    const PrintCase cases[] = {{2, 3, 1, true, false, "2 3"},
                               {0, 0, 2, true, false, "1 2 3 1 2 3"},
                               {0, 0, 2, false, false, "1 1 2 2 3 3"},
                               {0, 0, 1, true, true, "3 2 1"},
                               {2, 3, 2, true, true, "3 2 3 2"}};
    for (const PrintCase &c : cases) {
        printer.setFromTo(c.from, c.to);
        printer.setCopyCount(c.copies);
        printer.setCollateCopies(c.collate);
        printer.setPageOrder(c.reverse ? QPrinter::LastPageFirst : QPrinter::FirstPageFirst);
        QStringList pages;
        static const QRegularExpression footer("Page +(\\d) +of");
        const QString text = printed({"pdftotext", "-layout"});
        for (auto found = footer.globalMatch(text); found.hasNext();)
            pages += found.next().captured(1);
        EXPECT_EQ(pages.join(' '), c.pages);
    }
}

TEST_F(Prints, APageKeepsItsProportionsOnOtherPaper) {
    static const QRegularExpression keeper("xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\"[^>]*>Keeper<");
    const auto place = [&](QPageSize::PageSizeId paper) {
        printer.setPageSize(QPageSize(paper));
        const auto found = keeper.match(printed({"pdftotext", "-bbox"}));
        return QPointF(found.captured(1).toDouble(), found.captured(2).toDouble());
    };
    const QPointF onA4 = place(QPageSize::A4);
    EXPECT_NEAR(onA4.x(), 853 / 20.0, 0.5);
    for (const auto paper : {QPageSize::A6, QPageSize::Letter, QPageSize::A3}) {
        const QSizeF size = QPageSize(paper).size(QPageSize::Point);
        const double scale = std::min(size.width() / 595.3, size.height() / 841.9);
        const QPointF there = place(paper);
        EXPECT_NEAR(there.x(), (size.width() - scale * 595.3) / 2 + scale * onA4.x(), 1) << paper;
        EXPECT_NEAR(there.y(), (size.height() - scale * 841.9) / 2 + scale * onA4.y(), 1) << paper;
    }
}

} // namespace
