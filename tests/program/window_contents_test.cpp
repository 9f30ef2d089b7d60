// What stands in each window: every named control with its texts and its state, as tests/program/contents
// tells it. Whoever changes a window on purpose takes over what the failing test prints.
#include <gtest/gtest.h>

#include "data/queries.h"
#include "material/frmMaterial2.h"
#include "platform/forms/default_instance.h"
#include "pma/frmPmaIndex.h"
#include "reports/frmSelData.h"
#include "search/frmSearch.h"
#include "search/frmSelect.h"
#include "search/frmSelectStand.h"
#include "search/modDBase_picks.h"
#include "shell/mdiVelmar.h"
#include "start/frmAbout.h"
#include "tests/program/window_contents.h"
#include "tests/support/gui.h"
#include "tests/support/program_fixture.h"

using WindowContentsText::expectWindow;

namespace {

class WindowContents : public ProgramFixture {
protected:
    void expectModal(const QString &name, const std::function<void()> &show) {
        main();
        modal().driveForm([name](Form &form) {
            expectWindow(form, name);
            form.Unload(vbFormControlMenu);
        });
        show();
    }
    void expectMaterial(const QString &table, const QString &name) {
        const auto material = program().material(2);
        frmMaterial2 &window = program().open(material);
        window.ShowTable(table);
        expectWindow(window, name);
    }
};

} // namespace

TEST_F(WindowContents, Search) {
    expectWindow(search(), "search");
}

TEST_F(WindowContents, PickAName) {
    expectModal("pick a name", [] {
        modDBase::SelectFromList("select distinct name from materials order by name", "name", "Material Name",
                                 "DatabaseName");
    });
}

TEST_F(WindowContents, PickAStandard) {
    expectModal("pick a standard",
                [] { modDBase::SelectStandard(Queries::sqlAllStandards(), "DatabaseName"); });
}

TEST_F(WindowContents, Material) {
    expectMaterial("Ref", "references");
}

TEST_F(WindowContents, Composition) {
    expectMaterial("ChemComp", "composition");
}

TEST_F(WindowContents, ElevatedTemperature) {
    expectMaterial("Elevated", "elevated temperature");
}

TEST_F(WindowContents, DesignValues) {
    expectMaterial("Design", "design values");
}

TEST_F(WindowContents, ChoiceOfTables) {
    const auto material = program().material(2);
    program().open(material);
    main().menu.mnuFileElem(FileEntry::Save).setEnabled(true);
    expectModal("choice of tables", [this] { main().menu.mnuFileElem(FileEntry::Save).trigger(); });
}

TEST_F(WindowContents, About) {
    expectModal("about", [this] { main().menu.mnuHelpElem(HelpEntry::About).trigger(); });
}

TEST_F(WindowContents, FormatOfDesignValues) {
    const auto material = program().material(2);
    frmMaterial2 &window = program().open(material);
    window.ShowTable("Design");
    window.txtDesignTemp->setText("100");
    expectModal("format of design values", [&] { window.cmdPrintSave(4)->click(); });
}

TEST_F(WindowContents, EnlargedChart) {
    const auto material = program().material(2);
    frmMaterial2 &window = program().open(material);
    window.ShowTable("Rp02");
    window.CommandShowGraph->click();
    expectModal("enlarged chart", [&] { window.cmdPrintSave(2)->click(); });
}

TEST_F(WindowContents, CreepProperties) {
    expectMaterial("CreepProp", "creep properties");
}

TEST_F(WindowContents, PmaIndex) {
    expectModal("pma index", [this] { search().cmdShowPmaIndex->click(); });
}
