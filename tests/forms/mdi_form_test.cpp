// The main window and its children.
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTimer>

#include "platform/forms/application.h"
#include "platform/forms/default_instance.h"
#include "platform/forms/forms.h"
#include "platform/forms/menu_entry.h"
#include "platform/forms/send_keys.h"
#include "tests/forms/recording_form.h"
#include "tests/support/error_of.h"
#include "tests/support/gui.h"

namespace {

class MdiFormTest : public ::testing::Test {
protected:
    void SetUp() override {
        main = NewForm<RecordingMain>();
        for (int i = 0; i < 3; ++i) {
            child[i] = newChild(QStringLiteral("child%1").arg(i));
            child[i]->Show();
        }
        QCoreApplication::processEvents();
        formLog.clear();
    }

    QString active() const {
        Form *form = main->activeChild();
        return form != nullptr ? form->Caption() : QString();
    }

    RecordingMain *main = nullptr;
    RecordingForm *child[3] = {};
};

TEST_F(MdiFormTest, ShowingAChildShowsTheMainWindow) {
    EXPECT_TRUE(main->isVisible());
    EXPECT_EQ(active(), "child2");
    EXPECT_EQ(Forms::active(), child[2]);
}

TEST_F(MdiFormTest, ActivateComesWhenAChildTakesTheFront) {
    child[0]->SetFocus();
    child[0]->SetFocus();
    QCoreApplication::processEvents();
    child[2]->SetFocus();
    EXPECT_EQ(formLog, QStringList({"child0.Activate", "child2.Activate"}));
}

TEST_F(MdiFormTest, TheNextChildComesForwardWhenTheActiveOneGoes) {
    child[2]->Hide();
    EXPECT_NE(active(), "child2");
    child[0]->SetFocus();
    child[0]->Unload();
    QCoreApplication::processEvents();
    deleteUnloaded();
    EXPECT_EQ(active(), "child1");
    EXPECT_EQ(Forms::active(), child[1]);
    EXPECT_EQ(main->visibleChildren(), QList<Form *>({child[1]}));
}

TEST_F(MdiFormTest, ControlTabWalksTheVisibleChildren) {
    QStringList walk;
    child[1]->Hide();
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(main->activeChild(), Qt::Key_Tab, Qt::ControlModifier);
        walk.append(active());
    }
    child[1]->Show();
    for (int i = 0; i < 3; ++i) {
        SendKeys("^{TAB}");
        QCoreApplication::processEvents();
        walk.append(active());
    }
    EXPECT_EQ(walk, QStringList({"child0", "child2", "child0", "child2", "child0", "child1"}));
}

TEST_F(MdiFormTest, ControlF6WalksToAndControlF4ClosesTheChildInFront) {
    QTest::keyClick(main->activeChild(), Qt::Key_F6, Qt::ControlModifier);
    EXPECT_EQ(active(), "child0");
    QTest::keyClick(main->activeChild(), Qt::Key_F6, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(active(), "child2");
    QTest::keyClick(main->activeChild(), Qt::Key_F4, Qt::ControlModifier);
    EXPECT_TRUE(child[2]->isUnloaded());
    EXPECT_NE(active(), "child2");
}

TEST_F(MdiFormTest, AKeyOfTheMenuIsNoKeyOfATextBox) {
    auto *entry = new MenuEntry("mnuAll", "All", main);
    entry->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_A));
    main->menuBar()->addAction(entry);
    main->menuBar()->show();
    int clicks = 0;
    QObject::connect(entry, &MenuEntry::Click, [&] { ++clicks; });
    auto *box = new QLineEdit("text", child[2]);
    box->show();
    box->setFocus();
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(box->selectedText(), "");
    entry->setEnabled(false);
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(box->selectedText(), "text");
}

TEST_F(MdiFormTest, AChildsCloseBoxAsksTheChild) {
    child[1]->refuses = [](UnloadMode mode) { return mode == vbFormControlMenu; };
    for (QWidget *frame : {child[0]->parentWidget(), child[1]->parentWidget()})
        frame->close();
    EXPECT_FALSE(child[0]->Visible());
    EXPECT_TRUE(child[1]->Visible());
    EXPECT_EQ(Forms::Count(), 3);
}

TEST_F(MdiFormTest, AllAreAskedBeforeAnyIsUnloaded) {
    bool stay = true;
    child[1]->refuses = [&](UnloadMode) { return stay; };
    EXPECT_FALSE(main->Unload());
    EXPECT_EQ(formLog, QStringList({"main.QueryUnload 1", "child0.QueryUnload 4", "child1.QueryUnload 4"}));
    EXPECT_EQ(main->visibleChildren().size(), 3);
    formLog.clear();
    stay = false;
    main->close();
    EXPECT_EQ(formLog, QStringList({"main.QueryUnload 0", "child0.QueryUnload 4", "child1.QueryUnload 4",
                                    "child2.QueryUnload 4", "child0.Unload", "child1.Unload", "child2.Unload",
                                    "main.Unload"}));
    EXPECT_EQ(Forms::Count(), 0);
    EXPECT_EQ(MDIForm::current(), nullptr);
}

TEST_F(MdiFormTest, AMaximisedOrMinimisedChildKeepsItsPlace) {
    child[0]->Move(0, 300, 4500, 3000);
    formLog.clear();
    child[0]->setWindowState(vbMinimized);
    EXPECT_EQ(child[0]->WindowState(), vbMinimized);
    child[0]->setTop(1500);
    child[0]->setWindowState(vbNormal);
    EXPECT_EQ(child[0]->Top(), 300);
    EXPECT_EQ(child[0]->Width(), 4500);
    EXPECT_EQ(formLog.count("child0.Resize"), 2);
    child[0]->setWindowState(vbMaximized);
    EXPECT_EQ(child[0]->WindowState(), vbMaximized);
    child[0]->setWidth(3000);
    child[0]->setWindowState(vbNormal);
    EXPECT_EQ(child[0]->Width(), 4500);
}

TEST_F(MdiFormTest, TheNextChildTakesTheMaximisedStateOver) {
    main->menuBar()->show();
    const auto expectMaximised = [&](int which) {
        for (int i = 0; i < 3; ++i) {
            const bool isThat = child[i]->WindowState() == vbMaximized;
            EXPECT_TRUE(child[i]->isUnloaded() || isThat == (i == which)) << which << i;
        }
        EXPECT_EQ(active(), QStringLiteral("child%1").arg(which));
        EXPECT_EQ(Forms::active(), child[which]);
        EXPECT_EQ(main->windowTitle(), QStringLiteral("main - [child%1]").arg(which));
    };
    child[2]->Move(0, 300, 4500, 3000);
    child[2]->setWindowState(vbMaximized);
    expectMaximised(2);
    QTest::keyClick(main->activeChild(), Qt::Key_Tab, Qt::ControlModifier);
    expectMaximised(0);
    EXPECT_EQ(child[2]->Top(), 300);
    child[2]->Hide(); // and comes back, as for a while of work unseen
    child[2]->Show();
    expectMaximised(2);
    child[1]->SetFocus();
    expectMaximised(1);

    QWidget *boxes = main->menuBar()->cornerWidget();
    ASSERT_NE(boxes, nullptr);
    QTest::mouseClick(boxes, Qt::LeftButton, {}, {boxes->width() - 6, boxes->height() / 2});
    EXPECT_TRUE(child[1]->isUnloaded()) << "the close box in the menu bar is that of the child in front";
    expectMaximised(2);
    child[2]->setWindowState(vbNormal);
    EXPECT_EQ(active(), "child2");
    EXPECT_EQ(child[0]->WindowState(), vbNormal);
    EXPECT_EQ(main->windowTitle(), "main");
}

TEST_F(MdiFormTest, AMaximisedChildDoesNotMaximiseOneThatCannotBe) {
    main->menuBar()->show();
    child[1]->setMinMaxButtons(true, false);
    child[1]->Move(0, 0, 4500, 3000);
    child[1]->Hide();
    child[0]->SetFocus();
    child[0]->setWindowState(vbMaximized);
    child[1]->Show();
    child[1]->SetFocus();
    QCoreApplication::processEvents();
    EXPECT_EQ(child[1]->WindowState(), vbNormal);
    EXPECT_EQ(child[1]->Width(), 4500);
    EXPECT_EQ(active(), "child1");
    EXPECT_EQ(child[0]->WindowState(), vbNormal);
    EXPECT_EQ(main->windowTitle(), "main") << "not the name of a child behind";
}

TEST_F(MdiFormTest, AMinimisedChildIsCurrentOnlyWhereNoOtherShows) {
    main->menuBar()->show();
    const auto next = [&] {
        QTest::keyClick(main->activeChild(), Qt::Key_Tab, Qt::ControlModifier);
        return active();
    };
    child[2]->setWindowState(vbMinimized);
    EXPECT_EQ(active(), "child1") << "the one used before";
    EXPECT_EQ(Forms::active(), child[1]);
    EXPECT_EQ(next(), "child0");
    EXPECT_EQ(next(), "child1") << "passes the minimised one";
    child[1]->setWindowState(vbMaximized);
    child[1]->setWindowState(vbMinimized);
    EXPECT_EQ(active(), "child0");
    EXPECT_EQ(main->windowTitle(), "main");
    child[0]->setWindowState(vbMinimized);
    EXPECT_EQ(active(), "child0");
    EXPECT_EQ(child[1]->WindowState(), vbMinimized) << "none comes up unasked";
    EXPECT_EQ(next(), "child1");
    EXPECT_EQ(child[1]->WindowState(), vbNormal);
}

TEST_F(MdiFormTest, AFixedChildStaysAsItIs) {
    child[0]->setMinMaxButtons(true, false);
    child[0]->setSizable(false);
    child[0]->Move(15, 15, 4500, 3000);
    EXPECT_EQ(child[0]->Width(), 4500);
    EXPECT_EQ(child[0]->parentWidget()->maximumWidth(), 300);
    child[0]->setWindowState(vbMinimized);
    child[0]->setWindowState(vbNormal);
    EXPECT_EQ(child[0]->Height(), 3000);
}

TEST_F(MdiFormTest, TheWindowMenuListsTheVisibleChildren) {
    MenuEntry menu("mnuWindow", "&Window", main);
    main->menuBar()->addAction(&menu);
    menu.add("mnuWindowElem(0)", "&Cascade");
    main->setWindowList(&menu);
    const auto entries = [&] {
        QStringList texts;
        for (const QAction *action : menu.SubMenu()->actions().mid(2))
            texts.append(action->text() + (action->isChecked() ? "*" : ""));
        return texts;
    };
    EXPECT_EQ(entries(), QStringList({"&1 child0", "&2 child1", "&3 child2*"}));
    child[1]->Hide();
    child[0]->setCaption("A & B");
    child[0]->SetFocus();
    EXPECT_EQ(entries(), QStringList({"&1 A && B*", "&2 child2"}));
    menu.SubMenu()->actions().last()->trigger();
    QCoreApplication::processEvents();
    EXPECT_EQ(active(), "child2");
    EXPECT_EQ(entries(), QStringList({"&1 A && B", "&2 child2*"}));
    child[0]->setWindowState(vbMinimized);
    menu.SubMenu()->actions().at(2)->trigger();
    QCoreApplication::processEvents();
    EXPECT_EQ(entries(), QStringList({"&1 A && B*", "&2 child2"}));
    EXPECT_EQ(child[0]->WindowState(), vbNormal) << "choosing restores";
    child[0]->Hide();
    child[2]->Hide();
    EXPECT_EQ(menu.SubMenu()->actions().size(), 1) << "no separator above an empty list";
}

TEST_F(MdiFormTest, ADoubleClickOnTheEmptyAreaIsTold) {
    int clicks = 0;
    QObject::connect(main, &MDIForm::DblClick, [&] { ++clicks; });
    auto *area = main->findChild<QMdiArea *>();
    QTest::mouseDClick(area->viewport(), Qt::LeftButton, {}, {area->width() - 5, area->height() - 5});
    QTest::mouseDClick(child[0], Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
}

TEST(MdiFormAlone, AChildNeedsAMainWindow) {
    EXPECT_EQ(errorOf([] { newChild("child"); }), 366);
}

TEST(MdiFormAlone, TheRunEndsWithTheLastForm) {
    EXPECT_EQ(Application::instance()->run(), 0) << "nothing to wait for";
    auto *main = NewForm<RecordingMain>();
    auto *start = NewForm<RecordingForm>();
    start->Show();
    int steps = 0;
    QTimer::singleShot(0, [&] {
        ++steps;
        newChild("child")->Show();
        start->Unload();
        QTimer::singleShot(0, [&] {
            ++steps;
            main->close();
        });
    });
    EXPECT_EQ(Application::instance()->run(), 0);
    EXPECT_EQ(steps, 2);
}

} // namespace
