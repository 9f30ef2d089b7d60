// Where the program looks for its files: beside the binary of a build, or around the binary of an
// installation.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "data/modFileHandler.h"
#include "data/program_version.h"
#include "platform/dao/file_source.h"
#include "platform/runtime/app.h"

namespace {

class ProgramFiles : public ::testing::Test {
protected:
    ProgramFiles() {
        qunsetenv("APPDATA");
        qputenv("XDG_CONFIG_HOME", path("config").toUtf8());
        QDir().mkpath(path("usr/bin"));
    }
    ~ProgramFiles() override {
        qunsetenv("XDG_CONFIG_HOME");
        App::current() = saved;
    }

    QString path(const QString &below) const { return m_folder.filePath(below); }

    const App saved = App::current();

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(ProgramFiles, ABuildHasThemBesideTheBinary) {
    ProgramVersion::apply(path("usr/bin"));
    modFileHandler::SetupFileEnvironment();
    EXPECT_EQ(App::current().path, path("usr/bin"));
    EXPECT_EQ(modFileHandler::GetUserPath("Settings.vlp"), path("usr/bin/Settings.vlp"));
}

TEST_F(ProgramFiles, AnInstallationHasThemInItsFoldersAndIsNotWrittenInto) {
    QDir().mkpath(path("usr/share/velmar-ped"));
    QDir().mkpath(path("usr/libexec/velmar-ped"));
    QFile helper(path("usr/libexec/velmar-ped/table_reader"));
    ASSERT_TRUE(helper.open(QIODevice::WriteOnly));
    helper.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    QFile firstPath(path("usr/share/velmar-ped/PathSet.vlp"));
    ASSERT_TRUE(firstPath.open(QIODevice::WriteOnly));
    firstPath.write("/srv/materials/Velmar_PED.mdb\r\n");
    firstPath.close();

    ProgramVersion::apply(path("usr/bin"));
    EXPECT_EQ(App::current().path, path("usr/share/velmar-ped"));
    EXPECT_EQ(FileSource::helperProgram(), helper.fileName());

    // whoever runs the tests may well be able to write into the folder
    modFileHandler::SetupFileEnvironment();
    EXPECT_FALSE(modFileHandler::CanWriteBesideProgram());
    EXPECT_EQ(modFileHandler::GetUserFolder(), path("config/Harmotek/Velmar_PED/"));
    QFile copied(modFileHandler::GetUserPath("PathSet.vlp"));
    ASSERT_TRUE(copied.open(QIODevice::ReadOnly));
    EXPECT_EQ(copied.readAll(), "/srv/materials/Velmar_PED.mdb\r\n");
}
