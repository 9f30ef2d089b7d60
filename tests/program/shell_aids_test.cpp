// Tool tips of all windows together, and the search window on small screens.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QHelpEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <QToolTip>

#include "data/Material.h"
#include "material/frmChart.h"
#include "material/frmMaterial2.h"
#include "platform/forms/default_instance.h"
#include "platform/forms/ms_chart.h"
#include "platform/forms/msg_box.h"
#include "platform/forms/toolbar.h"
#include "search/frmSearch.h"
#include "search/frmSelect.h"
#include "shell/HTMLHelp.h"
#include "shell/mdiVelmar.h"
#include "tests/support/gui.h"
#include "tests/support/program.h"
#include "tests/support/small_database.h"

namespace {

/// Every tip of a window, as "control=tip".
QStringList tipsOf(QWidget &window) {
    QStringList tips;
    for (const QWidget *control : window.findChildren<QWidget *>())
        if (!control->toolTip().isEmpty()) tips << control->objectName() + '=' + control->toolTip();
    return tips;
}

void switchToolTips() {
    mdiVelmar::instance().menu.mnuSettingsElem(3).trigger();
}

} // namespace

TEST(ToolTips, ReachTheWindowsThatAreOpenAndThoseThatOpenLater) {
    const TestProgram program;
    const auto buttonTip = [](const char *key) {
        return mdiVelmar::instance().Toolbar1->Buttons(key).ToolTipText();
    };
    frmMaterial2 &first = program.open(program.material(2));
    first.ShowTable("ChemComp");
    const QStringList before = tipsOf(first);
    EXPECT_EQ(buttonTip("Print"), "Print (Preview) P265GH Report...");

    switchToolTips();
    EXPECT_EQ(tipsOf(first), QStringList());
    first.cmdShowNotes->click();
    frmMaterial2 &second = program.open(program.material(3));
    EXPECT_EQ(tipsOf(first), QStringList()) << "opened notes bring none back";
    EXPECT_EQ(tipsOf(second), QStringList());
    EXPECT_EQ(buttonTip("Print"), "");
    QStringList inDialog;
    modal().driveForm([&](Form &form) {
        form.as<frmSelect>()->txtSearch->setText("P"); // which the tips of the buttons would tell
        inDialog = tipsOf(form);
        form.Unload();
    });
    DefaultInstance<frmSearch>().cmdSelect(1)->click();
    EXPECT_EQ(inDialog, QStringList());

    switchToolTips();
    EXPECT_TRUE(tipsOf(first).contains("cmdShowNotes=Hide Table Notes"));
    first.cmdShowNotes->click();
    EXPECT_EQ(tipsOf(first), before);
    EXPECT_EQ(tipsOf(second), before);
    EXPECT_EQ(buttonTip("Print"), "Print 'P295GH'");
    EXPECT_EQ(buttonTip("Save"), "Save 'P295GH'");
    EXPECT_EQ(buttonTip("Exit"), "Exit");
}

TEST(PlainText, TagsOfADatabaseAreShownAsTheyStand) {
    const QString tags = "<img src=FIFO><b>x</b>";
    const QString text = "'" + tags + "'";
    const TestProgram program(smallDatabase(
        {"standard values (2, " + text + ", " + text + ", '2020-01-01', 0)",
         "materials values (11, " + text + ", " + text + ", " + text + ", " + text + ", '2020-01-01', " +
             text + ", null, null, null)",
         "Columns values (1, " + text + ", 1)", "Columns values (2, 'Rm', 1)",
         "Units values (1, " + text + ")", "CreepPropTable values (2, 1, 1, null, null, 300)",
         "CreepPropTable values (2, 2, 2, null, null, 0)",
         "CreepProperties values (11, 1, 1, 1, " + text + ")", "CreepProperties values (11, 1, 2, 2, '100')",
         "StandProdForm values (2, 1)", "ProdForm values (1, " + text + ")"}));
    mdiVelmar &main = mdiVelmar::instance();
    main.Toolbar1->show();
    const auto shownAsPage = [] {
        QStringList found;
        for (const QWidget *widget : QApplication::allWidgets()) {
            const auto *label = qobject_cast<const QLabel *>(widget);
            const bool guesses = label != nullptr && label->isVisible() &&
                                 label->textFormat() != Qt::PlainText && !label->text().isEmpty();
            if (guesses) found << label->objectName() + ": " + label->text();
        }
        return found.join(", ").toStdString();
    };
    const auto tipAt = [](QWidget &place, const QPoint &at) {
        QHelpEvent event(QEvent::ToolTip, at, place.mapToGlobal(at));
        QApplication::sendEvent(&place, &event);
        return QToolTip::text();
    };
    frmSearch &search = DefaultInstance<frmSearch>();
    modal().driveForm([&](Form &form) {
        EXPECT_EQ(shownAsPage(), "");
        form.Unload();
    });
    search.cmdSelect(0)->click();

    frmMaterial2 &window = program.open(program.material(11));
    main.SetCurrentMaterial(program.material(11));
    EXPECT_EQ(window.txtMainData(2)->toPlainText(), ' ' + tags);
    EXPECT_TRUE(window.windowTitle().contains(tags));
    for (const char *key : {"Close", "Save", "Print"}) {
        auto *button = main.Toolbar1->findChild<QToolButton *>(QString("Toolbar1(%1)").arg(key));
        EXPECT_TRUE(tipAt(*button, {4, 4}).contains(tags)) << key;
        EXPECT_EQ(shownAsPage(), "");
    }
    window.ShowTable("CreepProp");
    EXPECT_TRUE(window.cmdUnBoundGraph->isVisible());
    auto *view = window.tdbTable->findChild<QTableView *>();
    EXPECT_EQ(tipAt(*view->viewport(), {4, 4}), tags);
    window.cmdUnBoundGraph->click();
    EXPECT_TRUE(window.lblXAxis->text().contains(tags));
    EXPECT_EQ(shownAsPage(), "");
}

TEST(SmallScreens, EveryWindowLiesBesideThePanels) {
    TestProgram::Given given;
    given.screen = {800, 600};
    given.freeArea = {0, 28, 800, 532};
    const TestProgram program(given);
    QFile::copy(BINARY_FOLDER "/Velmar_PED_HELP.qch", program.folder() + "/Velmar_PED_HELP.qch");
    const auto expectInside = [&](QWidget &window) {
        EXPECT_LE(window.width(), 794) << window.objectName().toStdString();
        EXPECT_LE(window.height(), 507) << window.objectName().toStdString();
        const bool placed = window.testAttribute(Qt::WA_Moved);
        EXPECT_TRUE(!placed || given.freeArea.contains(window.geometry()))
            << window.objectName().toStdString();
    };
    const auto inside = [&](Form &form) {
        expectInside(form);
        form.Unload();
    };
    auto &main = mdiVelmar::instance();
    expectInside(main);
    modal().driveForm(inside);
    DefaultInstance<frmSearch>().cmdShowPmaIndex->click();
    HTMLHelp::ShowHelpContents(1);
    for (QWidget *window : QApplication::topLevelWidgets())
        if (window->objectName() == QLatin1String("HelpViewer")) {
            expectInside(*window);
            window->close();
        }

    frmMaterial2 &window = program.open(program.material(2));
    main.menu.mnuFileElem(3).setEnabled(true);
    modal().driveForm(inside);
    main.menu.mnuFileElem(3).trigger();
    window.ShowTable("Rp02");
    modal().driveForm(inside); // the preview
    window.cmdPrintSave(1)->click();
    modal().driveForm([&](Form &form) {
        expectInside(form);
        auto &enlarged = *form.as<frmChart>();
        enlarged.resize(10, 10);
        QCoreApplication::processEvents();
        EXPECT_GE(enlarged.MSChart1->width(), enlarged.MSChart1->smallestSize().width());
        EXPECT_GE(enlarged.MSChart1->height(), enlarged.MSChart1->smallestSize().height());
        for (const auto &[index, button] : enlarged.cmdGraph)
            EXPECT_TRUE(enlarged.framChart->rect().contains(button->geometry())) << index;
        form.Unload();
    });
    window.cmdPrintSave(2)->click();
}

TEST(SmallScreens, EveryPartOfTheSearchWindowCanBeReached) {
    for (const QSize &screen : {QSize(1024, 768), QSize(800, 600), QSize(640, 480)}) {
        if (screen.width() < 800) modal().answerMsgBox(vbOK);
        TestProgram::Given given;
        given.screen = screen;
        const TestProgram program(given);
        QCoreApplication::processEvents();
        const mdiVelmar &main = mdiVelmar::instance();
        EXPECT_LE(main.width(), screen.width());
        EXPECT_LE(main.height(), screen.height());
        const auto *area = main.findChild<QMdiArea *>();
        const QRect frame = area->subWindowList().value(0)->geometry();
        EXPECT_GE(area->viewport()->width() + area->horizontalScrollBar()->maximum(), frame.right());
        EXPECT_GE(area->viewport()->height() + area->verticalScrollBar()->maximum(), frame.bottom());
        const bool fits =
            !area->horizontalScrollBar()->isVisible() && !area->verticalScrollBar()->isVisible();
        EXPECT_EQ(fits, screen.width() >= 800) << screen.width();
    }
}
