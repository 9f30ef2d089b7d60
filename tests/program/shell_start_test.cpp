// From the start window to the search window, and every way in which the database can be missing.
#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <QToolButton>

#include <sys/stat.h>
#include <unistd.h>

#include "data/modDBase.h"
#include "data/modFileHandler.h"
#include "platform/dao/database.h"
#include "platform/dao/file_lock.h"
#include "platform/desktop/help_viewer.h"
#include "platform/forms/application.h"
#include "platform/forms/default_instance.h"
#include "platform/forms/forms.h"
#include "platform/forms/msg_box.h"
#include "platform/forms/screen.h"
#include "platform/forms/status_bar.h"
#include "platform/forms/toolbar.h"
#include "platform/runtime/app.h"
#include "platform/runtime/text_file.h"
#include "search/frmSearch.h"
#include "shell/mdiVelmar.h"
#include "start/frmSplash.h"
#include "start/program_start.h"
#include "tests/support/gui.h"
#include "tests/support/pinned_settings.h"

namespace {

/// A program folder and a user's folder, both fresh; the program is not started yet.
class Start : public ::testing::Test {
protected:
    Start() {
        App::current().path = m_program.path();
        App::current().exeName = "velmar-ped";
        App::current().title = "Velmar-PED";
        qputenv("APPDATA", m_user.path().toUtf8());
    }

    ~Start() override {
        for (FormBase &form : Forms())
            if (form.Name() != QLatin1String("mdiVelmar")) form.Unload(vbFormMDIForm);
        if (auto *window = LoadedInstance<mdiVelmar>()) window->Unload();
        deleteUnloaded();
        modDBase::reset();
        Screen::setSizeForTest({});
        qunsetenv("APPDATA");
    }

    QString program(const QString &file) const { return m_program.filePath(file); }
    QString user(const QString &file) const { return m_user.filePath("Harmotek/Velmar_PED/" + file); }

    void copyDatabase(const QString &to) {
        ASSERT_TRUE(QFile::copy(SOURCE_FOLDER "/sample/Velmar_PED.mdb", to));
    }
    void writeUser(const QString &file, const QStringList &lines) {
        QDir().mkpath(user(""));
        TextFile::writeLines(user(file), lines);
    }
    static void SetUpTestSuite() { ProgramStart::installActions(); }
    void start() {
        modFileHandler::SetupFileEnvironment();
        mdiVelmar::instance();
    }
    static void leave() {
        mdiVelmar::instance().Unload();
        deleteUnloaded();
        modDBase::reset();
    }
    static bool isRunning() { return LoadedInstance<mdiVelmar>() != nullptr; }

    PinnedSettings m_settings;
    QTemporaryDir m_program;
    QTemporaryDir m_user;
};

/// Another user while it lives, who may read the program's folder and owns the other one. For root no folder
/// is read-only.
class OtherUser {
public:
    OtherUser(const QString &programFolder, const QString &ownFolder)
        : m_programFolder(QFile::encodeName(programFolder))
        , m_isRoot(geteuid() == 0) {
        EXPECT_EQ(chmod(m_programFolder.constData(), 0555), 0);
        if (!m_isRoot) return;
        EXPECT_EQ(chown(QFile::encodeName(ownFolder).constData(), Nobody, Nobody), 0);
        EXPECT_EQ(setresuid(Nobody, Nobody, 0), 0);
    }
    ~OtherUser() {
        if (m_isRoot) {
            EXPECT_EQ(setresuid(0, 0, 0), 0);
        }
        EXPECT_EQ(chmod(m_programFolder.constData(), 0755), 0);
    }
    OtherUser(const OtherUser &) = delete;
    OtherUser &operator=(const OtherUser &) = delete;

private:
    static constexpr uid_t Nobody = 65534;
    QByteArray m_programFolder;
    bool m_isRoot;
};

/// What the help window shows, which is closed then.
QString shownTopic() {
    for (QWidget *widget : QApplication::topLevelWidgets())
        if (const std::unique_ptr<HelpViewer> viewer(qobject_cast<HelpViewer *>(widget)); viewer)
            return viewer->findChild<QTextBrowser *>("HelpText")->source().fileName();
    return {};
}

QStringList settingsOf(const QString &file) {
    return TextFile::readLines(file);
}

} // namespace

TEST_F(Start, AKeyOnTheStartWindowLeadsToTheSearch) {
    copyDatabase(program("Velmar_PED.mdb"));
    auto &splash = DefaultInstance<frmSplash>();
    EXPECT_EQ(splash.Timer1->interval(), 3000);
    EXPECT_FALSE(splash.Timer2->isActive());
    QTest::keyClick(&splash, Qt::Key_A);
    ASSERT_TRUE(isRunning());
    EXPECT_TRUE(splash.isUnloaded());
    auto &main = mdiVelmar::instance();
    EXPECT_EQ(main.Caption(), "elmar-PED   ");
    EXPECT_TRUE(Forms::byName("frmSearch")->Visible());
    EXPECT_FALSE(main.Toolbar1->Visible());
    EXPECT_FALSE(main.menu.mnuView->Visible());
    // the path is the program's own folder, which is not worth remembering
    EXPECT_EQ(settingsOf(user("PathSet.vlp")), QStringList());
}

TEST_F(Start, TheTimerAndEveryClickLeadToTheSearchToo) {
    copyDatabase(program("Velmar_PED.mdb"));
    const char *const clickable[] = {
        "", "Frame1", "imgLogo", "imgVelmar", "lblProductName", "lblPlatform", "lblVersion", "lblCopyright"};
    for (const QString name : clickable) {
        const QPointer<frmSplash> splash = &DefaultInstance<frmSplash>();
        if (name.isEmpty()) {
            splash->Timer1->setInterval(1);
            EXPECT_TRUE(QTest::qWaitFor(isRunning));
        } else {
            QTest::mouseClick(splash->findChild<QWidget *>(name), Qt::LeftButton);
        }
        EXPECT_TRUE(!splash || splash->isUnloaded()) << name.toStdString();
        ASSERT_TRUE(isRunning()) << name.toStdString();
        leave();
    }
}

TEST_F(Start, AFolderThatCannotBeMadeIsToldAndTheProgramsOwnServes) {
    copyDatabase(program("Velmar_PED.mdb"));
    qputenv("APPDATA", program("Velmar_PED.mdb").toUtf8()); // a file
    modal().answerMsgBox(vbOK);
    DefaultInstance<frmSplash>().Unload();
    EXPECT_EQ(modal().lastAsked().title, "Error");
    EXPECT_EQ(modal().lastAsked().style, vbCritical);
    EXPECT_EQ(modal().lastAsked().text,
              "75: Error in SetupFileEnvironment(). Error Description: Path/File access error: '" +
                  program("Velmar_PED.mdb/") + "'");
    EXPECT_EQ(modFileHandler::GetUserFolder(), m_program.path() + '/');
    modal().clear();
}

TEST_F(Start, WhereTheProgramsFolderIsReadOnlyTheUsersOwnTakesSettingsAndLog) {
    copyDatabase(program("Velmar_PED.mdb"));
    TextFile::writeLines(program("Settings.vlp"), {"Tile_Horizontal"});
    qunsetenv("APPDATA");
    qputenv("XDG_CONFIG_HOME", m_user.path().toUtf8());
    const FileLock other(program("Velmar_PED.mdb"), FileLock::Kind::Exclusive);
    const OtherUser readsTheProgramOnly(m_program.path(), m_user.path());
    modal().answerMsgBox(vbOK);
    start();
    EXPECT_FALSE(isRunning());
    EXPECT_FALSE(QFile::exists(program("ErrorLog.txt")));
    EXPECT_EQ(settingsOf(user("ErrorLog.txt")).value(1), "Error No. - 3356");
    EXPECT_EQ(settingsOf(user("Settings.vlp")).value(0), "Tile_Horizontal");
    qunsetenv("XDG_CONFIG_HOME");
    modal().clear();
}

TEST_F(Start, ADatabaseThatHasGoneIsLookedForAndItsPlaceRemembered) {
    QDir(m_program.path()).mkdir("elsewhere");
    const QString found = program("elsewhere/Velmar_PED.mdb");
    copyDatabase(found);
    copyDatabase(program("elsewhere/Other.mdb"));
    writeUser("PathSet.vlp", {program("gone.mdb")});
    modal().answerMsgBox(vbYes);
    modal().chooseFile([&](const ModalSeam::Request &request) {
        EXPECT_EQ(request.title, "Locate Velmar_PED.mdb...");
        EXPECT_EQ(request.fileName, "Velmar_PED.mdb");
        EXPECT_EQ(request.filter, "Access files (*.mdb)|*.mdb");
        return program("elsewhere/Other.mdb");
    });
    modal().answerMsgBox(vbYes);
    modal().chooseFile(found);
    start();
    ASSERT_TRUE(isRunning());
    const QList<ModalSeam::Request> asked = modal().asked();
    ASSERT_EQ(asked.size(), 4);
    EXPECT_EQ(asked[0].title, "Database Missing");
    EXPECT_EQ(asked[0].style, vbYesNo + vbCritical);
    EXPECT_TRUE(asked[0].text.startsWith("Error <3024> "));
    EXPECT_TRUE(asked[0].text.contains("\r\n\r\nUnable to locate database.\r\n\r\nClick 'Yes' to search"));
    EXPECT_EQ(asked[2].title, "Wrong Path...");
    EXPECT_EQ(asked[2].style, vbYesNo + vbInformation);
    EXPECT_EQ(asked[2].text, "You attempted to open wrong file.\r\n\r\n'" + program("elsewhere/Other.mdb") +
                                 "'\r\n\r\nDo you wish to try again ?");
    EXPECT_EQ(settingsOf(user("PathSet.vlp")), QStringList{found});
    EXPECT_EQ(modDBase::dbMain()->Name(), found);
    modal().clear();
}

TEST_F(Start, WhatIsNoDatabaseIsToldWithItsPath) {
    TextFile::writeLines(program("Velmar_PED.mdb"), {"no database"});
    QFile::copy(BINARY_FOLDER "/Velmar_PED_HELP.qch", program("Velmar_PED_HELP.qch"));
    modal().answerMsgBox([](const ModalSeam::Request &question) {
        question.help();
        EXPECT_EQ(shownTopic(), "Cant_Start.htm");
        return vbNo;
    });
    start();
    EXPECT_FALSE(isRunning());
    EXPECT_TRUE(modDBase::bDatabaseFailed());
    EXPECT_EQ(modal().lastAsked().title, "Wrong file format");
    EXPECT_EQ(modal().lastAsked().text,
              "You attempted to open a non-database file.\r\n\r\n" + program("Velmar_PED.mdb") +
                  "\r\n\r\nVelmar_PED.mdbis the necessary file\r\n\r\nDo you wish to try again?");
    modal().clear();
}

TEST_F(Start, ARunWithoutADatabaseEndsCleanlyAndKeepsTheSettings) {
    const QStringList kept = {"Tile_Horizontal", "Tool_HIDE",  "Tool_BOTTOM", "Status_SHOW",
                              "11074466",        "Colours_ON", "ToolTips_OFF"};
    writeUser("Settings.vlp", kept);
    auto &splash = DefaultInstance<frmSplash>();
    modal().answerMsgBox([&](const ModalSeam::Request &) {
        EXPECT_TRUE(splash.Visible()); // it stands behind the box
        return vbNo;
    });
    QTimer::singleShot(0, &splash, [&] { QTest::keyClick(&splash, Qt::Key_Space); });
    EXPECT_EQ(Application::instance()->run(), 0);
    EXPECT_EQ(Forms::Count(), 0);
    EXPECT_EQ(settingsOf(user("Settings.vlp")).first(7), kept);
    modal().clear();
}

TEST_F(Start, APathThatCannotBeRememberedIsLoggedAlthoughTheDatabaseIsOpen) {
    QDir(m_program.path()).mkdir("elsewhere");
    copyDatabase(program("elsewhere/Velmar_PED.mdb"));
    QDir().mkpath(user("PathSet.vlp")); // a folder, which no line can be written to
    modal().answerMsgBox(vbYes);
    modal().chooseFile(program("elsewhere/Velmar_PED.mdb"));
    modal().answerMsgBox(vbOK);
    start();
    EXPECT_FALSE(isRunning());
    EXPECT_TRUE(modDBase::bDatabaseFailed());
    EXPECT_NE(modDBase::dbMain(), nullptr);
    EXPECT_EQ(settingsOf(program("ErrorLog.txt")).value(1), "Error No. - 75");
    modal().clear();
}

TEST_F(Start, CancelInTheFileDialogEndsLikeNo) {
    modal().answerMsgBox(vbYes);
    modal().chooseFile(QString());
    start();
    EXPECT_FALSE(isRunning());
    modal().clear();
}

TEST_F(Start, ADatabaseHeldByAnotherRunIsLogged) {
    copyDatabase(program("Velmar_PED.mdb"));
    const FileLock other(program("Velmar_PED.mdb"), FileLock::Kind::Exclusive);
    modal().answerMsgBox(vbOK);
    start();
    EXPECT_FALSE(isRunning());
    const QStringList log = TextFile::readLines(program("ErrorLog.txt"));
    ASSERT_EQ(log.size(), 6);
    EXPECT_EQ(log[1], "Error No. - 3356");
    EXPECT_EQ(log[2], "Application EXE - velmar-ped");
    EXPECT_EQ(log[3], "Sub/Function - modDBase.OpenDBase");
    EXPECT_EQ(log[4], "Error Description - ");
    EXPECT_EQ(modal().lastAsked().title, "Error Occurred!!");
    EXPECT_TRUE(modal().lastAsked().text.startsWith(log.mid(1).join("\r\n") + "\r\n\r\nError Log - "));
    modal().clear();
}

TEST_F(Start, ADatabaseThatDoesNotAnswerIsWaitedForOrLogged) {
    copyDatabase(program("Velmar_PED.mdb"));
    QFile helper(program("table_reader"));
    ASSERT_TRUE(helper.open(QIODevice::WriteOnly));
    helper.write("#!/bin/sh\nexec sleep 60\n");
    helper.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    helper.close();
    modal().answerMsgBox(vbYes);
    modal().answerMsgBox(vbNo);
    modal().answerMsgBox(vbOK);
    start();
    EXPECT_FALSE(isRunning());
    ASSERT_EQ(modal().asked().size(), 3);
    EXPECT_EQ(modal().asked()[1].title, "Database Not Answering");
    EXPECT_EQ(modal().asked()[1].text, "The database file does not answer.\r\n\r\n" +
                                           program("Velmar_PED.mdb") + "\r\n\r\nDo you wish to wait on?");
    const QStringList log = TextFile::readLines(program("ErrorLog.txt"));
    EXPECT_EQ(log.value(1), "Error No. - 3043");
    EXPECT_EQ(log.value(5),
              "Disk or network error: the file '" + program("Velmar_PED.mdb") + "' does not answer.");
    modal().clear();
}

TEST_F(Start, ScreensDecideTheSizeOfTheSearchWindow) {
    copyDatabase(program("Velmar_PED.mdb"));
    struct Case {
        int width;
        bool lowRes;
        int boxes;
    };
    for (const Case &screen :
         {Case{1024, false, 0}, Case{1023, true, 0}, Case{800, true, 0}, Case{640, true, 1}}) {
        Screen::setSizeForTest({screen.width, 600});
        if (screen.boxes > 0) modal().answerMsgBox(vbOK);
        start();
        EXPECT_EQ(mdiVelmar::instance().bLowRes, screen.lowRes) << screen.width;
        EXPECT_EQ(modal().asked().size(), screen.boxes) << screen.width;
        modal().clear();
        leave();
    }
}

TEST_F(Start, SettingsComeBackAtTheNextStart) {
    copyDatabase(program("Velmar_PED.mdb"));
    start();
    {
        auto &main = mdiVelmar::instance();
        main.menu.mnuSettingsToolElem(3).trigger();
        main.menu.mnuSettingsToolElem(1).trigger();
        main.menu.mnuSettingsElem(1).trigger();
        main.menu.mnuSettingsElem(2).trigger();
        main.menu.mnuSettingsElem(3).trigger();
        main.menu.mnuWindowElem(1).trigger();
        leave();
    }
    EXPECT_EQ(settingsOf(user("Settings.vlp")).mid(0, 7),
              QStringList({"Tile_Horizontal", "Tool_HIDE", "Tool_BOTTOM", "Status_HIDE", "16777215",
                           "Colours_OFF", "ToolTips_OFF"}));
    start();
    auto &main = mdiVelmar::instance();
    EXPECT_EQ(main.Toolbar1->Align(), vbAlignBottom);
    EXPECT_TRUE(main.menu.mnuSettingsToolElem(2).Enabled());
    EXPECT_FALSE(main.menu.mnuSettingsToolElem(3).Enabled());
    EXPECT_FALSE(main.stbStatus->Visible());
    EXPECT_TRUE(main.bColoursOff);
    const auto &search = DefaultInstance<frmSearch>(); // it was loaded with its colours
    EXPECT_FALSE(search.tdbMaterials->AlternatingRowStyle());
    EXPECT_FALSE(search.tdbSelected->AlternatingRowStyle());
    for (const auto &[index, box] : search.txtSearch)
        EXPECT_EQ(box->palette().color(QPalette::Base), QColor(Qt::white)) << index;
    EXPECT_FALSE(main.bToolTips);
    EXPECT_EQ(main.iArrangement, 1);
    EXPECT_EQ(main.strArrangement, "Cascade"); // until the next Show brings it in line
}

TEST_F(Start, ABackColourThatIsNoNumberIsReportedAndMended) {
    copyDatabase(program("Velmar_PED.mdb"));
    QStringList lines = QString("Cascade,Tool_SHOW,Tool_TOP,Status_SHOW,blue,Colours_ON,ToolTips_OFF,"
                                "1234,0,0,0,0,0,True,False,True,True,True,True,EN 10028-2,,,,,,,1")
                            .split(',');
    writeUser("Settings.vlp", lines);
    start();
    const QList<RuntimeError> faults = takeFaults();
    ASSERT_EQ(faults.size(), 1);
    EXPECT_EQ(faults.first().number(), 13);
    mdiVelmar::instance().WriteSettings();
    lines[4] = "16697253";
    EXPECT_EQ(settingsOf(user("Settings.vlp")), lines);
    mdiVelmar::instance().Unload();
    EXPECT_EQ(takeFaults().size(), 1); // no database to close: the real program is gone by then
}

TEST_F(Start, LeavingUnloadsEverythingAndLetsGoOfTheDatabase) {
    copyDatabase(program("Velmar_PED.mdb"));
    const auto byCommand = [](mdiVelmar &main) { main.menu.mnuFileElem(7).trigger(); };
    const auto byButton = [](mdiVelmar &main) { main.Toolbar1->Buttons("Exit").widget()->click(); };
    const auto byCloseBox = [](mdiVelmar &main) { main.close(); };
    for (const std::function<void(mdiVelmar &)> &way :
         {std::function<void(mdiVelmar &)>(byCommand), {byButton}, {byCloseBox}}) {
        start();
        auto &search = DefaultInstance<frmSearch>();
        search.txtSearch(1)->setText("P265");
        QTimer::singleShot(0, qApp, [&] { way(mdiVelmar::instance()); });
        EXPECT_EQ(Application::instance()->run(), 0);
        EXPECT_EQ(Forms::Count(), 0);
        deleteUnloaded();
        modDBase::reset();
        EXPECT_NO_THROW(FileLock(program("Velmar_PED.mdb"), FileLock::Kind::Exclusive));
        // the search window has told its boxes before the settings are written
        EXPECT_EQ(settingsOf(user("Settings.vlp")).value(20), "P265");
        QFile::remove(user("Settings.vlp"));
    }
}
