// What a screen reader is told of the windows, and how far Tab goes in them.
#include <algorithm>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QFile>
#include <QSet>
#include <QTabWidget>
#include <QTest>

#include "platform/desktop/help_viewer.h"
#include "platform/forms/default_instance.h"
#include "platform/forms/toolbar.h"
#include "reports/frmSelData.h"
#include "search/frmSearch.h"
#include "tests/program/reports_fixture.h"
#include "tests/support/gui.h"
#include "workbench/frmCompare.h"
#include "workbench/frmValueSheet.h"

namespace {

/// Rows and cells of grids and lists are told by their texts; they are left out.
bool holdsItems(const QAccessibleInterface &place) {
    const QAccessible::Role role = place.role();
    return role == QAccessible::Table || role == QAccessible::List || role == QAccessible::Tree;
}

QString described(const QAccessibleInterface &place) {
    const QObject *object = place.object();
    return QStringLiteral("%1 (role %2)")
        .arg(object != nullptr ? object->objectName() : QStringLiteral("?"))
        .arg(static_cast<int>(place.role()));
}

/// The name of a list to choose from is what is chosen, so that a label has to say what for.
bool isWithoutCaption(const QAccessibleInterface &place) {
    if (place.role() != QAccessible::ComboBox) return false;
    const auto labels = place.relations(QAccessible::Label);
    return std::none_of(labels.begin(), labels.end(), [](const auto &label) {
        return label.first->role() == QAccessible::StaticText &&
               !label.first->text(QAccessible::Name).isEmpty();
    });
}

/// The places that take the keyboard and have no name to say, no caption, or nothing that they are.
void collectNameless(const QAccessibleInterface *place, QStringList &nameless) {
    if (place == nullptr || place->state().invisible) return;
    const auto *widget = qobject_cast<QWidget *>(place->object());
    const bool passesOn = widget != nullptr && widget->focusProxy() != nullptr;
    if (place->state().focusable && !place->state().disabled &&
        (place->text(QAccessible::Name).trimmed().isEmpty() || isWithoutCaption(*place) ||
         (place->role() == QAccessible::Client && !passesOn)))
        nameless << described(*place);
    if (holdsItems(*place)) return;
    for (int i = 0; i < place->childCount(); ++i)
        collectNameless(place->child(i), nameless);
}

/// What a mouse could use: the tool bars' commands have their menu entries, so they need no Tab.
QSet<QWidget *> usable(QWidget &window) {
    QSet<QWidget *> found;
    const QList<QWidget *> all = window.findChildren<QWidget *>();
    for (QWidget *widget : all) {
        const bool own = widget->window() == window.window() && widget->isVisible() && widget->isEnabled();
        const auto *button = qobject_cast<QAbstractButton *>(widget);
        if (own && button != nullptr && !widget->inherits("QTableCornerButton")) found.insert(widget);
    }
    return found;
}

/// The widgets that Tab passes, from the one that has the focus until it comes round.
QList<QWidget *> tabRound() {
    QList<QWidget *> passed;
    QCoreApplication::processEvents(); // a window that has just shown takes the focus by an event
    for (int i = 0; i < 200; ++i) {
        QWidget *focused = QApplication::focusWidget();
        if (focused == nullptr || passed.contains(focused)) break;
        passed << focused;
        QTest::keyClick(QGuiApplication::focusWindow(), Qt::Key_Tab);
    }
    return passed;
}

/// Of a group of options the chosen one has the focus, and the arrows choose.
bool reachedByArrows(QWidget *widget) {
    const auto *button = qobject_cast<QAbstractButton *>(widget);
    return button != nullptr && button->autoExclusive() && !button->isChecked();
}

void checkNames(QWidget &window) {
    QStringList nameless;
    collectNameless(QAccessible::queryAccessibleInterface(&window), nameless);
    EXPECT_EQ(nameless.join(", ").toStdString(), "");
}

void check(QWidget &window, const char *what) {
    SCOPED_TRACE(what);
    checkNames(window);

    const QList<QWidget *> passed = tabRound();
    QStringList missed;
    for (QWidget *widget : usable(window))
        if (!passed.contains(widget) && !reachedByArrows(widget))
            missed << widget->objectName() + ':' + widget->metaObject()->className();
    missed.sort();
    EXPECT_EQ(missed.join(", ").toStdString(), "");
}

class Accessibility : public Reports {
protected:
    static void click(QWidget *button) { QTest::mouseClick(button, Qt::LeftButton); }
    static void command(MenuArray &menu, int entry) {
        menu(entry).setEnabled(true);
        menu(entry).trigger();
    }
    /// Checks the window that the action opens, and closes it.
    void checkModal(const char *what, const std::function<void()> &action) {
        modal().driveForm([what](Form &form) {
            check(form, what);
            form.Unload();
        });
        action();
        deleteUnloaded();
    }
};

} // namespace

TEST_F(Accessibility, OfTheSearch) {
    auto &search = DefaultInstance<frmSearch>();
    check(search, "search");
    checkModal("list", [&] { click(search.cmdSelect(1)); });
    checkModal("standards", [&] { click(search.cmdSelect(0)); });
    checkModal("PMA index", [&] { click(search.cmdShowPmaIndex); });
}

TEST_F(Accessibility, OfTheMainWindowAndTheHelp) {
    open(SampleGrades::P265GH);
    ASSERT_TRUE(QFile::copy(BINARY_FOLDER "/Velmar_PED_HELP.qch", program.folder() + "/Velmar_PED_HELP.qch"));
    main().Toolbar1->show();
    checkNames(main());
    command(main().menu.mnuHelpElem, 0);
    HelpViewer *help = nullptr;
    for (QWidget *widget : QApplication::topLevelWidgets())
        if (auto *found = qobject_cast<HelpViewer *>(widget)) help = found;
    ASSERT_NE(help, nullptr);
    checkNames(*help);
    delete help;
}

TEST_F(Accessibility, OfTheComparisonAndTheSheet) {
    auto &compare = DefaultInstance<frmCompare>();
    compare.Show();
    check(compare, "without a grade");
    compare.Unload();
    open(SampleGrades::P265GH);
    auto &window = DefaultInstance<frmCompare>();
    window.Show();
    for (const int page : {0, 1, 2}) {
        window.tabPages->setCurrentIndex(page);
        check(window, qPrintable(window.tabPages->tabText(page)));
    }
    window.Unload();
    auto &sheet = DefaultInstance<frmValueSheet>();
    sheet.Show();
    check(sheet, "sheet");
    sheet.Unload();
}

TEST_F(Accessibility, OfTheMaterialWindow) {
    frmMaterial2 &window = open(SampleGrades::P265GH);
    DefaultInstance<frmSearch>().Hide();
    window.SetFocus();
    check(window, "references");
    for (const char *table :
         {"ChemComp", "MechProp", "ImpEnergy", "Rp02", "CreepProp", "ModElast", "ThermExp", "AddInfo"}) {
        window.ShowTable(table);
        check(window, table);
    }
    window.ShowTable("Rp02");
    click(window.CommandShowGraph);
    check(window, "graph");
    checkModal("enlarged graph", [&] { click(window.cmdPrintSave(2)); });
    window.ShowTable("Design");
    check(window, "design values");
    window.txtDesignTemp->setText("100");
    checkModal("save design values", [&] { click(window.cmdPrintSave(4)); });
}

TEST_F(Accessibility, OfTheReportsAndTheAboutWindow) {
    open(SampleGrades::P265GH);
    checkModal("save selection", [&] { command(main().menu.mnuFileElem, 2); });
    checkModal("print selection", [&] { command(main().menu.mnuFileElem, 3); });
    modal().driveForm([&](Form &form) { // the print selection, and in it the preview
        modal().driveForm([](Form &preview) {
            check(preview, "preview");
            preview.Unload();
        });
        click(static_cast<frmSelData &>(form).cmdSavePrint);
    });
    command(main().menu.mnuFileElem, 3);
    deleteUnloaded();
    checkModal("about", [&] { command(main().menu.mnuHelpElem, 4); });
}
