// Tables of the tools on paper.
#include <algorithm>

#include <QProcess>

#include "reports/table_parts.h"
#include "reports/TableReport.h"
#include "tests/workbench/workbench_fixture.h"
#include "workbench/frmCompare.h"

namespace {

class TableReports : public WorkbenchFixture {};

TakenTable wideTable(int columns, int rows) {
    TakenTable table{"Wide", {{"Key", {}, true}}, {}};
    for (int column = 1; column < columns; ++column)
        table.columns << TakenColumn{QStringLiteral("Heading%1").arg(column), "MPa"};
    for (int row = 0; row < rows; ++row) {
        QStringList cells{QStringLiteral("row%1").arg(row)};
        for (int column = 1; column < columns; ++column)
            cells << QStringLiteral("r%1c%2").arg(row).arg(column);
        table.rows << cells;
    }
    return table;
}

QString textOf(const QString &path) {
    QProcess process;
    process.start("pdftotext", {"-layout", path, "-"});
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput());
}

} // namespace

TEST_F(TableReports, EveryCellIsOnThePaperOnce) {
    main();
    const TakenTable table = wideTable(25, 70);
    TableReport report(table, {{"Grade", {"A", "B"}}});
    QStringList printed;
    for (const Printing::Page &page : report.Run().pages) {
        bool hasHeadings = false;
        for (const Printing::Element &element : page.elements) {
            printed << element.text;
            hasHeadings = hasHeadings || element.text.startsWith("Heading");
            EXPECT_LE(element.box.left() + element.box.width(), 853 + 10200) << qPrintable(element.text);
            EXPECT_LE(element.box.top() + element.box.height(), 16838) << qPrintable(element.text);
        }
        EXPECT_TRUE(hasHeadings) << "each page has the captions of its columns";
    }
    for (const QStringList &row : table.rows)
        for (const QString &cell : row.mid(1))
            EXPECT_EQ(printed.count(cell), 1) << qPrintable(cell);
    EXPECT_EQ(printed.count("row69"), partsOf(table, 10200).size()) << "the key stands in each part";
    EXPECT_TRUE(printed.contains("A; B"));
}

TEST_F(TableReports, AKeyColumnWiderThanThePaperLeavesRoomForTheOthers) {
    TakenTable table = wideTable(3, 1);
    table.rows[0][0] = QString(500, 'x');
    table.keyColumns = 2;
    for (const TablePart &part : partsOf(table, 3000)) {
        int width = 0;
        for (const int each : part.widths)
            width += each;
        EXPECT_LE(width, 3000);
        EXPECT_TRUE(std::all_of(part.widths.begin(), part.widths.end(), [](int each) { return each > 0; }));
    }
}

TEST_F(TableReports, AComparisonIsSavedInEveryForm) {
    select({2, 11});
    frmCompare &window = open<frmCompare>(ToolsEntry::CompareGrades);
    retype(window.txtTemperature, "310");
    retype(window.txtThickness, "40");
    const QString path = program().folder() + "/comparison";
    for (const char *ending : {".pdf", ".rtf", ".txt"}) {
        modal().chooseFile(path + ending);
        click(window.cmdSave);
        QFile file(path + ending);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << ending;
        const QString text =
            ending == QLatin1String(".pdf") ? textOf(file.fileName()) : QString(file.readAll());
        for (const char *part : {"163,60", "108,80", "310", "P265GH", "Velmar_PED.mdb", "Modulus"})
            EXPECT_TRUE(text.contains(QLatin1String(part))) << ending << ' ' << part;
    }
    EXPECT_EQ(
        modal().asked().last().filter.toStdString(),
        "Workbook (*.xlsx)|*.xlsx|Comma-Separated Values (*.csv)|*.csv|Tab-Separated Values (*.tsv)|*.tsv|"
        "Portable Document Format (*.pdf)|*.pdf|Rich Text Format (*.rtf)|*.rtf|Text Format (*.txt)|*.txt");
}
