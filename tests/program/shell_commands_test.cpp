// Menu, tool bar and status line of the main window, and the arrangement of material windows.
#include <gtest/gtest.h>

#include <QTest>

#include "data/Material.h"
#include "material/frmMaterial2.h"
#include "platform/forms/colours.h"
#include "platform/forms/forms.h"
#include "platform/forms/status_bar.h"
#include "platform/forms/tdb_grid.h"
#include "platform/forms/toolbar.h"
#include "platform/runtime/runtime_error.h"
#include "search/frmSearch.h"
#include "shell/mdiVelmar.h"
#include "tests/support/error_of.h"
#include "tests/support/gui.h"
#include "tests/support/program.h"

namespace {

class Commands : public ::testing::Test {
protected:
    mdiVelmar &main() const { return mdiVelmar::instance(); }
    /// Opens the grades as the search window's Show does.
    void show(const QList<int> &ids) {
        for (int id : ids)
            main().colMaterials.Add(program.material(id));
        main().menu.mnuFileElem(0).trigger();
    }
    frmMaterial2 &window(int index) const {
        for (FormBase &form : Forms())
            if (form.Name() == QLatin1String("frmMaterial2") && index-- == 0) return *form.as<frmMaterial2>();
        throw RuntimeError(9);
    }
    bool pressed(const QString &key) const { return main().Toolbar1->Buttons(key).Value() == tbrPressed; }

    TestProgram program;
};

} // namespace

TEST_F(Commands, StatusMessagesAreRememberedRestoredAndOnlyShown) {
    const auto text = [&] { return main().stbStatus->PanelText(1); };
    main().ShowStatus(1);
    const QString standing = text();
    main().ShowStatus(107);
    EXPECT_EQ(text(), "About Velmar-PED");
    main().ShowStatus(100);
    EXPECT_EQ(text(), standing);
    for (int code : {-1, 21, 99, 121})
        EXPECT_EQ(errorOf([&] { main().ShowStatus(code); }), 9) << code;
}

TEST_F(Commands, TheCurrentTableIsOffInTheMenuAndPressedOnTheBar) {
    struct Case {
        const char *group;
        int index;
        const char *button;
        int dropDownEntry;
    };
    const Case cases[] = {{"View", 3, "ImpEnergy", 0},
                          {"Mech", 3, "Mech", 3},
                          {"Mech", 1, "Mech", 2},
                          {"Phys", 4, "Physical", 5},
                          {"View", 6, "Design", 0}};
    for (const Case &table : cases) {
        main().UpdateMenusAndButtons(table.group, table.index);
        EXPECT_EQ(main().strTableButton, table.button);
        for (int i = 8; i <= 14; ++i) {
            const ToolbarButton &button = main().Toolbar1->Buttons(i);
            EXPECT_EQ(button.Value() == tbrPressed, button.Key() == table.button)
                << button.Key().toStdString();
            for (int entry = 1; entry <= button.MenuCount(); ++entry)
                EXPECT_EQ(button.ButtonMenus(entry).Enabled(),
                          button.Key() != table.button || entry != table.dropDownEntry);
        }
    }
    EXPECT_FALSE(main().menu.mnuViewElem(6).Enabled());
    EXPECT_TRUE(main().menu.mnuViewElem(3).Enabled());
}

TEST_F(Commands, AllOpenWindowsChangeTableTogether) {
    show({2, 14});
    EXPECT_TRUE(pressed("Ref"));
    main().menu.mnuViewPhysElem(1).trigger();
    EXPECT_EQ(window(0).strCurrentTable, "ThermExp");
    EXPECT_EQ(window(1).strCurrentTable, "ThermExp");
    main().Toolbar1->Buttons("Mech").ButtonMenus("Elevated").trigger();
    EXPECT_EQ(window(1).strCurrentTable, "Rp02");
    EXPECT_TRUE(pressed("Mech"));
    Q_EMIT main().Toolbar1->ButtonClick(&main().Toolbar1->Buttons("Mech")); // only its entries choose a table
    EXPECT_EQ(window(1).strCurrentTable, "Rp02");
    main().Toolbar1->Buttons("Ref").widget()->click();
    main().Toolbar1->Buttons("Ref").widget()->click();
    EXPECT_TRUE(pressed("Ref"));
    EXPECT_TRUE(pressed("Cascade"));
    EXPECT_EQ(window(0).strCurrentTable, "Ref");
}

TEST_F(Commands, WindowsCascadeAndTile) {
    show({2, 3, 4, 5});
    EXPECT_EQ(window(0).Top(), 0);
    EXPECT_EQ(window(3).Top(), 900);
    EXPECT_EQ(main().mCurrent->ID(), 5); // the last one is in front
    main().menu.mnuWindowElem(1).trigger();
    EXPECT_EQ(window(0).Top(), 0);
    EXPECT_EQ(window(1).Top(), 0);
    EXPECT_EQ(window(2).Top(), 5055); // 5050 on whole pixels
    EXPECT_EQ(window(3).Top(), 5055);
    EXPECT_EQ(main().mCurrent->ID(), 2); // the first one is in front
    EXPECT_TRUE(pressed("Horizontal"));
    EXPECT_FALSE(pressed("Cascade"));
    EXPECT_TRUE(pressed("Ref"));
    EXPECT_EQ(main().strArrangement, "Horizontal");
    main().DoTileHorizontal(); // with the first one in front already
    EXPECT_EQ(main().activeChild(), &window(0));
    EXPECT_EQ(main().mCurrent->ID(), 2);
}

TEST_F(Commands, TheLastWindowClosedLeavesSelectAndExit) {
    show({2, 3});
    main().CloseMaterial();
    deleteUnloaded();
    EXPECT_EQ(main().colMaterials.Count(), 1);
    EXPECT_TRUE(main().menu.mnuView->Visible());
    EXPECT_EQ(main().Toolbar1->Buttons("Close").ToolTipText(), "Close " + main().mCurrent->Name());
    main().CloseMaterial();
    deleteUnloaded();
    EXPECT_EQ(main().colMaterials.Count(), 0);
    EXPECT_FALSE(main().menu.mnuView->Visible());
    EXPECT_FALSE(main().menu.mnuFileElem(2).Enabled());
    for (int i = 1; i <= 24; ++i)
        EXPECT_EQ(main().Toolbar1->Buttons(i).Visible(), i == 1 || i >= 23) << i;
    main().CloseMaterial(); // nothing is left, and nothing is said
    main().menu.mnuFileElem(0).trigger();
    EXPECT_TRUE(Forms::byName("frmSearch")->Visible());
    EXPECT_FALSE(main().Toolbar1->Visible());
}

TEST_F(Commands, BackToTheSearchKeepsTheSelection) {
    show({2, 3});
    EXPECT_EQ(main().menu.mnuFileElem(0).Caption(), "Select &Material(s)");
    EXPECT_FALSE(Forms::byName("frmSearch")->Visible());
    main().Toolbar1->Buttons("Select").widget()->click();
    deleteUnloaded();
    EXPECT_EQ(main().menu.mnuFileElem(0).Caption(), "Show Selected &Material(s)");
    EXPECT_EQ(Forms::Count(), 2);
    EXPECT_EQ(Forms::byName("frmSearch")->Top(), 45); // 50 on whole pixels
    EXPECT_EQ(main().colMaterials.Count(), 2);
    main().menu.mnuFileElem(0).trigger();
    main().menu.mnuFileElem(0).trigger(); // by the menu
    EXPECT_TRUE(main().stbStatus->PanelText(1).startsWith("You can search"));
}

TEST_F(Commands, ASeparatorHasNoText) {
    int separators = 0;
    for (const QAction *action : main().findChildren<QAction *>()) {
        if (!action->isSeparator()) continue;
        ++separators;
        EXPECT_EQ(action->text(), "") << action->objectName().toStdString();
    }
    EXPECT_GE(separators, 5);
}

TEST_F(Commands, BackColoursGoRoundInTheirCycle) {
    const auto step = [&] {
        main().menu.mnuSettingsElem(4).trigger();
        return main().BackColor();
    };
    EXPECT_EQ(main().BackColor(), main().cBlue);
    for (int colour : {main().cGreen, vbInfoBackground, vbApplicationWorkspace, vbWhite, main().cBlue})
        EXPECT_EQ(step(), colour);
    main().setBackColor(12345);
    EXPECT_EQ(step(), 12345); // not in the cycle, so it stays
    main().menu.mnuSettingsElem(2).trigger();
    EXPECT_EQ(main().BackColor(), vbWhite);
    EXPECT_EQ(step(), vbApplicationWorkspace);
    EXPECT_EQ(step(), vbWhite);
}

/// It keeps its place, and hands its state on to the window that takes the front.
TEST_F(Commands, AMaximisedWindowKeepsItsPlaceAndIsNotCounted) {
    show({2, 3, 4});
    const auto places = [&] {
        for (int i : {0, 1, 2})
            window(i).setWindowState(vbNormal);
        return QList<int>{window(0).Top(), window(1).Top(), window(2).Top()};
    };
    window(1).SetFocus();
    window(1).setWindowState(vbMaximized);
    main().menu.mnuWindowElem(1).trigger();
    EXPECT_EQ(main().mCurrent->ID(), 2);
    EXPECT_EQ(window(0).WindowState(), vbMaximized);
    EXPECT_TRUE(main().windowTitle().contains(window(0).Caption()));
    EXPECT_EQ(places(), QList<int>({0, 300, 5055})); // the third is the second of those that were laid out
    window(1).SetFocus();
    window(1).setWindowState(vbMaximized);
    main().menu.mnuWindowElem(0).trigger();
    EXPECT_EQ(main().mCurrent->ID(), 4);
    EXPECT_EQ(window(2).WindowState(), vbMaximized);
    EXPECT_EQ(places(), QList<int>({0, 300, 300}));
}

TEST_F(Commands, WhatIsPrintedIsSeen) {
    show({2, 3});
    const auto printed = [&] {
        QString caption;
        modal().driveForm([&](Form &form) {
            caption = form.Caption();
            form.Unload();
        });
        main().menu.mnuFileElem(3).trigger();
        return caption.section(' ', 1, 1);
    };
    window(1).setWindowState(vbMaximized);
    main().Toolbar1->Buttons("Next").widget()->click();
    QCoreApplication::processEvents();
    EXPECT_TRUE(main().windowTitle().contains(window(0).Caption()));
    EXPECT_EQ(printed(), window(0).mMat()->Name());
    EXPECT_EQ(window(0).WindowState(), vbMaximized);
    window(0).setWindowState(vbMinimized);
    EXPECT_EQ(printed(), window(1).mMat()->Name());
    window(1).setWindowState(vbMinimized);
    EXPECT_EQ(printed(), window(1).mMat()->Name());
    EXPECT_EQ(window(1).WindowState(), vbNormal) << "comes up for it";
    modal().clear();
}

TEST_F(Commands, NextWalksTheWindowsAndTheirOwnCloseBoxKeepsTheSelection) {
    show({2, 3});
    main().Toolbar1->Buttons("Next").widget()->click();
    QCoreApplication::processEvents();
    EXPECT_EQ(main().mCurrent->ID(), 2);
    window(1).setWindowState(vbMinimized);
    window(0).parentWidget()->close();
    deleteUnloaded();
    EXPECT_EQ(main().mCurrent->ID(), 3); // else nothing would be there to print
    EXPECT_EQ(main().colMaterials.Count(), 2);
    EXPECT_TRUE(main().menu.mnuFileElem(3).Enabled());
    window(0).parentWidget()->close();
    EXPECT_FALSE(main().menu.mnuFileElem(3).Enabled());
    EXPECT_FALSE(main().menu.mnuSettingsElem(0).Enabled());
    EXPECT_EQ(main().colMaterials.Count(), 2);
}

TEST_F(Commands, AToolBarThatTheUserHasHiddenStaysHiddenAtTheNextShow) {
    EXPECT_FALSE(main().menu.mnuSettingsElem(0).Enabled());
    show({2});
    EXPECT_TRUE(main().Toolbar1->Visible());
    main().menu.mnuSettingsToolElem(1).trigger();
    EXPECT_FALSE(main().Toolbar1->Visible());
    main().menu.mnuFileElem(0).trigger();
    main().menu.mnuFileElem(0).trigger();
    EXPECT_FALSE(main().Toolbar1->Visible());
    main().menu.mnuSettingsToolElem(0).trigger();
    EXPECT_TRUE(main().Toolbar1->Visible());
    main().menu.mnuFileElem(0).trigger();
    EXPECT_FALSE(main().Toolbar1->Visible());
    main().menu.mnuFileElem(0).trigger();
    EXPECT_TRUE(main().Toolbar1->Visible());
}

TEST_F(Commands, DoubleClicksHideTheStatusLineAndStepTheBackColour) {
    const int colour = main().BackColor();
    Q_EMIT main().DblClick();
    EXPECT_NE(main().BackColor(), colour);
    QTest::mouseDClick(main().stbStatus->findChild<QWidget *>("stbStatus(2)"), Qt::LeftButton);
    EXPECT_FALSE(main().stbStatus->Visible());
    EXPECT_FALSE(main().menu.mnuSettingsElem(1).Checked());
    main().menu.mnuSettingsElem(1).trigger();
    EXPECT_TRUE(main().stbStatus->Visible());
}

TEST_F(Commands, EveryBoxOfAMaterialWindowFollowsTheColours) {
    const QStringList boxes = {"txtDesignTemp",  "txtNotes",       "framChart",      "txtNoData",
                               "txtMainData(0)", "txtMainData(1)", "txtMainData(2)", "txtMainData(3)",
                               "txtMainData(4)", "txtMainData(5)", "txtMainData(6)", "txtMainData(7)",
                               "txtMainData(8)"};
    const auto expectColours = [&](const QColor &colour, bool alternating) {
        for (const QString &name : boxes) {
            const auto *box = window(0).findChild<QWidget *>(name);
            ASSERT_NE(box, nullptr) << name.toStdString();
            EXPECT_EQ(box->palette().color(QPalette::Base), colour) << name.toStdString();
        }
        for (const TDBGrid *grid : {window(0).tdbBoundTable, window(0).tdbTable, window(0).tdbDesign})
            EXPECT_EQ(grid->AlternatingRowStyle(), alternating) << grid->objectName().toStdString();
    };
    show({2});
    expectColours(toQColor(vbInfoBackground), true);
    main().menu.mnuSettingsElem(2).trigger();
    expectColours(Qt::white, false);
    main().menu.mnuFileElem(0).trigger();
    deleteUnloaded();
    main().menu.mnuFileElem(0).trigger(); // a window that opens with the colours off
    expectColours(Qt::white, false);
    main().menu.mnuSettingsElem(2).trigger();
    expectColours(toQColor(vbInfoBackground), true);
    EXPECT_EQ(main().BackColor(), main().cBlue);
}

TEST_F(Commands, AClosedDialogIsNoWindowThatShowsTables) {
    modal().driveForm([](Form &form) { form.Unload(); });
    main().ShowAbout();
    show({2});
    main().menu.mnuViewElem(3).trigger();
    EXPECT_EQ(window(0).strCurrentTable, "ImpEnergy");
    modal().clear();
}

TEST(NumberFormat, IsTriedOutAtTheStart) {
    struct Case {
        char16_t decimalSign, groupSign;
        bool point, commaGroup;
    };
    for (const Case &country :
         {Case{u'.', u',', true, true}, Case{u',', u' ', false, false}, Case{u',', u'.', false, false}}) {
        const TestProgram program(TestProgram::putSample, country.decimalSign, country.groupSign);
        EXPECT_EQ(mdiVelmar::instance().bDecimalPoint, country.point);
        EXPECT_EQ(mdiVelmar::instance().bCommaGroup, country.commaGroup);
    }
}
