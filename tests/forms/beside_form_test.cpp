// A window beside the main one: above it, for as long as the program and the user want.
#include <gtest/gtest.h>

#include <QPushButton>
#include <QTest>
#include <QWindow>

#include "platform/forms/default_instance.h"
#include "platform/forms/forms.h"
#include "tests/forms/recording_form.h"
#include "tests/support/gui.h"

namespace {

class BesideForm : public ::testing::Test {
protected:
    void SetUp() override {
        main = NewForm<RecordingMain>();
        main->Show();
        child = newChild("child");
        child->Show();
        beside = new RecordingForm("frmBeside", Form::Kind::Beside);
        beside->Show();
        QCoreApplication::processEvents();
        formLog.clear();
    }

    RecordingMain *main = nullptr;
    RecordingForm *child = nullptr;
    RecordingForm *beside = nullptr;
};

} // namespace

TEST_F(BesideForm, IsAWindowOfItsOwnAboveTheMainWindow) {
    EXPECT_TRUE(beside->isBeside());
    EXPECT_FALSE(beside->isMdiChild());
    EXPECT_TRUE(beside->isWindow());
    EXPECT_EQ(beside->windowHandle()->transientParent(), main->windowHandle());
    EXPECT_EQ(beside->windowModality(), Qt::NonModal);
    EXPECT_EQ(main->visibleChildren(), QList<Form *>({child}));
    EXPECT_EQ(main->activeChild(), child);

    beside->Unload();
    deleteUnloaded();
    EXPECT_TRUE(main->isVisible());
    beside = new RecordingForm("frmBeside", Form::Kind::Beside);
    beside->Show();
    EXPECT_EQ(beside->windowHandle()->transientParent(), main->windowHandle()) << "also the next one";
}

TEST_F(BesideForm, TheMainWindowStaysInUse) {
    auto *button = new QPushButton(child);
    int clicks = 0;
    QObject::connect(button, &QPushButton::clicked, [&clicks] { ++clicks; });
    button->show();
    for (int i = 1; i <= 2; ++i) {
        main->SetFocus();
        QCoreApplication::processEvents();
        QTest::mouseClick(button, Qt::LeftButton);
        EXPECT_EQ(clicks, i);
        EXPECT_NE(Forms::active(), beside);
        beside->bringUp();
        EXPECT_EQ(Forms::active(), beside);
        EXPECT_EQ(formLog.count("frmBeside.Activate"), i) << "told each time that it comes to the front";
    }
}

TEST_F(BesideForm, AModalWindowShutsItOff) {
    auto *button = new QPushButton(beside);
    int clicks = 0;
    QObject::connect(button, &QPushButton::clicked, [&clicks] { ++clicks; });
    button->show();
    modal().driveForm([&](Form &form) {
        EXPECT_EQ(QApplication::activeModalWidget(), &form);
        QTest::mouseClick(beside->windowHandle(), Qt::LeftButton, {}, button->geometry().center());
        EXPECT_EQ(clicks, 0);
        form.Unload();
    });
    (new RecordingForm("frmDialog"))->ShowModal(main);
    QTest::mouseClick(beside->windowHandle(), Qt::LeftButton, {}, button->geometry().center());
    EXPECT_EQ(clicks, 1);
}
