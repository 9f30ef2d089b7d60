// Opening documents by their association, as the desktop's own files tell it.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <sys/wait.h>

#include "platform/desktop/desktop_entry.h"
#include "platform/desktop/shell_execute.h"
#include "platform/forms/form.h"
#include "platform/runtime/drives.h"
#include "tests/support/gui.h"

namespace {

/// A desktop of its own: what is installed and chosen lies in a temporary folder. GIO looks for the place of
/// its folders once in a process, and hears of a change in them a moment later.
class DesktopTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        for (const auto &[name, folder] : Folders)
            qputenv(name, QFile::encodeName(path(folder)));
        qputenv("XDG_CURRENT_DESKTOP", "Test");
        write(
            "share/mime/packages/types.xml",
            "<mime-info xmlns='http://www.freedesktop.org/standards/shared-mime-info'>"
            "<mime-type type='application/octet-stream'/>"
            "<mime-type type='application/pdf'><glob pattern='*.pdf'/></mime-type>"
            "<mime-type type='text/plain'><glob pattern='*.txt'/></mime-type>"
            "<mime-type type='text/csv'><sub-class-of type='text/plain'/><glob pattern='*.csv'/></mime-type>"
            "</mime-info>");
        for (const char *folder : ChangedFolders)
            QDir().mkpath(path(folder));
    }

    void TearDown() override {
        for (const char *folder : ChangedFolders)
            for (const QFileInfo &file : QDir(path(folder)).entryInfoList(QDir::Files))
                QFile::remove(file.filePath());
    }

    static QString path(const QString &name) {
        static const QTemporaryDir folder;
        return folder.filePath(name);
    }

    static void write(const QString &name, const QString &text) {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text.toUtf8());
    }

    void install(const QString &name, const QString &exec, const QString &more = {}) const {
        write("share/applications/" + name + ".desktop",
              QStringLiteral("[Desktop Entry]\nType=Application\nName=%1\nExec=%2\n%3\n"
                             "[Desktop Action new]\nName=Other\nExec=nothing\n")
                  .arg(QFileInfo(name).fileName(), exec, more));
    }

    static QString applicationFor(const QString &file) {
        const auto entry = DesktopEntry::forFile(path(file));
        return entry ? entry->name() : QString();
    }

    /// What opens the file, once that is the expected application; else what it is after all.
    static QString applicationFor(const QString &file, const QString &expected) {
        (void)QTest::qWaitFor([&] { return applicationFor(file) == expected; });
        return applicationFor(file);
    }

private:
    static constexpr std::pair<const char *, const char *> Folders[] = {{"XDG_DATA_HOME", "data"},
                                                                        {"XDG_DATA_DIRS", "share"},
                                                                        {"XDG_CONFIG_HOME", "config"},
                                                                        {"XDG_CONFIG_DIRS", "etc"}};
    static constexpr const char *ChangedFolders[] = {"data/applications", "share/applications",
                                                     "share/applications/kde", "config", "etc"};
};

TEST_F(DesktopTest, ThePersonsChoiceComesBeforeTheSystems) {
    install("paper", "sh %f");
    install("viewer", "sh %f");
    install("kde/reader", "sh %f");
    install("gone", "no-such-program-here %f");
    write("a.pdf", "%PDF-1.4\n");
    EXPECT_EQ(applicationFor("a.pdf"), "");
    write("share/applications/mimeinfo.cache",
          "[MIME Cache]\napplication/pdf=gone.desktop;paper.desktop;viewer.desktop;\n");
    EXPECT_EQ(applicationFor("a.pdf", "paper"), "paper") << "what is not installed is passed over";
    write("config/mimeapps.list", "[Removed Associations]\napplication/pdf=paper.desktop;\n");
    EXPECT_EQ(applicationFor("a.pdf", "viewer"), "viewer");
    write("etc/mimeapps.list", "[Default Applications]\napplication/pdf=paper.desktop\n");
    EXPECT_EQ(applicationFor("a.pdf", "paper"), "paper");
    write("config/test-mimeapps.list", "[Default Applications]\napplication/pdf=kde-reader.desktop;\n");
    EXPECT_EQ(applicationFor("a.pdf", "reader"), "reader");
}

TEST_F(DesktopTest, ATypeFallsBackOnWhatItDerivesFrom) {
    install("editor", "sh %f");
    install("everything", "sh %f");
    write("share/applications/mimeinfo.cache",
          "[MIME Cache]\ntext/plain=editor.desktop;\napplication/octet-stream=everything.desktop;\n");
    write("table.csv", "a,b\n");
    write("a.pdf", "%PDF-1.4\n");
    EXPECT_EQ(applicationFor("table.csv", "editor"), "editor");
    EXPECT_EQ(applicationFor("a.pdf"), "") << "an opener of bytes is no opener of documents";
}

TEST_F(DesktopTest, AProgramGetsTheFilesNameWholeAndNoVariableOfThisProgramAlone) {
    qputenv("ONLY_FOR_THIS_PROGRAM", "MODULES FONTS");
    qputenv("MODULES", "ours");
    qputenv("FONTS", "ours");
    write("tell", "#!/bin/sh\nprintf '%s|' \"$@\" $MODULES $FONTS >\"$0.new\"\nmv \"$0.new\" \"$0.told\"\n");
    QFile::setPermissions(path("tell"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const QString file = path(QStringLiteral("a b#1 50%20 größer.pdf"));
    for (const auto &[codes, expected] :
         {std::pair("--new %f", "--new|" + file + "|"), std::pair("", file + "|")}) {
        install("teller", path("tell") + " " + codes);
        (void)QTest::qWaitFor([] { return !DesktopEntry::all().isEmpty(); });
        const QList<DesktopEntry> applications = DesktopEntry::all();
        ASSERT_EQ(applications.size(), 1);
        QFile::remove(path("tell.told"));
        EXPECT_TRUE(applications[0].open(file));
        ASSERT_TRUE(QTest::qWaitFor([] { return QFile::exists(path("tell.told")); })) << codes;
        QFile told(path("tell.told"));
        ASSERT_TRUE(told.open(QIODevice::ReadOnly));
        EXPECT_EQ(told.readAll().toStdString(), expected.toStdString());
    }
    for (const char *name : {"ONLY_FOR_THIS_PROGRAM", "MODULES", "FONTS"})
        qunsetenv(name);
}

TEST_F(DesktopTest, OpeningAnswersWithTheClassicCodes) {
    write("a.pdf", "%PDF-1.4\n");
    EXPECT_EQ(ShellExecute(path("none.pdf")), ShellFileNotFound);
    EXPECT_EQ(ShellExecute(path("nowhere/none.pdf")), ShellPathNotFound);
    EXPECT_EQ(ShellExecute(path("a.pdf")), ShellNoAssociation);
    install("copier", QStringLiteral("cp %f %1").arg(path("opened.pdf")));
    write("share/applications/mimeinfo.cache", "[MIME Cache]\napplication/pdf=copier.desktop;\n");
    EXPECT_EQ(applicationFor("a.pdf", "copier"), "copier");
    EXPECT_EQ(ShellExecute(path("a.pdf")), ShellStarted);
    EXPECT_TRUE(QTest::qWaitFor([] { return QFile::exists(path("opened.pdf")); }));
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "nothing that was started waits to be buried";
    install("console", "/bin/sh %f", "Terminal=true");
    write("config/mimeapps.list", "[Default Applications]\napplication/pdf=console.desktop;\n");
    EXPECT_EQ(applicationFor("a.pdf", "console"), "console");
    const QByteArray programs = qgetenv("PATH");
    qputenv("PATH", "/nowhere"); // so that there is no terminal
    EXPECT_EQ(ShellExecute(path("a.pdf")), ShellAccessDenied);
    programs.isNull() ? qunsetenv("PATH") : qputenv("PATH", programs);
}

TEST_F(DesktopTest, TheChooserStartsWhatIsPicked) {
    write("a.xyz", "?");
    install("zebra", QStringLiteral("cp %f %1").arg(path("by-zebra")));
    install("ant", QStringLiteral("cp %f %1").arg(path("by-ant")));
    install("helper", "sh", "NoDisplay=true");
    install("stranger", "sh", "OnlyShowIn=Elsewhere;");
    EXPECT_TRUE(QTest::qWaitFor([] { return DesktopEntry::all().size() == 2; }));
    modal().driveForm([](Form &form) { form.findChild<QPushButton *>("cmdCancel")->click(); });
    ShellOpenAs(path("a.xyz"));
    modal().driveForm([](Form &form) {
        auto *list = form.findChild<QListWidget *>("lstApplications");
        ASSERT_EQ(list->count(), 2);
        EXPECT_EQ(list->item(0)->text(), "ant");
        list->setCurrentRow(1);
        QTest::keyClick(list, Qt::Key_Return);
    });
    ShellOpenAs(path("a.xyz"));
    EXPECT_TRUE(QTest::qWaitFor([] { return QFile::exists(path("by-zebra")); }));
    EXPECT_FALSE(QFile::exists(path("by-ant")));
}

TEST_F(DesktopTest, ASeamKeepsApplicationsFromStarting) {
    ShellSeam seam;
    seam.result = ShellNoAssociation;
    EXPECT_EQ(ShellExecute("x.pdf"), ShellNoAssociation);
    ShellOpenAs("x.pdf");
    EXPECT_EQ(seam.opened, QStringList({"x.pdf"}));
    EXPECT_EQ(seam.openedAs, QStringList({"x.pdf"}));
}

#ifndef Q_OS_WIN
TEST(DrivesTest, NoDriveLettersMeanNoShare) {
    EXPECT_EQ(Drives::DriveName("/home/x/a.mdb"), "");
    EXPECT_EQ(Drives::ShareName(""), "");
}
#endif

} // namespace
