// Opening documents by their association, as the desktop's own files tell it.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include "platform/desktop/desktop_entry.h"
#include "platform/desktop/drives.h"
#include "platform/desktop/shell_execute.h"
#include "platform/forms/form.h"
#include "tests/support/gui.h"

namespace {

/// A desktop of its own: what is installed and chosen lies in a temporary folder.
class DesktopTest : public ::testing::Test {
protected:
    void SetUp() override {
        set("XDG_DATA_HOME", "data");
        set("XDG_DATA_DIRS", "share");
        set("XDG_CONFIG_HOME", "config");
        set("XDG_CONFIG_DIRS", "etc");
        qputenv("XDG_CURRENT_DESKTOP", "Test");
        write(
            "share/mime/packages/types.xml",
            "<mime-info xmlns='http://www.freedesktop.org/standards/shared-mime-info'>"
            "<mime-type type='application/octet-stream'/>"
            "<mime-type type='application/pdf'><glob pattern='*.pdf'/></mime-type>"
            "<mime-type type='text/plain'><glob pattern='*.txt'/></mime-type>"
            "<mime-type type='text/csv'><sub-class-of type='text/plain'/><glob pattern='*.csv'/></mime-type>"
            "</mime-info>");
    }

    void TearDown() override {
        for (const auto &[name, value] : m_before)
            value.isNull() ? qunsetenv(name) : qputenv(name, value);
        qunsetenv("XDG_CURRENT_DESKTOP");
    }

    void write(const QString &name, const QString &text) {
        QDir(m_folder.path()).mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text.toUtf8());
    }

    void install(const QString &name, const QString &exec, const QString &more = {}) {
        write("share/applications/" + name + ".desktop",
              QStringLiteral("[Desktop Entry]\nType=Application\nName=%1\nExec=%2\n%3\n"
                             "[Desktop Action new]\nName=Other\nExec=nothing\n")
                  .arg(QFileInfo(name).fileName(), exec, more));
    }

    QString path(const QString &name) const { return m_folder.filePath(name); }

    QString applicationFor(const QString &file) const {
        const auto entry = DesktopEntry::forFile(path(file));
        return entry ? entry->name : QString();
    }

private:
    void set(const char *name, const QString &folder) {
        m_before.append({name, qgetenv(name)});
        qputenv(name, QFile::encodeName(path(folder)));
    }

    QTemporaryDir m_folder;
    QList<std::pair<const char *, QByteArray>> m_before;
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
    EXPECT_EQ(applicationFor("a.pdf"), "paper") << "what is not installed is passed over";
    write("config/mimeapps.list", "[Removed Associations]\napplication/pdf=paper.desktop;\n");
    EXPECT_EQ(applicationFor("a.pdf"), "viewer");
    write("etc/mimeapps.list", "[Default Applications]\napplication/pdf=paper.desktop\n");
    EXPECT_EQ(applicationFor("a.pdf"), "paper");
    write("config/test-mimeapps.list", "[Default Applications]\napplication/pdf=kde-reader.desktop;\n");
    EXPECT_EQ(applicationFor("a.pdf"), "reader");
}

TEST_F(DesktopTest, ATypeFallsBackOnWhatItDerivesFrom) {
    install("editor", "sh %f");
    install("everything", "sh %f");
    write("share/applications/mimeinfo.cache",
          "[MIME Cache]\ntext/plain=editor.desktop;\napplication/octet-stream=everything.desktop;\n");
    write("table.csv", "a,b\n");
    write("a.pdf", "%PDF-1.4\n");
    EXPECT_EQ(applicationFor("table.csv"), "editor");
    EXPECT_EQ(applicationFor("a.pdf"), "") << "an opener of bytes is no opener of documents";
}

TEST_F(DesktopTest, FieldCodesBecomeArguments) {
    const struct {
        const char *exec;
        bool terminal;
        QStringList command;
    } cases[] = {{"view --new %f", false, {"view", "--new", "/a b.pdf"}},
                 {"view %U", false, {"view", "file:///a%20b.pdf"}},
                 {"view %i --title=%c 100%%", false, {"view", "--title=View", "100%", "/a b.pdf"}},
                 {"view -m %m \"\" %F", false, {"view", "-m", "", "/a b.pdf"}},
                 {"\"/opt/my \\\"view\" %f", false, {"/opt/my \"view", "/a b.pdf"}},
                 {"view %F", true, {"x-terminal-emulator", "-e", "view", "/a b.pdf"}}};
    for (const auto &row : cases) {
        DesktopEntry entry;
        entry.name = "View";
        entry.exec = row.exec;
        entry.terminal = row.terminal;
        EXPECT_EQ(entry.command("/a b.pdf"), row.command) << row.exec;
    }
}

TEST_F(DesktopTest, OpeningAnswersWithTheClassicCodes) {
    write("a.pdf", "%PDF-1.4\n");
    EXPECT_EQ(ShellExecute(path("none.pdf")), ShellFileNotFound);
    EXPECT_EQ(ShellExecute(path("nowhere/none.pdf")), ShellPathNotFound);
    EXPECT_EQ(ShellExecute(path("a.pdf")), ShellNoAssociation);
    install("copier", QStringLiteral("cp %f %1").arg(path("opened.pdf")));
    write("share/applications/mimeinfo.cache", "[MIME Cache]\napplication/pdf=copier.desktop;\n");
    EXPECT_EQ(ShellExecute(path("a.pdf")), ShellStarted);
    EXPECT_TRUE(QTest::qWaitFor([this] { return QFile::exists(path("opened.pdf")); }));
}

TEST_F(DesktopTest, TheChooserStartsWhatIsPicked) {
    write("a.xyz", "?");
    install("zebra", QStringLiteral("cp %f %1").arg(path("by-zebra")));
    install("ant", QStringLiteral("cp %f %1").arg(path("by-ant")));
    install("helper", "sh", "NoDisplay=true");
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
    EXPECT_TRUE(QTest::qWaitFor([this] { return QFile::exists(path("by-zebra")); }));
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
