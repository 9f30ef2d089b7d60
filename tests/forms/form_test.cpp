// The life of a form: the order of its events, its place, the collection.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QGuiApplication>
#include <QPushButton>
#include <QTest>

#include "platform/forms/call_by_name.h"
#include "platform/forms/default_instance.h"
#include "platform/forms/forms.h"
#include "tests/forms/recording_form.h"
#include "tests/support/error_of.h"
#include "tests/support/gui.h"

namespace {

class FormTest : public ::testing::Test {
protected:
    void SetUp() override { formLog.clear(); }
};

QStringList names() {
    QStringList result;
    for (FormBase &form : Forms())
        result.append(form.Name());
    return result;
}

TEST_F(FormTest, EventsComeInTheirOrder) {
    auto *form = new RecordingForm;
    form->Load();
    form->setWidth(6000);
    EXPECT_EQ(formLog, QStringList({"frmOne.Load"})) << "a hidden form does not resize";
    form->Show();
    QCoreApplication::processEvents();
    form->setWidth(6015);
    QCoreApplication::processEvents();
    form->Hide();
    form->Show();
    QCoreApplication::processEvents();
    form->Unload();
    EXPECT_EQ(formLog, QStringList({"frmOne.Load", "frmOne.Resize", "frmOne.Activate", "frmOne.Resize",
                                    "frmOne.Activate", "frmOne.QueryUnload 1", "frmOne.Unload"}));
}

TEST_F(FormTest, AFormThatSnapsBackComesToRest) {
    auto *form = new RecordingForm;
    form->onResize = [form] {
        form->setWidth(6000);
        form->setHeight(3000);
    };
    form->Show();
    form->resize(700, 500);
    QCoreApplication::processEvents();
    EXPECT_EQ(form->Width(), 6000);
    EXPECT_EQ(form->Height(), 3000);
    EXPECT_LE(formLog.count("frmOne.Resize"), 6);
}

TEST_F(FormTest, PlaceAndSizeComeBackInTwips) {
    RecordingMain *main = NewForm<RecordingMain>();
    main->Show();
    RecordingForm *child = newChild("child");
    child->Load();
    auto *window = NewForm<RecordingForm>();
    for (FormBase *form : {static_cast<FormBase *>(child), static_cast<FormBase *>(window)}) {
        form->Move(120, 300, 11280, 5040);
        form->Show();
        QCoreApplication::processEvents();
        EXPECT_EQ(form->Left(), 120);
        EXPECT_EQ(form->Top(), 300);
        EXPECT_EQ(form->Width(), 11280);
        EXPECT_EQ(form->Height(), 5040);
        EXPECT_EQ(form->ScaleWidth(), 11280 - 90) << "a child and a window leave the same area inside";
        EXPECT_EQ(form->ScaleHeight(), 5040 - 375);
    }
}

TEST_F(FormTest, CloseBoxAsksBeforeItUnloads) {
    auto *form = NewForm<RecordingForm>();
    bool stay = true;
    form->refuses = [&](UnloadMode mode) { return stay && mode == vbFormControlMenu; };
    form->Show();
    form->close();
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(Forms::Count(), 1);
    stay = false;
    form->close();
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(Forms::Count(), 0);
    EXPECT_EQ(formLog.mid(3), QStringList({"frmOne.QueryUnload 0", "frmOne.QueryUnload 0", "frmOne.Unload"}));
}

TEST_F(FormTest, AFormMayUnloadItselfInItsOwnHandler) {
    auto *form = NewForm<RecordingForm>();
    QPointer<RecordingForm> watch(form);
    auto *button = new QPushButton(form);
    QObject::connect(button, &QPushButton::clicked, form, [form] {
        form->Unload();
        form->setCaption("still there");
    });
    form->Show();
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(Forms::Count(), 0);
    ASSERT_TRUE(watch);
    deleteUnloaded();
    EXPECT_FALSE(watch);
}

TEST_F(FormTest, IterationPassesOverWhatIsUnloadedOnTheWay) {
    RecordingForm *forms[4];
    for (int i = 0; i < 4; ++i) {
        forms[i] = new RecordingForm(QStringLiteral("frm%1").arg(i));
        forms[i]->Load();
    }
    EXPECT_EQ(names(), QStringList({"frm0", "frm1", "frm2", "frm3"}));
    QStringList seen;
    for (FormBase &form : Forms()) {
        seen.append(form.Name());
        if (form.Name() != "frm0") continue;
        form.Unload();
        forms[1]->Unload();
        delete forms[3];
    }
    EXPECT_EQ(seen, QStringList({"frm0", "frm2"}));
    EXPECT_EQ(names(), QStringList({"frm2"}));
}

TEST_F(FormTest, UnloadingInFormLoadNeverShows) {
    auto *form = new RecordingForm;
    form->onLoad = [form] { form->Unload(); };
    form->Show();
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(Forms::Count(), 0);
    EXPECT_FALSE(formLog.contains("frmOne.Activate"));
}

TEST_F(FormTest, AnErrorInAnEventProcedureIsReportedAndGoesNoFurther) {
    auto *form = new RecordingForm;
    form->onLoad = [] { throw RuntimeError(3075, "Syntax error"); };
    form->onResize = [] { throw RuntimeError(11); };
    EXPECT_NO_THROW(form->Show());
    QList<int> numbers;
    for (const RuntimeError &fault : takeFaults())
        numbers.append(fault.number());
    EXPECT_EQ(numbers, QList<int>({3075, 11}));
}

TEST_F(FormTest, DefaultInstanceIsMadeAnewAfterUnload) {
    EXPECT_EQ(LoadedInstance<RecordingForm>(), nullptr);
    RecordingForm &first = DefaultInstance<RecordingForm>();
    EXPECT_EQ(&DefaultInstance<RecordingForm>(), &first);
    EXPECT_EQ(LoadedInstance<RecordingForm>(), &first);
    first.Unload();
    EXPECT_EQ(LoadedInstance<RecordingForm>(), nullptr);
    RecordingForm &second = DefaultInstance<RecordingForm>();
    EXPECT_NE(&second, &first);
    EXPECT_EQ(formLog.count("frmOne.Load"), 2);
}

TEST_F(FormTest, LateCallsFindOperationsByName) {
    auto *form = NewForm<RecordingForm>();
    FormBase &late = *form;
    EXPECT_EQ(CallByName(late, "ShowTable", {"rm"}), QVariant("RM"));
    EXPECT_EQ(CallByName(late, "twice", {"21"}), QVariant(42));
    EXPECT_EQ(errorOf([&] { CallByName(late, "HideTable"); }), 438);
    EXPECT_EQ(errorOf([&] { CallByName(late, "ShowTable"); }), 450);
    EXPECT_EQ(errorOf([&] { CallByName(late, "twice", {"x"}); }), 13);
    SetPropertyByName(*form, "iReportType", 2);
    EXPECT_EQ(form->iReportType, 2);
    EXPECT_EQ(errorOf([&] { SetPropertyByName(*form, "iReportType", "x"); }), 13);
    EXPECT_EQ(errorOf([&] { SetPropertyByName(*form, "iNothing", 2); }), 438);
}

TEST_F(FormTest, HourglassEndsWithItsForm) {
    auto *form = NewForm<RecordingForm>();
    form->setMousePointer(vbHourglass);
    form->setMousePointer(vbHourglass);
    ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
    form->Unload();
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(FormTest, EnterAndEscapePressTheirButtons) {
    auto *form = NewForm<RecordingForm>();
    auto *ok = new QPushButton(form), *cancel = new QPushButton(form), *other = new QPushButton(form);
    auto *tick = new QCheckBox(form);
    QStringList pressed;
    QObject::connect(ok, &QPushButton::clicked, [&] { pressed.append("ok"); });
    QObject::connect(cancel, &QPushButton::clicked, [&] { pressed.append("cancel"); });
    QObject::connect(other, &QPushButton::clicked, [&] { pressed.append("other"); });
    form->setDefaultButton(ok);
    form->setCancelButton(cancel);
    form->Show();
    form->setFocus();
    QTest::keyClick(form, Qt::Key_Return);
    QTest::keyClick(form, Qt::Key_Escape);
    other->setFocus();
    QTest::keyClick(other, Qt::Key_Enter);
    tick->setFocus();
    QTest::keyClick(tick, Qt::Key_Return);
    EXPECT_FALSE(tick->isChecked());
    other->setFocus();
    ok->setEnabled(false);
    QTest::keyClick(form, Qt::Key_Return);
    EXPECT_EQ(pressed, QStringList({"ok", "cancel", "other", "ok", "other"}));
}

} // namespace
