// What stands in each window: every named control with its texts and its state, as tests/program/contents
// tells it. Whoever changes a window on purpose takes over what the failing test prints.
#include <gtest/gtest.h>

#include <QtWidgets/QtWidgets>

#include "data/queries.h"
#include "material/frmMaterial2.h"
#include "platform/forms/default_instance.h"
#include "platform/forms/tdb_grid.h"
#include "pma/frmPmaIndex.h"
#include "reports/frmSelData.h"
#include "search/frmSearch.h"
#include "search/frmSelect.h"
#include "search/frmSelectStand.h"
#include "search/modDBase_picks.h"
#include "shell/mdiVelmar.h"
#include "start/frmAbout.h"
#include "tests/program/contents.h"
#include "tests/support/gui.h"
#include "tests/support/program_fixture.h"

namespace {

QString textOf(const QWidget &control) {
    for (const char *property : {"text", "plainText", "title", "currentText"})
        if (const QVariant text = control.property(property); text.isValid()) return text.toString();
    return {};
}

QString headingsOf(TDBGrid &grid) {
    QStringList headings;
    for (int i = 0; i < grid.ColumnCount(); ++i)
        if (grid.Columns(i).Visible()) headings << grid.Columns(i).Caption();
    for (const QWidget *part : grid.findChildren<QWidget *>())
        if (part->inherits("GridFooter") && part->isVisible()) headings << "with footers";
    return headings.join(QStringLiteral(" | "));
}

QString stateOf(const QWidget &control) {
    QString state;
    if (!control.isVisible()) state += " hidden";
    if (!control.isEnabled()) state += " disabled";
    if (control.property("readOnly").toBool()) state += " read-only";
    if (control.property("checked").toBool()) state += " checked";
    if (control.property("default").toBool()) state += " default";
    return state;
}

QString lineOf(QWidget &control) {
    auto *grid = qobject_cast<TDBGrid *>(&control);
    const QString parts[] = {control.metaObject()->className() + QStringLiteral(" ") + control.objectName(),
                             control.accessibleName(), grid ? headingsOf(*grid) : textOf(control),
                             control.toolTip()};
    QString line = parts[0] + stateOf(control);
    const char *const names[] = {"", "named", "says", "tip"};
    for (int i = 1; i < 4; ++i)
        if (!parts[i].isEmpty()) line += QStringLiteral("; %1 \"%2\"").arg(names[i], parts[i]);
    return line.replace("\r\n", "\\n").replace('\n', "\\n");
}

/// Indented as the controls stand in each other.
void list(const QWidget &parent, const QString &indent, QString &lines) {
    for (QObject *child : parent.children()) {
        auto *control = qobject_cast<QWidget *>(child);
        if (!control || control->isWindow()) continue;
        const bool isOwn = !control->objectName().isEmpty() && !control->objectName().startsWith("qt_");
        if (isOwn) lines += indent + lineOf(*control) + '\n';
        if (!control->inherits("TDBGrid")) list(*control, isOwn ? indent + "  " : indent, lines);
    }
}

/// Those that a user cannot see whole.
QString outsideTheirPlace(const QWidget &window) {
    QString outside;
    for (QWidget *control : window.findChildren<QWidget *>()) {
        if (!control->isVisible() || control->isWindow() || control->objectName().isEmpty()) continue;
        if (control->objectName().startsWith("qt_")) continue;
        if (control->objectName() == "txtNotes") continue; // folded away behind its heading
        const QWidget &place = *control->parentWidget();
        if (!place.rect().contains(control->geometry())) outside += lineOf(*control) + '\n';
    }
    return outside;
}

void expectContents(const QWidget &window, const QString &name) {
    QString lines;
    list(window, {}, lines);
    Contents::expect(lines, name);
    EXPECT_EQ(outsideTheirPlace(window).toStdString(), "");
}

class WindowContents : public ProgramFixture {
protected:
    void expectModal(const QString &name, const std::function<void()> &show) {
        main();
        modal().driveForm([name](Form &form) {
            expectContents(form, name);
            form.Unload(vbFormControlMenu);
        });
        show();
    }
    void expectMaterial(const QString &table, const QString &name) {
        const auto material = program().material(2);
        frmMaterial2 &window = program().open(material);
        window.ShowTable(table);
        expectContents(window, name);
    }
};

} // namespace

TEST_F(WindowContents, Search) {
    expectContents(search(), "search");
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
