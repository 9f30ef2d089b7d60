// What the world around the program can do to it: other runs, full and read-only media, a sudden end.
#include <gtest/gtest.h>

#include <csignal>

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

#include "platform/forms/default_instance.h"
#include "platform/forms/forms.h"
#include "platform/forms/msg_box.h"
#include "platform/forms/tdb_grid.h"
#include "platform/runtime/text_file.h"
#include "search/frmSearch.h"
#include "shell/mdiVelmar.h"
#include "tests/runs/medium.h"
#include "tests/support/test_run.h"

namespace {

constexpr int DiskFull = 61;
constexpr int PermissionDenied = 70;
constexpr int DamagedDatabase = 3343;

const QString Sample = QStringLiteral(SOURCE_FOLDER "/sample/Velmar_PED.mdb");

/// Grades in the list, and cells in a table of the first one, as the windows show them.
void lookAround(TestRun &testRun) {
    auto &search = DefaultInstance<frmSearch>();
    testRun.note("grades " + search.lblMatCount->text());
    search.cmdSelectMat->click();
    mdiVelmar &main = mdiVelmar::instance();
    main.menu.mnuFileElem(0).trigger();
    main.menu.mnuViewMechElem(1).trigger();
    const auto *grid = Forms::byName("frmMaterial2")->asWidget()->findChild<TDBGrid *>("tdbBoundTable");
    testRun.note(QString("rows %1").arg(grid->RowCount()));
}

void startLookAndLeave(TestRun &testRun) {
    testRun.start();
    lookAround(testRun);
    testRun.leave();
}

bool hasSeenTheSample(const Ending &ending) {
    return ending.noted("grades ") == QStringList("38") &&
           !ending.noted("rows ").value(0, "0").startsWith('0');
}

void writeOver(const QString &path) {
    QFile sample(Sample);
    QFile file(path);
    if (!sample.open(QIODevice::ReadOnly) || !file.open(QIODevice::WriteOnly)) return;
    file.write(sample.readAll());
}

/// Processes that have a file of the folder open.
QStringList processesOver(const QString &folder) {
    QStringList found;
    for (const QString &id : QDir("/proc").entryList({"[0-9]*"}, QDir::Dirs)) {
        const QFileInfoList files = QDir("/proc/" + id + "/fd").entryInfoList(QDir::Files | QDir::System);
        if (std::any_of(files.begin(), files.end(),
                        [&](const QFileInfo &file) { return file.symLinkTarget().startsWith(folder); }))
            found += id;
    }
    return found;
}

class HardTimes : public ::testing::Test {
protected:
    HardTimes() {
        for (const QString &folder : {m_folders.program, m_folders.user})
            QDir().mkpath(folder);
    }

    QString database() const { return m_folders.program + "/Velmar_PED.mdb"; }
    void putDatabase() const { ASSERT_TRUE(QFile::copy(Sample, database())); }
    QString settings() const { return m_folders.userFile("Settings.vlp"); }
    Ending runAgain() const { return ProgramRun::whole(m_folders, startLookAndLeave); }
    static void waitFor(const QString &file) {
        while (!QFile::exists(file))
            QTest::qWait(10);
    }
    void tell(const QString &file) const { QFile(m_folders.user + "/" + file).open(QIODevice::WriteOnly); }

    QTemporaryDir m_folder;
    TestRun::Folders m_folders{m_folder.filePath("program"), m_folder.filePath("user")};
};

} // namespace

TEST_F(HardTimes, ASecondRunIsToldThatTheDatabaseIsHeld) {
    putDatabase();
    const QString end = m_folders.user + "/end";
    ProgramRun first(m_folders, [&](TestRun &testRun) {
        testRun.start();
        testRun.note("up");
        waitFor(end);
        lookAround(testRun);
        testRun.leave();
    });
    ASSERT_TRUE(first.waitUntilNoted("up"));
    const Ending second = ProgramRun::whole(m_folders, [](TestRun &testRun) { testRun.start(); });
    EXPECT_EQ(second.status, 0) << qPrintable(second.log.join('\n'));
    EXPECT_EQ(second.log.filter("box: Error Occurred!!").filter("Error No. - 3356").size(), 1)
        << qPrintable(second.log.join('\n'));
    tell("end");
    const Ending ending = first.wait();
    EXPECT_EQ(ending.status, 0) << qPrintable(ending.log.join('\n'));
    EXPECT_TRUE(hasSeenTheSample(ending));
    EXPECT_TRUE(hasSeenTheSample(runAgain()));
}

TEST_F(HardTimes, ARunThatIsKilledLeavesNothingBehind) {
    putDatabase();
    {
        ProgramRun run(m_folders, [](TestRun &testRun) {
            testRun.start();
            lookAround(testRun);
            testRun.note("up");
            QTest::qWait(60'000);
        });
        ASSERT_TRUE(run.waitUntilNoted("up"));
        EXPECT_EQ(processesOver(m_folders.program).size(), 2); // the run and its reader
        kill(run.id(), SIGKILL);
        EXPECT_EQ(run.wait().status, -SIGKILL);
    }
    for (int i = 0; i < 100 && !processesOver(m_folders.program).isEmpty(); ++i)
        usleep(20'000);
    EXPECT_EQ(processesOver(m_folders.program), QStringList());
    EXPECT_EQ(QDir(m_folders.program).entryList(QDir::Files), QStringList("Velmar_PED.mdb"));
    EXPECT_TRUE(hasSeenTheSample(runAgain()));
}

TEST_F(HardTimes, AskedToEndItKeepsTheSettingsWhateverIsOpen) {
    putDatabase();
    const struct {
        int signal; // 0 for the end of the session, which may also be called off
        bool isBoxOpen;
        bool isCalledOff;
    } cases[] = {{SIGTERM, false, false}, {SIGHUP, true, false}, {SIGINT, true, false},
                 {0, false, false},       {0, true, false},      {0, false, true}};
    for (const auto &each : cases) {
        QFile::remove(settings());
        ProgramRun run(m_folders, [&](TestRun &testRun) {
            testRun.start();
            lookAround(testRun);
            mdiVelmar::instance().menu.mnuSettingsElem(1).trigger();
            DefaultInstance<frmSearch>().txtSearch(1)->setText("P265");
            char session = 0;
            if (each.isCalledOff)
                QMetaObject::invokeMethod(qApp, "commitDataRequest", Qt::DirectConnection,
                                          QGenericArgument("QSessionManager&", &session));
            else if (each.signal == 0)
                QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
            if (!each.isCalledOff) testRun.note("up");
            const ModalSeam::Pause seenByAPerson;
            if (each.isBoxOpen) MsgBox("Is this a box?", vbYesNo, "Box");
            if (each.isCalledOff) testRun.note("up");
            QTest::qWait(20'000);
            testRun.note("goes on");
        });
        ASSERT_TRUE(run.waitUntilNoted("up"));
        usleep(200'000);
        if (each.signal != 0 || each.isCalledOff) kill(run.id(), each.isCalledOff ? SIGKILL : each.signal);
        const Ending ending = run.wait();
        EXPECT_EQ(ending.status, each.isCalledOff ? -SIGKILL : 0)
            << each.signal << qPrintable(ending.log.join('\n'));
        const QStringList lines =
            QFile::exists(settings()) ? TextFile::readLines(settings()) : QStringList(27);
        EXPECT_EQ(lines.value(3), "Status_HIDE") << each.signal;
        EXPECT_EQ(lines.value(20), "P265") << each.signal;
        EXPECT_TRUE(ending.noted("goes on").isEmpty());
    }
}

TEST_F(HardTimes, ASettingsFileThatIsAPipeIsToldAndNotWaitedFor) {
    putDatabase();
    QDir().mkpath(QFileInfo(settings()).path());
    ASSERT_EQ(mkfifo(qPrintable(settings()), 0600), 0);
    const Ending ending = runAgain();
    EXPECT_EQ(ending.error(), 75) << qPrintable(ending.log.join('\n'));
    EXPECT_TRUE(hasSeenTheSample(ending));
}

TEST_F(HardTimes, AReadOnlyMediumIsEnoughForTheDatabase) {
    const Medium medium(m_folders.program, "4m");
    if (!medium.isThere()) GTEST_SKIP() << "cannot mount a file system here";
    putDatabase();
    ASSERT_TRUE(medium.makeReadOnly());
    const Ending ending = runAgain();
    EXPECT_EQ(ending.status, 0) << qPrintable(ending.log.join('\n'));
    EXPECT_TRUE(hasSeenTheSample(ending));
    EXPECT_EQ(TextFile::readLines(settings()).size(), 27);
}

TEST_F(HardTimes, SettingsThatCannotBeKeptAreTold) {
    const Medium medium(m_folders.user, "1m");
    if (!medium.isThere()) GTEST_SKIP() << "cannot mount a file system here";
    putDatabase();
    EXPECT_EQ(runAgain().status, 0);
    const QStringList before = TextFile::readLines(settings());
    const Ending ending = ProgramRun::whole(m_folders, [&](TestRun &testRun) {
        testRun.start();
        lookAround(testRun);
        medium.makeReadOnly();
        testRun.leave();
    });
    EXPECT_EQ(ending.status, 1);
    EXPECT_EQ(ending.error(), PermissionDenied) << qPrintable(ending.log.join('\n'));
    EXPECT_TRUE(hasSeenTheSample(ending));
    EXPECT_EQ(TextFile::readLines(settings()), before);
}

TEST_F(HardTimes, AFullDiskAtExitKeepsTheOldSettings) {
    const Medium medium(m_folders.user, "64k");
    if (!medium.isThere()) GTEST_SKIP() << "cannot mount a file system here";
    putDatabase();
    EXPECT_EQ(runAgain().status, 0);
    const QStringList before = TextFile::readLines(settings());
    const QString filler = m_folders.user + "/filler";
    const Ending ending = ProgramRun::whole(m_folders, [&](TestRun &testRun) {
        testRun.start();
        lookAround(testRun);
        QFile file(filler);
        if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
            while (file.write(QByteArray(1024, 'x')) > 0) {
            }
        mdiVelmar::instance().menu.mnuSettingsElem(1).trigger();
        testRun.leave();
    });
    EXPECT_EQ(ending.status, 1);
    EXPECT_EQ(ending.error(), DiskFull) << qPrintable(ending.log.join('\n'));
    EXPECT_TRUE(hasSeenTheSample(ending));
    EXPECT_EQ(TextFile::readLines(settings()), before);
    EXPECT_EQ(QDir(QFileInfo(settings()).path()).entryList(QDir::Files),
              QStringList({"PathSet.vlp", "Settings.vlp"}));
    QFile::remove(filler);
    EXPECT_EQ(runAgain().status, 0);
}

TEST_F(HardTimes, AFullDiskAtTheFirstStartIsNoHindrance) {
    const Medium medium(m_folders.user, "4k");
    if (!medium.isThere()) GTEST_SKIP() << "cannot mount a file system here";
    putDatabase();
    QFile filler(m_folders.user + "/filler");
    ASSERT_TRUE(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    filler.write(QByteArray(1 << 20, 'x'));
    const Ending ending = runAgain();
    EXPECT_TRUE(hasSeenTheSample(ending)) << qPrintable(ending.log.join('\n'));
    EXPECT_EQ(ending.error(), DiskFull); // the settings, at the end
}

TEST_F(HardTimes, ADatabaseThatIsReplacedOrGoneIsReadOn) {
    putDatabase();
    const Ending ending = ProgramRun::whole(m_folders, [&](TestRun &testRun) {
        testRun.start();
        QFile::copy(Sample, database() + ".new");
        if (::rename(qPrintable(database() + ".new"), qPrintable(database())) != 0)
            testRun.note("cannot replace");
        lookAround(testRun);
        QFile::remove(database());
        mdiVelmar::instance().menu.mnuViewPhysElem(0).trigger();
        testRun.leave();
    });
    EXPECT_EQ(ending.status, 0) << qPrintable(ending.log.join('\n'));
    EXPECT_TRUE(hasSeenTheSample(ending));
}

TEST_F(HardTimes, ADatabaseThatIsWrittenOverShowsNoMoreValues) {
    putDatabase();
    const Ending ending = ProgramRun::whole(m_folders, [&](TestRun &testRun) {
        testRun.start();
        writeOver(database());
        lookAround(testRun);
        testRun.leave();
    });
    EXPECT_EQ(ending.status, 1);
    EXPECT_EQ(ending.error(), DamagedDatabase) << qPrintable(ending.log.join('\n'));
    EXPECT_EQ(ending.noted("rows "), QStringList());
    EXPECT_EQ(TextFile::readLines(settings()).size(), 27);
    EXPECT_TRUE(hasSeenTheSample(runAgain()));
}
