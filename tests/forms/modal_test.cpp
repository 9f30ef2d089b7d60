// Modal forms, message boxes, file dialogs and the report of an error.
#include <gtest/gtest.h>

#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QScopeGuard>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "platform/forms/application.h"
#include "platform/forms/common_dialog.h"
#include "platform/forms/default_instance.h"
#include "platform/forms/event_procedure.h"
#include "platform/forms/forms.h"
#include "platform/forms/help_context.h"
#include "platform/forms/msg_box.h"
#include "platform/forms/screen.h"
#include "platform/runtime/app.h"
#include "tests/forms/recording_form.h"
#include "tests/support/error_of.h"
#include "tests/support/gui.h"
#include "tests/support/raising_through_qt.h"

namespace {

TEST(ModalForm, ReturnsWhenUnloadedOrHidden) {
    formLog.clear();
    auto *owner = NewForm<RecordingForm>();
    owner->Show();
    for (const bool unload : {true, false}) {
        auto *dialog = new RecordingForm("frmDialog");
        bool driven = false;
        modal().driveForm([&](Form &form) {
            driven = true;
            EXPECT_EQ(QApplication::activeModalWidget(), &form);
            EXPECT_EQ(form.windowHandle()->transientParent(), owner->windowHandle());
            if (unload)
                form.Unload();
            else
                form.Hide();
        });
        dialog->ShowModal(owner);
        EXPECT_TRUE(driven);
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        EXPECT_EQ(Forms::byName("frmDialog") != nullptr, !unload);
    }
    EXPECT_EQ(modal().lastAsked().text, "frmDialog");
}

TEST(ModalForm, OneAfterAnotherOrDeletedAtOnceReturns) {
    for (int i = 0; i < 2; ++i) {
        modal().driveForm([](Form &form) { form.Unload(); });
        (new RecordingForm("frmDialog"))->ShowModal();
    }
    modal().driveForm([](Form &form) { delete &form; });
    (new RecordingForm("frmDialog"))->ShowModal();
    EXPECT_EQ(Forms::Count(), 0);
}

TEST(ModalForm, KeepsThePlaceItWasGivenOrStandsOverItsOwner) {
    auto *owner = NewForm<RecordingForm>();
    owner->Move(3000, 1500, 9000, 6000);
    owner->Show();
    auto *dialog = NewForm<RecordingForm>();
    modal().driveForm([&](Form &form) {
        EXPECT_EQ(form.Left(), 5010);
        EXPECT_EQ(form.Width(), 4500);
        form.Unload();
    });
    dialog->Move(5010, 3000, 4500, 3000);
    dialog->ShowModal(owner);

    auto *other = NewForm<RecordingForm>();
    other->setWidth(4500);
    modal().driveForm([&](Form &form) {
        EXPECT_NEAR(form.Left(), 3000 + (9000 - 4500) / 2, 60);
        form.Unload();
    });
    other->ShowModal(owner);
}

TEST(ModalForm, ClosesByEscapeEvenWithoutACancelButton) {
    modal().driveForm([](Form &form) {
        QTest::keyClick(&form, Qt::Key_Escape);
        EXPECT_FALSE(form.isVisible());
    });
    NewForm<RecordingForm>()->ShowModal();
}

TEST(ModalForm, TheHourglassIsGoneWhileItWaitsForAPerson) {
    auto *working = NewForm<RecordingForm>();
    working->setMousePointer(vbHourglass);
    modal().driveForm([](Form &form) {
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        form.setMousePointer(vbHourglass);
        form.Unload();
    });
    (new RecordingForm("frmDialog"))->ShowModal();
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    working->setMousePointer(vbDefault);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

/// What waits for a person shuts off the forms, and leaves what stands beside them in use.
TEST(Modality, AWindowBesideTheProgramStaysInUse) {
    const ModalSeam::Pause person;
    QMainWindow beside;
    auto *button = new QPushButton(&beside);
    beside.setCentralWidget(button);
    beside.show();
    auto *form = NewForm<RecordingForm>();
    auto *below = new QPushButton(form);
    form->Show();
    int used = 0, shutOff = 0;
    QObject::connect(button, &QPushButton::clicked, [&] { ++used; });
    QObject::connect(below, &QPushButton::clicked, [&] { ++shutOff; });
    const auto tryBoth = [&] {
        for (QWidget *control : {button, below}) {
            QWindow *window = control->window()->windowHandle();
            QTest::mouseClick(window, Qt::LeftButton, {}, control->mapTo(control->window(), QPoint(5, 5)));
        }
    };
    tryBoth();
    ASSERT_EQ(shutOff, 1);
    const std::pair<const char *, std::function<void()>> ways[] = {
        {"a form", [] { NewForm<RecordingForm>()->ShowModal(); }},
        {"a box", [] { MsgBox("Text"); }},
        {"a file dialog", [] { CommonDialog().ShowOpen(); }},
        {"a box of the library", [&] { QMessageBox::question(form, "Title", "Text"); }},
        {"a form above a form", [&] {
             auto *lower = NewForm<RecordingForm>();
             QTimer::singleShot(0, [] { NewForm<RecordingForm>()->ShowModal(); });
             lower->ShowModal(form);
         }}};
    for (const auto &[name, show] : ways) {
        int tries = 0;
        const int before = used;
        QTimer closing;
        QObject::connect(&closing, &QTimer::timeout, [&] {
            QWidget *modal = QApplication::activeModalWidget();
            if (modal == nullptr) return;
            beside.activateWindow(); // which is no owner for the next box
            tryBoth();
            ++tries;
            modal->close();
        });
        closing.start(20);
        show();
        EXPECT_GT(tries, 0) << name;
        EXPECT_EQ(used, before + tries) << name;
        EXPECT_EQ(shutOff, 1) << name;
    }
}

TEST(Modality, F1AsksForTheTopicOfTheModalWindowOrOfWhatItStandsAbove) {
    QStringList asked;
    HelpContext::setViewer([&](const QString &topic) { asked.append(topic); });
    const auto never = qScopeGuard([] { HelpContext::setViewer({}); });
    auto *main = NewForm<RecordingMain>();
    RecordingForm *child = newChild("child");
    HelpContext::set(*child, "Child.htm");
    child->Show();
    QTest::keyClick(child, Qt::Key_F1);
    EXPECT_EQ(asked, QStringList()) << "the menu's key";
    const auto pressInBox = [] {
        const ModalSeam::Pause person;
        QTimer::singleShot(0, [] {
            QWidget *box = QApplication::activeModalWidget();
            QTest::keyClick(box->focusWidget(), Qt::Key_F1);
            box->close();
        });
        MsgBox("Text");
    };
    pressInBox();
    for (const char *topic : {"Dialog.htm", ""}) {
        modal().driveForm([&](Form &form) {
            HelpContext::set(form, topic);
            auto *box = new QLineEdit(&form);
            box->show();
            QTest::keyClick(box, Qt::Key_F1);
            QTest::keyClick(box, Qt::Key_F1, Qt::ShiftModifier);
            pressInBox();
            form.Unload();
        });
        NewForm<RecordingForm>()->ShowModal(main);
    }
    EXPECT_EQ(asked, QStringList({"Child.htm", "Dialog.htm", "Dialog.htm", "Child.htm", "Child.htm"}));
}

TEST(ModalForm, LiesOnTheScreenBesideItsPanels) {
    const QRect free(40, 24, 760, 540);
    Screen::setSizeForTest({800, 600}, free);
    const auto systemScreen = qScopeGuard([] { Screen::setSizeForTest({}); });
    const struct {
        const char *name;
        QRect twips;
        bool sizable;
        QSize expected;
    } cases[] = {{"too large", {0, 0, 15000, 12000}, true, {754, 515}},
                 {"too far to the right and below", {9000, 6000, 6000, 4500}, true, {394, 275}},
                 {"of one size", {-300, 0, 6000, 4500}, false, {394, 275}},
                 {"where it fits", {1500, 1500, 6000, 4500}, true, {394, 275}}};
    for (const auto &item : cases) {
        auto *dialog = NewForm<RecordingForm>();
        dialog->Move(item.twips.left(), item.twips.top(), item.twips.width(), item.twips.height());
        dialog->setSizable(item.sizable);
        modal().driveForm([&](Form &form) {
            EXPECT_EQ(form.size(), item.expected) << item.name;
            EXPECT_TRUE(free.contains(form.geometry())) << item.name;
            EXPECT_TRUE(item.twips.left() != 1500 || form.Left() == 1500) << item.name;
            form.Unload();
        });
        dialog->ShowModal();
    }
}

TEST(MsgBoxes, AnswerIsTakenFromTheQueueAndTheQuestionKept) {
    App::current().title = "Program";
    modal().answerMsgBox(vbYes);
    modal().answerMsgBox([](const ModalSeam::Request &request) { return request.style == 68 ? vbNo : vbOK; });
    EXPECT_EQ(MsgBox("Go on?", 20, "Missing"), vbYes);
    EXPECT_EQ(MsgBox("One\r\nTwo", vbYesNo + vbInformation), vbNo);
    ASSERT_EQ(modal().asked().size(), 2);
    EXPECT_EQ(modal().asked()[0].title, "Missing");
    EXPECT_EQ(modal().asked()[0].style, 20);
    EXPECT_EQ(modal().lastAsked().text, "One\r\nTwo");
    EXPECT_EQ(modal().lastAsked().title, "Program");
}

/// Shows a real box and presses `key` in it.
int answerByHand(int style, const QString &key, QStringList *seen = nullptr) {
    QTimer::singleShot(0, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        if (seen != nullptr) *seen = {box->text(), box->windowTitle(), QString::number(box->icon())};
        for (QAbstractButton *button : box->buttons())
            if (button->text().remove('&') == key) return button->click();
        QTest::keyClick(box, Qt::Key_Escape);
    });
    return MsgBox("One\r\nTwo", style, "Title");
}

TEST(MsgBoxes, RealBoxesGiveTheClassicNumbers) {
    const ModalSeam::Pause person;
    const struct {
        int style;
        const char *key;
        int result;
    } cases[] = {{vbOKOnly, "OK", vbOK},
                 {vbYesNo | vbCritical, "Yes", vbYes},
                 {vbYesNo, "No", vbNo},
                 {vbYesNoCancel, "", vbCancel},
                 {vbOKCancel, "Cancel", vbCancel},
                 {vbRetryCancel, "Retry", vbRetry},
                 {vbAbortRetryIgnore, "Ignore", vbIgnore},
                 {vbOKOnly, "", vbOK}};
    for (const auto &row : cases)
        EXPECT_EQ(answerByHand(row.style, row.key), row.result) << row.style << row.key;
    QStringList seen;
    answerByHand(vbExclamation, "OK", &seen);
    EXPECT_EQ(seen, QStringList({"One\nTwo", "Title", QString::number(QMessageBox::Warning)}));

    int helped = 0;
    QTimer::singleShot(0, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        box->button(QMessageBox::Help)->click();
        box->button(QMessageBox::Help)->click();
        EXPECT_TRUE(box->isVisible());
        box->button(QMessageBox::Yes)->click();
    });
    EXPECT_EQ(MsgBox("One", vbYesNo, "Title", [&] { ++helped; }), vbYes);
    EXPECT_EQ(helped, 2);
}

TEST(CommonDialogs, CancelRaisesOnlyWhenAsked) {
    CommonDialog dialog;
    dialog.FileName = "a.mdb";
    dialog.Filter = "Access files (*.mdb)|*.mdb";
    dialog.InitDir = "/data/";
    modal().chooseFile("");
    dialog.ShowOpen();
    EXPECT_EQ(dialog.FileName, "a.mdb");
    EXPECT_EQ(modal().lastAsked().initDir, "/data/");
    EXPECT_EQ(modal().lastAsked().kind, ModalSeam::Kind::OpenFile);
    dialog.CancelError = true;
    modal().chooseFile("");
    EXPECT_EQ(errorOf([&] { dialog.ShowSave(); }), 32755);
    modal().chooseFile("/data/b.mdb");
    dialog.ShowOpen();
    EXPECT_EQ(dialog.FileName, QDir::toNativeSeparators("/data/b.mdb"));
}

TEST(CommonDialogs, SavingCompletesTheNameAndAsksAgainForAFolderOrBeforeReplacing) {
    const QTemporaryDir folder;
    const auto put = [&](const char *name) { QFile(folder.filePath(name)).open(QIODevice::WriteOnly); };
    put("there.5415.pdf");
    CommonDialog dialog;
    dialog.DialogTitle = "Save";
    dialog.DefaultExt = ".pdf";
    for (const auto &[chosen, saved] :
         {std::pair("16Mo3_1.5415", "16Mo3_1.5415.pdf"), std::pair("a.PDF", "a.PDF"),
          std::pair("a.txt", "a.txt.pdf"), std::pair("there.5415.pdf", "there.5415.pdf")}) {
        modal().clear();
        modal().chooseFile(folder.filePath(chosen));
        dialog.ShowSave();
        EXPECT_EQ(dialog.FileName, folder.filePath(saved));
        EXPECT_EQ(modal().asked().size(), 1);
    }
    // A name that the person has not seen in full.
    modal().clear();
    modal().chooseFile(folder.filePath("there.5415"));
    modal().answerMsgBox(vbNo);
    modal().chooseFile(folder.filePath("there.5415"));
    modal().answerMsgBox(vbYes);
    dialog.ShowSave();
    EXPECT_EQ(dialog.FileName, folder.filePath("there.5415.pdf"));
    EXPECT_EQ(modal().asked()[1].text,
              folder.filePath("there.5415.pdf") + "\r\n\r\nalready exists. Do you want to replace it?");

    modal().clear();
    modal().chooseFile(folder.filePath("no/such/a"));
    modal().answerMsgBox(vbOK);
    modal().chooseFile([&](const ModalSeam::Request &request) {
        EXPECT_EQ(request.initDir, folder.path());
        EXPECT_EQ(request.fileName, folder.filePath("no/such/a"));
        return folder.filePath("a");
    });
    dialog.ShowSave();
    EXPECT_EQ(dialog.FileName, folder.filePath("a.pdf"));
    EXPECT_EQ(modal().asked()[1].text, folder.filePath("no/such") + "\r\n\r\nThis folder does not exist.");
}

TEST(CommonDialogs, FiltersAndDrivesBecomeTheSystemsOwn) {
    EXPECT_EQ(CommonDialog::nameFilters("Access files (*.mdb)|*.mdb"), QStringList({"Access files (*.mdb)"}));
    EXPECT_EQ(CommonDialog::nameFilters("Text (*.txt;*.csv)|*.txt;*.csv|All|*.*"),
              QStringList({"Text (*.txt *.csv)", "All (*.*)"}));
    EXPECT_EQ(CommonDialog::nameFilters(""), QStringList());
#ifndef Q_OS_WIN
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    EXPECT_EQ(CommonDialog::localPath("c:\\"), documents);
    EXPECT_EQ(CommonDialog::localPath("c:\\P235GH.pdf"), documents + "/P235GH.pdf");
    EXPECT_EQ(CommonDialog::localPath("/home/x"), "/home/x");
#endif
}

TEST(CommonDialogs, TheRealDialogOffersNameFilterAndExtension) {
    const ModalSeam::Pause person;
    CommonDialog dialog;
    dialog.DialogTitle = "Save";
    dialog.InitDir = "c:\\";
    dialog.FileName = "c:\\P235GH / 1.0345.rtf";
    dialog.Filter = "Rich Text Format (*.rtf)|*.rtf";
    dialog.DefaultExt = ".rtf";
    dialog.CancelError = true;
    QString offered;
    QStringList filters;
    QTimer::singleShot(0, [&] {
        auto *box = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        offered = box->findChild<QLineEdit *>("fileNameEdit")->text();
        filters = box->nameFilters();
        box->reject();
    });
    EXPECT_THROW(dialog.ShowSave(), RuntimeError);
    EXPECT_EQ(offered, "P235GH / 1.0345.rtf") << "a name is offered as it stands";
    EXPECT_EQ(filters, QStringList({"Rich Text Format (*.rtf)"}));

    const QTemporaryDir folder;
    dialog.InitDir = folder.path();
    QTimer::singleShot(0, [] {
        auto *box = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        box->findChild<QLineEdit *>("fileNameEdit")->setText("16Mo3_1.5415");
        QTest::keyClick(box->findChild<QLineEdit *>("fileNameEdit"), Qt::Key_Return);
    });
    dialog.ShowSave();
    EXPECT_EQ(dialog.FileName, folder.filePath("16Mo3_1.5415.rtf"));
}

TEST(CommonDialogs, TheEndingIsThatOfTheChosenFilter) {
    const QTemporaryDir folder;
    CommonDialog dialog;
    dialog.InitDir = folder.path();
    dialog.Filter = "Workbook (*.xlsx)|*.xlsx|Values (*.csv;*.txt)|*.csv;*.txt";
    dialog.FilterExt = true;
    const auto save = [&](const QString &typed, int filter) {
        QTimer::singleShot(0, [&] {
            auto *box = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            box->selectNameFilter(box->nameFilters().at(filter));
            auto *edit = box->findChild<QLineEdit *>("fileNameEdit");
            edit->setText(typed);
            QTest::keyClick(edit, Qt::Key_Return);
        });
        dialog.FileName.clear();
        dialog.ShowSave();
        return QFileInfo(dialog.FileName).fileName();
    };
    {
        const ModalSeam::Pause person;
        EXPECT_EQ(save("1.5415", 0), "1.5415.xlsx");
        EXPECT_EQ(save("1.5415", 1), "1.5415.csv");
        EXPECT_EQ(save("a.CSV", 0), "a.CSV") << "the ending of another filter is meant";
    }
    modal().chooseFile(folder.filePath("a.5415"));
    dialog.ShowSave();
    EXPECT_EQ(dialog.FileName, folder.filePath("a.5415.xlsx"));
}

TEST(Faults, AnErrorInAHandlerIsCaughtAtTheEvent) {
    auto *form = NewForm<RecordingForm>();
    auto *button = new QPushButton(form);
    QObject::connect(button, &QPushButton::clicked, [] { throw RuntimeError(9); });
    form->Show();
    raisingThroughQt([&] { QTest::mouseClick(button, Qt::LeftButton); });
    QTimer::singleShot(0, [] { throw std::bad_alloc(); });
    QCoreApplication::processEvents();
    const QList<RuntimeError> faults = takeFaults();
    ASSERT_EQ(faults.size(), 2);
    EXPECT_EQ(faults[0].number(), 9);
    EXPECT_EQ(Application::reportText(faults[1]), "Run-time error '7':\r\n\r\nOut of memory");
}

TEST(FaultsDeathTest, TheReportIsShownOnceThenTheHookRunsAndTheProcessEnds) {
    ::testing::FLAGS_gtest_death_test_style = "threadsafe";
    const auto program = [] {
        Application &application = *Application::instance();
        application.setFaultSeam({});
        application.setEndHook([] {
            std::fputs("hook;", stderr);
            throw RuntimeError(75);
        });
        modal().answerMsgBox([](const ModalSeam::Request &request) {
            std::fprintf(stderr, "%s;", qPrintable(QString(request.text).replace("\r\n", "/")));
            EventProcedure::run([] { throw RuntimeError(11); });
            return vbOK;
        });
        EventProcedure::run([] { throw RuntimeError(3075, "Syntax error"); });
        std::fputs("went on", stderr);
    };
    EXPECT_EXIT(program(), ::testing::ExitedWithCode(1),
                "Run-time error '3075':/"
                "/Syntax error;hook;$");
}

} // namespace
