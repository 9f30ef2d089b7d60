// Materials into the list of the selected ones, out of it, and opened.
#include "data/Material.h"
#include "material/frmMaterial2.h"
#include "platform/dao/recordset.h"
#include "platform/forms/forms.h"
#include "platform/forms/msg_box.h"
#include "platform/forms/toolbar.h"
#include "shell/mdiVelmar.h"
#include "tests/program/search_statement_log.h"
#include "tests/support/gui.h"
#include "tests/support/program_fixture.h"
#include "tests/support/raising_through_qt.h"
#include "tests/support/small_database.h"

namespace {

const QString NoneSelected = "No Materials Currently Selected";

class SearchSelectionTest : public ProgramFixture {
protected:
    QStringList selected() {
        QStringList names;
        for (const auto &material : main().colMaterials)
            names << material->Name();
        return names;
    }
    void addFirst(int count) {
        for (int i = 0; i < count; ++i) {
            search().tdbMaterials->setRow(i);
            click(search().cmdSelectMat);
        }
    }
    QWidget *rows(TDBGrid *grid) { return grid->focusProxy(); }
    void expectBox(const QString &title, const QString &text, int style) {
        EXPECT_EQ(modal().lastAsked().title, title);
        EXPECT_EQ(modal().lastAsked().text, text);
        EXPECT_EQ(modal().lastAsked().style, style);
    }
    QList<frmMaterial2 *> windows() {
        QList<frmMaterial2 *> result;
        for (FormBase &form : Forms())
            if (auto *window = form.as<frmMaterial2>()) result << window;
        return result;
    }
};

TEST_F(SearchSelectionTest, EveryWayOfAddingEndsInTheList) {
    type(search().txtSearch(1), "X5CrNi18-10");
    press(search().txtSearch(1), Qt::Key_Return);
    search().txtSearch(1)->clear();

    press(rows(search().tdbMaterials), Qt::Key_Down);
    press(rows(search().tdbMaterials), Qt::Key_Return);
    search().tdbMaterials->setRow(2);
    Q_EMIT search().tdbMaterials->DblClick();
    click(search().cmdTabNav(2));
    click(search().cmdSelectMat);
    click(search().cmdTabNav(3));
    drop(search().tdbMaterials, search().imgFolder);
    click(search().cmdTabNav(1));
    drop(search().tdbMaterials, search().tdbSelected);
    const auto name = [this](int row) { return search().tdbMaterials->CellText(row, 1); };
    EXPECT_EQ(selected(), QStringList({"X5CrNi18-10", name(1), name(2), name(3), name(37), name(36)}));
    EXPECT_EQ(search().lblSelCount->text(), "6 Materials Currently Selected");

    drop(search().tdbMaterials, search().imgBin);
    drop(search().tdbSelected, search().imgFolder);
    EXPECT_EQ(selected().size(), 6);
    type(search().txtSearch(1), "no such");
    press(search().txtSearch(1), Qt::Key_Return);
    click(search().cmdSelectMat);
    EXPECT_EQ(selected().size(), 6);
}

TEST_F(SearchSelectionTest, AMaterialTakesItsStandardAlong) {
    type(search().txtSearch(1), "P265");
    search().tdbMaterials->setRow(2);
    click(search().cmdSelectMat);
    const auto material = main().colMaterials.Item(1);
    EXPECT_EQ(material->Standard(), search().tdbMaterials->CellText(2, 0));
    EXPECT_EQ(search().dtaStandard->recordset()->Fields("stID").toInt(), material->StandardID());
}

TEST_F(SearchSelectionTest, AMaterialOfAnUnknownStandardIsRefusedAndGetsNoOther) {
    TestProgram::Given given;
    given.putDatabase = smallDatabase({"materials values (11, 'Lost', '1.11', null, null, '2020-01-01', "
                                       "'Unknown', null, null, null)",
                                       "materials values (12, 'Loose', '1.12', null, null, '2020-01-01', "
                                       "null, null, null, null)",
                                       "standard values (2, null, null, '2020-01-01', 0)"});
    start(given);
    EXPECT_EQ(search().lblMatCount->text(), "12");
    for (const auto &[name, standard] : {std::pair{"Lost", "Unknown"}, std::pair{"Loose", ""}}) {
        type(search().txtSearch(1), name);
        modal().answerMsgBox(vbOK);
        click(search().cmdSelectMat);
        EXPECT_EQ(
            modal().lastAsked().text,
            QString("The standard '%1' of the material '%2' is not in the database. The material cannot "
                    "be selected.")
                .arg(standard, name));
        EXPECT_TRUE(selected().isEmpty());
        search().txtSearch(1)->clear();
    }
    type(search().txtSearch(1), "Grade");
    click(search().cmdSelectMat);
    EXPECT_EQ(main().colMaterials.Item(1)->Standard(), "S");
}

TEST_F(SearchSelectionTest, TheListIsOneStatement) {
    StatementLog log(search());
    addFirst(1);
    EXPECT_EQ(search().lblSelCount->text(), "1 Material Currently Selected");
    const QString first = QString::number(main().colMaterials.Item(1)->ID());
    EXPECT_EQ(log.taken(),
              QStringList("select * from Materials where matId = " + first + " order by standard, name"));
    search().tdbMaterials->setRow(1);
    click(search().cmdSelectMat);
    const QString both = "select * from Materials where matId = " + first +
                         " or matId = " + QString::number(main().colMaterials.Item(2)->ID());
    EXPECT_EQ(log.last(), both + " order by standard, name");
    Q_EMIT search().tdbSelected->HeadClick(5);
    EXPECT_EQ(log.last(), both + " order by revision_date");
    search().cmbChooseStd->setCurrentText("ASME");
    Q_EMIT search().tdbSelected->HeadClick(1);
    EXPECT_EQ(log.last(), both + " order by asmegrade");

    search().tdbSelected->setRow(0);
    click(search().cmdSelections(2));
    drop(search().tdbSelected, search().tdbMaterials);
    EXPECT_EQ(log.last(), "select * from materials where matId = 0");
    EXPECT_EQ(search().lblSelCount->text(), NoneSelected);
}

TEST_F(SearchSelectionTest, DuplicatesAndTheEleventhAreRefused) {
    addFirst(1);
    modal().answerMsgBox(vbOK);
    click(search().cmdSelectMat);
    expectBox("Duplicate Choice", "This Material is already selected!", vbOKOnly);
    for (int i = 1; i < 10; ++i) {
        search().tdbMaterials->setRow(i);
        EXPECT_TRUE(search().cmdSelectMat->isEnabled());
        click(search().cmdSelectMat);
    }
    EXPECT_FALSE(search().cmdSelectMat->isEnabled());
    search().tdbMaterials->setRow(10);
    modal().answerMsgBox(vbOK);
    press(rows(search().tdbMaterials), Qt::Key_Return);
    expectBox("10 Materials already selected!", "You have already selected the Maximum Number of Materials",
              vbInformation);
    EXPECT_EQ(selected().size(), 10);

    search().cmdBatch(0)->show();
    Q_EMIT search().tdbMaterials->DblClick();
    EXPECT_EQ(selected().size(), 11) << "batch printing takes more";
    EXPECT_FALSE(search().cmdSelectMat->isEnabled());
    drop(search().tdbSelected, search().imgBin);
    EXPECT_TRUE(search().cmdSelectMat->isEnabled());
    for (int i = 0; selected().size() < 30; ++i) {
        search().tdbMaterials->setRow(37 - i);
        click(search().cmdSelectMat);
    }
    EXPECT_FALSE(search().cmdSelectMat->isEnabled());
    modal().answerMsgBox(vbOK);
    Q_EMIT search().tdbMaterials->DblClick();
    EXPECT_EQ(modal().lastAsked().title, "10 Materials already selected!");
}

TEST_F(SearchSelectionTest, OtherStandardsSystemsWarnBeforeAnythingElse) {
    search().cmbChooseStd->setCurrentText("SS");
    modal().answerMsgBox(vbOK);
    click(search().cmdSelectMat);
    expectBox(
        "ASME/SS-standard",
        "You have entered an ASME/SS-standard. \r\nThe material properties given by VELMAR PED are valid "
        "for EN-standards only.",
        vbExclamation);
    EXPECT_EQ(selected().size(), 1);
    modal().answerMsgBox(vbOK);
    modal().answerMsgBox(vbOK);
    click(search().cmdSelectMat);
    EXPECT_EQ(modal().lastAsked().title, "Duplicate Choice");
    type(search().txtSearch(1), "no such");
    modal().answerMsgBox(vbOK);
    click(search().cmdSelectMat);
    EXPECT_EQ(modal().lastAsked().title, "ASME/SS-standard");
    EXPECT_EQ(selected().size(), 1);
}

TEST_F(SearchSelectionTest, RemovingAndClearingFillTheBinForGood) {
    for (int button : {0, 1, 2})
        click(search().cmdSelections(button));
    EXPECT_TRUE(search().imgBin->Picture().endsWith("bin-empty.svg")) << "nothing was thrown away";
    addFirst(3);
    search().tdbSelected->setRow(1);
    const QString removed = search().tdbSelected->CellText(1, 1);
    click(search().cmdSelections(2));
    EXPECT_EQ(selected().size(), 2);
    EXPECT_FALSE(selected().contains(removed));
    EXPECT_TRUE(search().imgBin->Picture().endsWith("bin-full.svg"));

    StatementLog log(search());
    click(search().cmdSelections(1));
    EXPECT_EQ(log.taken(), QStringList("select * from materials where matid = 0"));
    EXPECT_EQ(search().lblSelCount->text(), NoneSelected);
    EXPECT_EQ(search().tdbSelected->RowCount(), 0);
    EXPECT_TRUE(search().imgBin->Picture().endsWith("bin-full.svg"));
}

TEST_F(SearchSelectionTest, ShowOpensAWindowForEachAndSelectComesBack) {
    main().menu.mnuWindowElem(1).trigger();
    addFirst(3);
    click(search().cmdSelections(0));
    ASSERT_EQ(windows().size(), 3);
    EXPECT_EQ(windows().first()->Caption(), "Name: 10CrMo9-10 Number: 1.7380 Standard: EN 10028-2");
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(windows()[i]->Visible());
        EXPECT_EQ(main().colMaterials.Item(i + 1)->MyForm(), windows()[i]);
    }
    EXPECT_EQ(windows()[1]->Top(), 5055) << "the lower row of the tiles, in whole pixels";
    EXPECT_EQ(main().strArrangement, "Horizontal");
    EXPECT_EQ(main().Toolbar1->Buttons("Horizontal").Value(), tbrPressed);
    EXPECT_EQ(main().strTableButton, "Ref");
    EXPECT_EQ(main().Toolbar1->Buttons("Ref").Value(), tbrPressed);
    EXPECT_EQ(main().iMaterialsOpen, 3);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_FALSE(search().Visible());
    EXPECT_TRUE(main().menu.mnuView->Visible());
    EXPECT_TRUE(main().menu.mnuFileElem(3).Enabled());

    EXPECT_EQ(main().menu.mnuFileElem(0).Caption(), "Select &Material(s)");
    main().menu.mnuFileElem(0).trigger();
    deleteUnloaded();
    EXPECT_TRUE(windows().isEmpty());
    EXPECT_TRUE(search().Visible());
    EXPECT_EQ(search().tdbSelected->RowCount(), 3);
    main().menu.mnuSettingsToolElem(1).trigger();
    main().menu.mnuFileElem(0).trigger();
    EXPECT_EQ(windows().size(), 3) << "the same set can be shown again";
}

TEST_F(SearchSelectionTest, AClosedWindowMakesRoomForAnotherMaterial) {
    addFirst(10);
    click(search().cmdSelections(0));
    main().CloseMaterial();
    main().menu.mnuFileElem(0).trigger();
    deleteUnloaded();
    EXPECT_EQ(search().lblSelCount->text(), "9 Materials Currently Selected");
    EXPECT_TRUE(search().cmdSelectMat->isEnabled());
}

TEST_F(SearchSelectionTest, BatchPrintingShowsNoMaterialWindowAndComesBack) {
    type(search().txtSearch(1), "ZORBALTIKREMO");
    click(search().chkListAll);
    click(search().cmdBatch(0));
    EXPECT_TRUE(modal().asked().isEmpty()) << "nothing to print";
    addFirst(2);
    modal().driveForm([this](Form &report) {
        EXPECT_TRUE(main().bBatchPrint);
        EXPECT_FALSE(search().Visible());
        for (const frmMaterial2 *window : windows())
            EXPECT_FALSE(window->isVisible());
        report.Unload();
    });
    click(search().cmdBatch(0));
    deleteUnloaded();
    EXPECT_FALSE(main().bBatchPrint);
    EXPECT_TRUE(search().Visible());
    EXPECT_TRUE(windows().isEmpty());
    EXPECT_EQ(selected().size(), 2);
}

} // namespace
