// Compare Grades in its real window.
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QTabWidget>

#include "platform/forms/ms_chart.h"
#include "tests/exchange/xlsx_reader.h"
#include "tests/workbench/workbench_fixture.h"
#include "workbench/ComparisonChartPage.h"
#include "workbench/ComparisonPage.h"
#include "workbench/CompositionPage.h"
#include "workbench/frmCompare.h"
#include "workbench/SelectionPages.h"

namespace {

constexpr int FirstGrade = 2;

class Compare : public WorkbenchFixture {
protected:
    frmCompare &open() { return WorkbenchFixture::open<frmCompare>(ToolsEntry::CompareGrades); }
    static TDBGrid &values(const frmCompare &window) { return *window.pagValues->tdbValues; }

    /// The lines of a grade's cells, without the bands' headings.
    static QStringList cellsOf(const frmCompare &window, int grade) {
        QStringList cells;
        const QStringList texts = columnTexts(values(window), FirstGrade + grade);
        for (const QString &text : texts)
            for (const QString &line : text.split('\n', Qt::SkipEmptyParts))
                cells << line.section(": ", -1);
        cells.sort();
        return cells;
    }

    static int rowOf(const frmCompare &window, const QString &label) {
        return static_cast<int>(columnTexts(values(window), 0).indexOf(label));
    }
};

} // namespace

TEST_F(Compare, AThicknessTakesTheBandAndTellsWhereThereIsNone) {
    select({2});
    frmCompare &window = open();
    retype(window.txtTemperature, "310");
    const int row = rowOf(window, "Rp0,2");
    EXPECT_TRUE(values(window).CellText(row, FirstGrade).startsWith("(  ) - 16mm: 170,40\n(16) - 40mm: "));
    retype(window.txtThickness, "16,01");
    EXPECT_EQ(values(window).CellText(row, FirstGrade), "163,60");
    retype(window.txtThickness, "250,1");
    EXPECT_EQ(values(window).CellText(row, FirstGrade), "");
    EXPECT_TRUE(tipOf(values(window), row, FirstGrade).contains("above the last thickness band"));
    EXPECT_EQ(values(window).CellText(rowOf(window, "Modulus of elasticity"), FirstGrade), "190,20")
        << "a table without bands holds for any thickness";
    EXPECT_EQ(tipOf(values(window), rowOf(window, "Thermal conductivity"), FirstGrade), "");
}

TEST_F(Compare, RowsAreThoseThatAnyGradeHasAndTheFilterLeaves) {
    select({2});
    frmCompare &window = open();
    EXPECT_EQ(rowOf(window, "Rp1,0"), -1);
    EXPECT_EQ(columnTexts(values(window), FirstGrade).join(""), "") << "without a temperature";
    select({2, 11});
    comeBack(window);
    EXPECT_NE(rowOf(window, "Rp1,0"), -1);
    type(window.txtTemperature, "300");
    EXPECT_EQ(tipOf(values(window), rowOf(window, "Rp1,0"), FirstGrade), "The grade has no such table.");

    type(window.pagValues->txtFilter, "COND w");
    EXPECT_EQ(columnTexts(values(window), 0), QStringList("Thermal conductivity"));
    EXPECT_EQ(values(window).CellText(0, FirstGrade), "47.2");
    EXPECT_FALSE(window.pagValues->lblNoRow->isVisible());
    type(window.pagValues->txtFilter, "#");
    EXPECT_EQ(values(window).RowCount(), 0);
    EXPECT_TRUE(window.pagValues->lblNoRow->isVisible());
}

TEST_F(Compare, AFaultIsToldBesideTheBoxesAndLeavesNoValue) {
    select({2, 4});
    frmCompare &window = open();
    EXPECT_EQ(window.lblTyped->text(), "Type a temperature in °C.");
    const struct {
        const char *temperature, *thickness, *told;
    } cases[] = {{"300", "40", ""},
                 {"3OO", "40", "'3OO' is no temperature."},
                 {"-", "", "'-' is no temperature."},
                 {"300", "0", "A thickness is greater than 0 mm."},
                 {"300", "4,", "'4,' is no thickness."},
                 {"x", "y", "'x' is no temperature. 'y' is no thickness."}};
    for (const auto &each : cases) {
        retype(window.txtTemperature, each.temperature);
        retype(window.txtThickness, each.thickness);
        EXPECT_EQ(window.lblTyped->text(), each.told);
        EXPECT_EQ(cellsOf(window, 0).isEmpty(), !window.lblTyped->text().isEmpty()) << each.told;
    }
}

TEST_F(Compare, TheGraphHasACurveAGradeAndALineAtTheTemperature) {
    select({2, 38, 11});
    frmCompare &window = open();
    retype(window.txtTemperature, "310,5");
    retype(window.txtThickness, "40");
    window.tabPages->setCurrentIndex(1);
    const ComparisonChartPage &page = *window.pagChart;
    EXPECT_EQ(page.cboProperty->currentText(), "Rp0,2");
    EXPECT_EQ(page.chtValues->accessibleDescription(),
              "[MPa] over Temperature [°C]. Curves: P265GH EN 10028-2 (16) - 40mm, X5CrNi18-10 EN 10028-7. "
              "Line at 310,5 °C");
    EXPECT_EQ(page.lblMissing->text(),
              "Without a curve: Reference only EN 10254: The grade has no such table.");
    const QImage at310 = page.chtValues->grab().toImage();
    retype(window.txtTemperature, "400");
    EXPECT_NE(page.chtValues->grab().toImage(), at310);

    page.cboProperty->setCurrentIndex(page.cboProperty->findText("Rp1,0"));
    EXPECT_EQ(page.chtValues->TitleText(), "Rp1,0");
    EXPECT_EQ(page.chtValues->ColumnCount(), 2);
    click(window.cmdCopy);
    EXPECT_EQ(QApplication::clipboard()->text().section('\n', 0, 1),
              "Temperature [°C]\tX5CrNi18-10 EN 10028-7 [MPa]\n50\t228");
    retype(window.txtThickness, "0");
    EXPECT_EQ(page.chtValues->ColumnCount(), 0) << "no curve of a thickness that there is not";
}

TEST_F(Compare, TheCompositionMarksWhatIsNotAsInTheFirstGrade) {
    select({2, 3});
    frmCompare &window = open();
    window.pagComposition->patience = 60000;
    window.tabPages->setCurrentIndex(2);
    const TDBGrid &grid = *window.pagComposition->tdbComposition;
    const auto cells = [&](const QString &element) {
        const int row = static_cast<int>(columnTexts(grid, 0).indexOf(element));
        QStringList texts;
        for (int column = 1; column < grid.ColumnCount(); ++column)
            texts << grid.CellText(row, column) + (isMarked(grid, row, column) ? "!" : "");
        return texts;
    };
    EXPECT_EQ(cells("C"), QStringList({"", "0,2", "0,08!", "0,2"}));
    EXPECT_EQ(cells("Mn"), QStringList({"0,8", "1,4", "0,9!", "1,5!"}));
    EXPECT_EQ(cells("Other elements"), QStringList({"", "Cr + Cu + Mo + Ni max 0,70 %", "", "!"}));
    EXPECT_EQ(tipOf(grid, 0, 3), "The first grade has no such limit.");
    EXPECT_EQ(tipOf(grid, 2, 4), "The first grade has 1,4.");
}

TEST_F(Compare, CompositionsThatTakeLongAreReadWhileTheirPageIsInSight) {
    select({2, 3, 4, 11});
    frmCompare &window = open();
    const CompositionPage &page = *window.pagComposition;
    window.pagComposition->patience = -1; // one that nothing is read in
    window.tabPages->setCurrentIndex(2);
    EXPECT_EQ(page.lblMarked->text(), "Reading the compositions: 0 of 4.");
    EXPECT_EQ(page.tdbComposition->RowCount(), 0);
    QTest::qWait(20);
    window.tabPages->setCurrentIndex(0);
    window.pagComposition->patience = 1000;
    QTest::qWait(20);
    EXPECT_EQ(page.tdbComposition->RowCount(), 0) << "nobody looks at it";
    window.pagComposition->patience = -1;
    window.tabPages->setCurrentIndex(2);
    window.pagComposition->patience = 1000;
    EXPECT_TRUE(QTest::qWaitFor([&] { return page.tdbComposition->RowCount() > 10; }));
    EXPECT_TRUE(page.lblMarked->text().startsWith("Limits that are not those of P265GH"));
}

TEST_F(Compare, TellsHowToSelectAndFollowsTheSelection) {
    frmCompare &window = open();
    EXPECT_TRUE(window.fraPages->lblNoGrade->isVisible());
    EXPECT_FALSE(window.txtTemperature->isVisible());
    select({2, 4});
    comeBack(window);
    EXPECT_FALSE(window.fraPages->lblNoGrade->isVisible());
    EXPECT_EQ(values(window).ColumnCount(), 4);
    EXPECT_EQ(values(window).Columns(3).Caption(), "P355GH\r\n1.0473\r\nEN 10028-2");
    select({});
    comeBack(window);
    EXPECT_TRUE(window.fraPages->lblNoGrade->isVisible());

    QList<int> twelve;
    for (int id = 1; id <= 12; ++id)
        twelve << id;
    select(twelve);
    comeBack(window);
    EXPECT_EQ(values(window).ColumnCount(), 2 + 10);
    EXPECT_TRUE(window.lblTyped->text().contains("The first 10 of the selected grades"));
}

TEST_F(Compare, RemembersItsBoxesAndOutlivesAnyFile) {
    select({2});
    frmCompare *window = &open();
    EXPECT_EQ(window->txtTemperature->text(), "");
    type(window->txtTemperature, "310,5");
    type(window->txtThickness, "40");
    type(window->pagValues->txtFilter, "rp");
    window->resize(777, 555);
    QTest::keyClick(window, Qt::Key_Escape);
    deleteUnloaded();
    window = &open();
    EXPECT_EQ(window->txtTemperature->text(), "310,5");
    EXPECT_EQ(window->txtThickness->text(), "40");
    EXPECT_EQ(values(*window).CellText(0, FirstGrade), "163,48");
    EXPECT_EQ(values(*window).RowCount(), 3) << "Rp0,2 and two creep columns";
    EXPECT_EQ(window->size(), QSize(777, 555));
    window->Unload();
    deleteUnloaded();

    QFile file(program().userFolder() + "Workbench.ini");
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[frmCompare]\nplace=@Rect(-9999 5 x 99999999)\ntemperature=@Invalid()\nthickness=1,2,3\n"
               "filter=\"\\x0\\x9<b>\"\nproperty=@Point(1 2)\n[[[\n\xff\xfe");
    file.close();
    window = &open();
    EXPECT_EQ(window->txtTemperature->text(), "");
    EXPECT_TRUE(takeFaults().isEmpty());
}

TEST_F(Compare, GoesAlongAsTextAndAsAFile) {
    select({2, 11});
    frmCompare &window = open();
    type(window.txtTemperature, "310");
    type(window.txtThickness, "40");
    type(window.pagValues->txtFilter, "rp0,2");
    click(window.cmdCopy);
    EXPECT_EQ(QApplication::clipboard()->text(),
              "Property\tUnit\tP265GH 1.0425 EN 10028-2\tX5CrNi18-10 1.4301 EN 10028-7\n"
              "Rp0,2\tMPa\t163,60\t108,80\n");

    const QString path = program().folder() + "/comparison";
    modal().chooseFile([&](const ModalSeam::Request &asked) {
        EXPECT_TRUE(asked.filter.contains("*.tsv"));
        return path;
    });
    click(window.cmdSave);
    const XlsxReader book(path + ".xlsx");
    EXPECT_EQ(book.sheets[0].texts(1), QStringList({"Rp0,2", "MPa", "163.6", "108.8"}));
    EXPECT_EQ(book.sheets[0].rows[1][2].format, "0.00");
    EXPECT_EQ(book.sheets[1].texts(2), QStringList({"Temperature [°C]", "310"}));
    EXPECT_EQ(book.sheets[1].texts(3), QStringList({"Thickness [mm]", "40"}));

    modal().chooseFile(path + ".csv");
    click(window.cmdSave);
    QFile csv(path + ".csv");
    ASSERT_TRUE(csv.open(QIODevice::ReadOnly));
    EXPECT_TRUE(csv.readAll().contains("\"163,60\",\"108,80\"\r\n"));

    modal().chooseFile(QString());
    click(window.cmdSave);
    EXPECT_TRUE(takeFaults().isEmpty()) << "called off";
    modal().chooseFile(program().folder() + "/nowhere/a.csv");
    modal().answerMsgBox(0);
    modal().chooseFile(QString());
    click(window.cmdSave);
}
