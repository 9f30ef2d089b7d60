// Values over Temperature in its real window.
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include "tests/workbench/workbench_fixture.h"
#include "workbench/frmValueSheet.h"
#include "workbench/SelectionPages.h"
#include "workbench/SheetColumns.h"

namespace {

class Sheet : public WorkbenchFixture {
protected:
    frmValueSheet &open() { return WorkbenchFixture::open<frmValueSheet>(ToolsEntry::ValuesOverTemperature); }
    void ask(frmValueSheet &window, const char *from, const char *to, const char *step) {
        retype(window.txtFrom, from);
        retype(window.txtTo, to);
        retype(window.txtStep, step);
    }
    /// Ticks or unticks by the keyboard.
    static void toggle(const frmValueSheet &window, const QString &title) {
        QListWidget &list = *window.lstColumns->lstColumns;
        list.setFocus();
        list.setCurrentItem(list.findItems(title, Qt::MatchExactly).value(0));
        QTest::keyClick(&list, Qt::Key_Space);
    }
};

} // namespace

TEST_F(Sheet, MarksTheTablesOwnTemperatures) {
    select({2});
    frmValueSheet &window = open();
    click(window.lstColumns->cmdNone);
    toggle(window, "Rp0,2 (16) - 40mm");
    toggle(window, "Thermal conductivity");
    ask(window, "0", "400", "25");
    QStringList marked;
    for (int row = 0; row < window.tdbSheet->RowCount(); ++row)
        if (isMarked(*window.tdbSheet, row, 0)) marked << window.tdbSheet->CellText(row, 0);
    EXPECT_EQ(marked, QStringList({"50", "100", "150", "200", "250", "300", "350", "400"}));
    EXPECT_EQ(tipOf(*window.tdbSheet, 4, 0), "A row of the table of Rp0,2, Thermal conductivity.");
    EXPECT_EQ(tipOf(*window.tdbSheet, 2, 0), "A row of the table of Rp0,2.");
    EXPECT_TRUE(cellRole(*window.tdbSheet, 2, 1, Qt::FontRole).isValid());
    EXPECT_FALSE(cellRole(*window.tdbSheet, 2, 2, Qt::FontRole).isValid());
    click(window.cmdCopy);
    EXPECT_EQ(QApplication::clipboard()->text().section('\n', 0, 2),
              "Temperature [°C]\tOwn row\tRp0,2 (16) - 40mm [MPa]\tThermal conductivity [W / (m x K)]\n"
              "0\t\t-\t-\n25\t\t-\t55,07"); // 55,2 - 5 * 2,1 / 80
}

TEST_F(Sheet, AFaultIsToldBesideTheBoxesAndLeavesNoRow) {
    select({2});
    frmValueSheet &window = open();
    const struct {
        const char *from, *to, *step, *told;
        int rows;
    } cases[] = {{"20", "1019", "1", "", 1000},
                 {"20", "1020", "1", "1,001 rows; there can be 1,000 at most.", 0},
                 {"20", "19", "1", "The first temperature is above the last one.", 0},
                 {"20", "400", "0", "The step is greater than 0 °C.", 0},
                 {"20", "4oo", "5", "'4oo' is no number.", 0},
                 {"", "400", "5", "Type a number.", 0}};
    for (const auto &each : cases) {
        ask(window, each.from, each.to, each.step);
        EXPECT_EQ(window.lblTyped->text(), each.told);
        EXPECT_EQ(window.tdbSheet->RowCount(), each.rows);
        EXPECT_EQ(window.cmdSave->isEnabled(), each.rows > 0);
    }
    ask(window, "20", "400", "20");
    click(window.lstColumns->cmdNone);
    EXPECT_EQ(window.lblTyped->text(), "Tick the columns that you want.");
    EXPECT_FALSE(window.cmdCopy->isEnabled());
}

TEST_F(Sheet, BeginsWithTheGradeInFrontAndKeepsTheChoice) {
    select({2, 11, 38});
    main().mCurrent = main().colMaterials.Item(2);
    frmValueSheet *window = &open();
    EXPECT_EQ(window->cboGrade->currentText(), "X5CrNi18-10 1.4301 EN 10028-7");
    EXPECT_EQ(window->tdbSheet->Columns(1).Caption(), "Rp0,2\r\n[MPa]");
    QTest::keyClick(window->cboGrade, Qt::Key_Home);
    EXPECT_EQ(window->tdbSheet->Columns(1).Caption(), "Rp0,2\r\n(  ) - 16mm\r\n[MPa]");
    toggle(*window, "Rp0,2 (  ) - 16mm");
    EXPECT_EQ(window->tdbSheet->Columns(1).Caption(), "Rp0,2\r\n(16) - 40mm\r\n[MPa]");
    select({11, 38, 2});
    comeBack(*window);
    EXPECT_EQ(window->cboGrade->currentText(), "P265GH 1.0425 EN 10028-2");
    EXPECT_EQ(window->tdbSheet->Columns(1).Caption(), "Rp0,2\r\n(16) - 40mm\r\n[MPa]");
    QTest::keyClick(window->cboGrade, Qt::Key_Down);
    QTest::keyClick(window->cboGrade, Qt::Key_Up);
    EXPECT_EQ(window->lblTyped->text(), "The grade has no design values.");

    ask(*window, "50", "100", "10");
    window->Unload();
    deleteUnloaded();
    select({2});
    window = &open();
    EXPECT_EQ(columnTexts(*window->tdbSheet, 0), QStringList({"50", "60", "70", "80", "90", "100"}));
    EXPECT_EQ(window->tdbSheet->Columns(1).Caption(), "Rp0,2\r\n(16) - 40mm\r\n[MPa]") << "still left out";
    select({});
    comeBack(*window);
    EXPECT_TRUE(window->fraPages->lblNoGrade->isVisible());
}
