// The material window over the sample database.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <QToolTip>

#include "data/Material.h"
#include "data/table_vocabulary.h"
#include "material/frmMaterial2.h"
#include "material/menu_place.h"
#include "platform/forms/call_by_name.h"
#include "platform/printing/text_output.h"
#include "reports/actRepBound.h"
#include "shell/mdiVelmar.h"
#include "tests/support/error_of.h"
#include "tests/support/given_rows.h"
#include "tests/support/gui.h"
#include "tests/support/program.h"
#include "tests/support/small_database.h"

namespace {

constexpr int P265GH = 2;
constexpr int Mo3 = 5;            // other elements "-"
constexpr int X6CrNiMoTi = 16;    // other elements, no notes; tables without thickness bands
constexpr int X10CrMoVNb9 = 26;   // "-" in an impact value after the first
constexpr int CrMo4 = 37;         // one row of empty cells
constexpr int ReferenceOnly = 38; // no table at all

// A grade that the property tables do not know, of a standard with other elements.
std::shared_ptr<Material> gradeWithoutRows() {
    const QDateTime date(QDate(2020, 1, 1), QTime(0, 0));
    auto material = std::make_shared<Material>();
    material->SetProperties(givenRows({"matID", "name", "numbr", "description", "groups", "revision_date"},
                                      {{30000, "X", "1.0", QVariant(), QVariant(), date}}),
                            givenRows({"stID", "standard", "description", "revision_date", "otherElem"},
                                      {{1, "EN 10028-2", QVariant(), date, true}}));
    return material;
}

class MaterialWindow : public ::testing::Test {
protected:
    frmMaterial2 &show(int matID, const QString &key = "Ref") {
        material = program.material(matID);
        frmMaterial2 &window = program.open(material);
        window.ShowTable(key);
        return window;
    }

    TestProgram program;
    std::shared_ptr<Material> material;
};

TEST_F(MaterialWindow, LaysTheCompositionOnItsSide) {
    frmMaterial2 &window = show(P265GH, "ChemComp");
    TDBGrid &grid = *window.tdbTable;
    EXPECT_EQ(grid.Caption(), "Chemical composition");
    window.ShowTable("ChemComp");
    EXPECT_EQ(grid.ColumnCount(), 15);
    EXPECT_EQ(material->ColCaption("ChemComp", 14), QString(grid.Columns(14).Caption()));
    EXPECT_EQ(errorOf([&] { material->ColCaption("ChemComp", 15); }), 9) << "headings are stored once";
}

TEST_F(MaterialWindow, OtherElementsAloneOpenTheNotesPanel) {
    frmMaterial2 &window = show(X6CrNiMoTi, "ChemComp");
    EXPECT_EQ(window.lblNotes->text(), "Other Elements...");
    EXPECT_TRUE(window.lblNotes->isVisible() && window.cmdShowNotes->isVisible());
    EXPECT_TRUE(window.TimerFlash->isActive());

    const frmMaterial2 &none = show(Mo3, "ChemComp");
    EXPECT_EQ(material->OthersText(), "-");
    EXPECT_FALSE(none.txtNotes->toPlainText().contains("Other"));

    frmMaterial2 &broken = program.open(gradeWithoutRows());
    EXPECT_EQ(errorOf([&] { broken.ShowTable("ChemComp"); }), 3021) << "the standard promises a row";
}

TEST_F(MaterialWindow, PivotsThicknessBandsIntoColumns) {
    frmMaterial2 &window = show(P265GH, "Elevated");
    TDBGrid &grid = *window.tdbBoundTable;
    EXPECT_EQ(window.strCurrentTable, "Rp02");
    EXPECT_EQ(window.window()->focusWidget(), window.optMechProp(0));
    EXPECT_EQ(grid.Columns(0).Width(), 1200) << "meant so: not the width it is designed with";
    EXPECT_EQ(grid.Columns(3).Width(), 900);
    EXPECT_TRUE(material->ElevatedMultiCol("Rp02"));
    EXPECT_EQ(material->ElevatedColumns("Rp02"), QVector<qint16>({0, 16, 40, 60, 100, 150, 250}));
    EXPECT_EQ(material->MaxDesignCols(), 6);

    window.ShowTable("ModElast");
    EXPECT_EQ(grid.ColumnCount(), 4);
    EXPECT_NE(grid.Columns(1).shownPicture(), nullptr);
    EXPECT_FALSE(window.framMechOpt->isVisible());

    frmMaterial2 &plain = show(X6CrNiMoTi, "Rm");
    EXPECT_EQ(plain.tdbBoundTable->Columns(1).shownPicture(), nullptr);
    EXPECT_FALSE(material->ElevatedMultiCol("Rm"));
}

TEST_F(MaterialWindow, ShowsImpactValuesWithoutAGraph) {
    const frmMaterial2 &window = show(P265GH, "ImpEnergy");
    EXPECT_FALSE(window.CommandShowGraph->isVisible() || window.CommandShowTable->isVisible());

    frmMaterial2 &dash = show(X10CrMoVNb9, "ImpEnergy");
    EXPECT_EQ(material->ImpEnergyCols(), 6);
    dash.ShowTable("ThermExp");
    EXPECT_EQ(material->MaxDesignCols(), dash.tdbBoundTable->RowCount()) << "meant so: the rows count";
}

TEST_F(MaterialWindow, BuildsTheColumnsOfRoomTemperature) {
    frmMaterial2 &window = show(P265GH, "MechProp");
    TDBGrid &grid = *window.tdbTable;
    EXPECT_EQ(grid.Columns(0).Width(), 1450) << "the first column is 250 wider than told";
    EXPECT_EQ(grid.Columns(3).Width(), 780) << "a width of 0";
    EXPECT_EQ(material->MechCreepColSize("MechProp"), QVector<float>({1450, 900, 1100, 780, 1300}));
    EXPECT_EQ(material->ColCaption("MechProp", 1), "ReH\r\n1)\r\n[MPa]\r\nmin");
    EXPECT_FALSE(window.cmdUnBoundGraph->isVisible());

    // meant so: one row of empty cells shows, and is no data
    frmMaterial2 &empty = show(CrMo4, "MechProp");
    EXPECT_EQ(empty.tdbTable->RowCount(), 1);
    EXPECT_FALSE(empty.framNoData->isVisible());
    EXPECT_FALSE(material->TableHasData("MechProp"));
    EXPECT_TRUE(material->TableChecked("MechProp"));
    empty.ShowTable("MechProp");
    EXPECT_EQ(material->ColCaption("MechProp", 3), material->ColCaption("MechProp", 0))
        << "meant so: the headings of a table without data are stored again";
}

TEST_F(MaterialWindow, HidesEmptyCreepColumns) {
    frmMaterial2 &window = show(P265GH, "CreepProp");
    TDBGrid &grid = *window.tdbTable;
    const QVector<bool> empty = window.EmptyCreepCols();
    ASSERT_EQ(empty.size(), grid.ColumnCount());
    ASSERT_GT(empty.count(true), 0);
    const int hidden = static_cast<int>(empty.indexOf(true));
    EXPECT_FALSE(grid.Columns(hidden).Visible());
    EXPECT_EQ(window.lblXAxis->text(), "Temperature [°C]");
    EXPECT_EQ(window.cboColumnList->count(), empty.count(false) - 1);
    EXPECT_EQ(window.cboColumnList->currentIndex(), 0);
    EXPECT_TRUE(window.cmdUnBoundGraph->isVisible());

    window.ShowTable("ChemComp");
    EXPECT_FALSE(window.cmdUnBoundGraph->isVisible());
    EXPECT_TRUE(grid.Columns(hidden).Visible()) << "of another table";
}

TEST_F(MaterialWindow, AdditionalInformationTakesThePageAndGivesItBack) {
    frmMaterial2 &window = show(P265GH);
    const QRect notes = placeOf(window.framNotes);
    window.ShowTable("AddInfo");
    EXPECT_EQ(window.lblNotes->text(), "Additional Information...");
    EXPECT_TRUE(window.txtNotes->isVisible());
    EXPECT_TRUE(window.txtNotes->toPlainText().contains("General"));
    EXPECT_FALSE(window.cmdShowNotes->isVisible());
    EXPECT_GT(placeOf(window.txtNotes).height(), notes.height());

    window.ShowTable("Rp02");
    EXPECT_EQ(placeOf(window.framNotes), notes);
    EXPECT_EQ(window.lblNotes->text(), "Notes...");
    EXPECT_FALSE(window.txtNotes->toPlainText().contains("General"));
}

TEST_F(MaterialWindow, OpenNotesLeaveTheNextTableItsPlace) {
    frmMaterial2 &window = show(P265GH, "MechProp");
    const int height = placeOf(window.tdbTable).height();
    ASSERT_TRUE(window.TimerFlash->isActive());
    QTest::mouseClick(window.cmdShowNotes, Qt::LeftButton);
    ASSERT_LT(placeOf(window.tdbTable).height(), height);
    window.ShowTable("ModElast");
    EXPECT_EQ(placeOf(window.tdbTable).height(), height);
    EXPECT_FALSE(window.TimerFlash->isActive()) << "a table without notes";
}

TEST_F(MaterialWindow, TheNotesButtonCallsForAttention) {
    frmMaterial2 &window = show(P265GH, "MechProp");
    EXPECT_EQ(placeOf(window.tdbTable).height(), 3735);
    QTest::mouseClick(window.cmdShowNotes, Qt::LeftButton);
    EXPECT_EQ(placeOf(window.framNotes).top(), 2520);
    EXPECT_EQ(placeOf(window.tdbTable).height(), 2175);
    EXPECT_EQ(window.cmdShowNotes->toolTip(), "Hide Table Notes");
    EXPECT_TRUE(window.TimerFlash->isActive()) << "meant so: the timer runs on";

    const auto picture = [&window] { return window.cmdShowNotes->icon().pixmap(18).toImage(); };
    EXPECT_EQ(window.TimerFlash->interval(), 500) << "slow enough for anybody";
    window.TimerFlash->setInterval(1);
    const QImage open = picture();
    QTest::qWait(20);
    EXPECT_EQ(picture(), open) << "an open panel does not flash";
    QTest::mouseClick(window.cmdShowNotes, Qt::LeftButton);
    EXPECT_EQ(placeOf(window.framNotes).top(), 4080);
    EXPECT_EQ(window.cmdShowNotes->toolTip(), "Show Table Notes");
    const QImage closed = picture();
    EXPECT_TRUE(QTest::qWaitFor([&] { return picture() != closed; }, 1000));
    window.ShowTable("MechProp");
    EXPECT_EQ(picture(), closed);
}

TEST_F(MaterialWindow, TellsThatThereIsNoData) {
    frmMaterial2 &window = show(P265GH, "Rp02");
    window.CommandShowGraph->click();
    EXPECT_TRUE(window.framChart->isVisible());
    EXPECT_FALSE(window.tdbBoundTable->isVisible() || window.framNotes->isVisible());
    window.ShowTable("ModElast");
    EXPECT_TRUE(window.framChart->isVisible()) << "the choice of the graph holds";

    window.ShowTable("Rp10");
    EXPECT_TRUE(window.framNoData->isVisible());
    EXPECT_EQ(placeOf(window.framNoData), placeOf(window.tdbBoundTable));
    EXPECT_TRUE(window.txtNoData->toPlainText().contains(
        "'Minimum values for Rp1,0 [MPa] at elevated temperature.'"));
    EXPECT_FALSE(window.tdbBoundTable->isVisible() || window.framChart->isVisible());
    EXPECT_FALSE(window.CommandShowGraph->isVisible() || window.CommandShowTable->isVisible());
    EXPECT_TRUE(material->TableChecked("Rp10"));

    window.ShowTable("ModElast");
    EXPECT_FALSE(window.framNoData->isVisible() || window.framChart->isVisible()) << "the choice is gone";
    EXPECT_TRUE(window.CommandShowGraph->isVisible());
}

TEST_F(MaterialWindow, AValueInANarrowColumnIsMarkedAndToldWhole) {
    const std::pair<int, const char *> firstCells[] = {{17, "180"}, {18, "204"}, {19, "200"}, {20, "191"}};
    for (const auto &[matID, value] : firstCells) {
        frmMaterial2 &window = show(matID, "MechProp");
        auto *view = window.tdbTable->findChild<QTableView *>();
        const QRect cell = view->visualRect(view->model()->index(0, 0));
        ASSERT_LT(cell.width(), 20);
        const QImage picture = view->viewport()->grab(cell.adjusted(1, 1, -1, -1)).toImage();
        int marked = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                marked += picture.pixel(x, y) != picture.pixel(0, 0) ? 1 : 0;
        EXPECT_GE(marked, 3) << matID;

        const auto tipAt = [](QWidget *place, const QPoint &at) {
            QHelpEvent event(QEvent::ToolTip, at, place->mapToGlobal(at));
            QApplication::sendEvent(place, &event);
            return QToolTip::text().toStdString();
        };
        EXPECT_EQ(tipAt(view->viewport(), cell.center()), value);
        EXPECT_EQ(tipAt(view->horizontalHeader()->viewport(), cell.center()), "Rp0,2 [MPa] min");
        EXPECT_EQ(QAccessible::queryAccessibleInterface(view)->tableInterface()->cellAt(0, 0)->text(
                      QAccessible::Name),
                  value);
    }
}

TEST_F(MaterialWindow, ChecksTheTablesAndComesBack) {
    for (const int matID : {P265GH, ReferenceOnly}) {
        frmMaterial2 &window = show(matID, "Ref");
        window.ShowTable("CreepProp");
        CallByName(static_cast<FormBase &>(window), "CheckTablesForRecords");
        EXPECT_EQ(window.strCurrentTable, "CreepProp");
        for (int i = 0; i < TableVocabulary::TableCount; ++i)
            EXPECT_TRUE(material->TableChecked(TableVocabulary::GetShortTableName(i))) << i;
        EXPECT_EQ(material->TableHasData("CreepProp"), matID == P265GH);
        EXPECT_EQ(material->TableHasData("ChemComp"), matID == P265GH);
    }
    EXPECT_EQ(material->UnboundTableData("ChemComp").Count(1), 0);
    EXPECT_EQ(material->UnboundTableData("MechProp").Count(1), 1) << "a row of empty cells";
}

TEST_F(MaterialWindow, FollowsAndLeavesTheGroup) {
    mdiVelmar &main = mdiVelmar::instance();
    frmMaterial2 &first = show(P265GH);
    const auto firstMaterial = material;
    frmMaterial2 &second = show(ReferenceOnly);
    main.iMaterialsOpen = 2;
    EXPECT_EQ(main.mCurrent, material);
    first.SetFocus();
    EXPECT_EQ(main.mCurrent, firstMaterial);
    second.ShowTable("Elevated");
    EXPECT_EQ(main.activeChild(), &first) << "a window behind stays there";

    first.parentWidget()->resize(300, 200);
    EXPECT_EQ(first.Width(), 11280);
    EXPECT_EQ(first.Height(), 5040);

    first.ShowTable("CreepProp");
    main.UpdateMenusAndButtons("Mech", 3);
    first.Unload();
    EXPECT_EQ(main.iMaterialsOpen, 1);
    EXPECT_EQ(firstMaterial->MyForm(), nullptr);
    EXPECT_FALSE(main.menu.mnuViewMechElem(3).Enabled()) << "the table stays the current one";
    EXPECT_EQ(main.strTableButton, "Mech");
}

TEST(ReferencePage, LongTextsCanBeRead) {
    const QString sentence = QString("Seamless steel tubes for pressure purposes, ").repeated(6).left(255);
    const QString name = QString("X2CrNiMo17-12-2 ").repeated(5).left(80);
    const TestProgram program(
        smallDatabase({"standard values (2, '" + name + "', '" + sentence + "', '2020-01-01', 0)",
                       "materials values (11, '" + name + "', '1.4404', '" + sentence + "', '" + name +
                           "', '2020-01-01', '" + name + "', null, null, null)"}));
    frmMaterial2 &window = program.open(program.material(11));
    window.ShowTable("Ref");
    QCoreApplication::processEvents();
    for (const int box : {0, 1, 2, 3, 5}) {
        QPlainTextEdit &edit = *window.txtMainData(box);
        const bool whole = edit.verticalScrollBar()->maximum() == 0;
        EXPECT_TRUE(whole || edit.verticalScrollBar()->isVisible()) << box;
        EXPECT_GE(edit.height(), 23) << box;
    }
    EXPECT_EQ(window.txtMainData(1)->verticalScrollBar()->maximum(), 0);
    EXPECT_LE(window.framMain->geometry().bottom(), window.lblMain->geometry().bottom());
    EXPECT_EQ(placeOf(window.framMain).top(),
              placeOf(window.framStand).top() + placeOf(window.framStand).height() + 120);
}

TEST(ReferencePage, ShortTextsGiveTheirRoomToLongOnes) {
    const QString sentence = QString("Seamless steel tubes for pressure purposes, ").repeated(6).left(255);
    const QString name = QString("X2CrNiMo17-12-2 ").repeated(5).left(80);
    const TestProgram program(
        smallDatabase({"standard values (2, 'EN 1', '" + sentence + "', '2020-01-01', 0)",
                       "materials values (11, '" + name + "', '1.0425', '" + sentence +
                           "', 'EN 1', '2020-01-01', '1.1', null, null, null)"}));
    frmMaterial2 &window = program.open(program.material(11));
    window.ShowTable("Ref");
    QCoreApplication::processEvents();
    for (const int box : {0, 1, 2, 3, 4, 5, 7})
        EXPECT_EQ(window.txtMainData(box)->verticalScrollBar()->maximum(), 0) << box;
    EXPECT_LT(placeOf(window.txtMainData(7)).height(), placeOf(window.txtMainData(1)).height());
    for (int one = 0; one < 9; ++one)
        for (int other = 0; other < one; ++other) {
            const QWidget *const boxes[] = {window.txtMainData(one), window.txtMainData(other)};
            const bool neighbours = boxes[0]->parent() == boxes[1]->parent();
            EXPECT_FALSE(neighbours && boxes[0]->geometry().intersects(boxes[1]->geometry()))
                << one << ' ' << other;
        }
}

TEST(MenuPlaceTest, EveryTableHasItsEntry) {
    const QStringList places{"View0", "View1", "Mech0", "View3", "Mech1", "Mech1", "Mech1",
                             "Phys0", "Phys1", "Phys2", "Phys3", "Phys4", "Mech3", "View5"};
    for (int i = 0; i < places.size(); ++i) {
        const MenuPlace place = menuPlaceOf(TableVocabulary::GetShortTableName(i));
        EXPECT_EQ(place.group + QString::number(place.index), places[i]);
    }
    EXPECT_EQ(menuPlaceOf("Design").index, 6);
}

} // namespace

TEST(MaterialWindowOverAnotherMakersFile, WhatCannotBeReadHarmsOnlyThePageThatShowsIt) {
    for (const bool isShown : {false, true}) {
        const TestProgram program([isShown](const QString &path) {
            smallDatabase({"ModElast values (1, 20, 212)"})(path);
            makeDatabase(
                path,
                {"alter table materials add column checked Date",
                 "update materials set checked = 'yesterday'", "alter table ModElast add column picture Blob",
                 isShown ? "update ModElast set ModElast = x'00'" : "update ModElast set picture = x'00'"});
        });
        const auto material = program.material(1);
        frmMaterial2 &window = program.open(material);
        EXPECT_EQ(errorOf([&] { window.ShowTable("ModElast"); }), isShown ? 3343 : 0);
        if (isShown) continue;
        EXPECT_EQ(window.tdbBoundTable->CellText(0, 1), "212");
        mdiVelmar::instance().SetCurrentMaterial(material);
        material->colBoundTables() = QStringList("ModElast");
        actRepBound report;
        EXPECT_TRUE(Printing::gridText(report.Run()).contains("212"));
    }
}
