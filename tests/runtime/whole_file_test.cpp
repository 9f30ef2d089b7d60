// Writing a file as a whole, and what is left where that fails.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QStorageInfo>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <sys/sysmacros.h>

#include "platform/runtime/text_file.h"
#include "platform/runtime/whole_file.h"
#include "tests/support/error_of.h"
#include "tests/support/small_disk.h"

namespace {

QByteArray contentOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class WholeFile : public ::testing::TestWithParam<std::pair<const char *, int>> {};

TEST_P(WholeFile, RaisesItsNumberAndLeavesNothing) {
    QTemporaryDir folder;
    QDir(folder.path()).mkdir("folder");
    const QString name = QString::fromLatin1(GetParam().first);
    const bool isSystemFolder = name.startsWith('/');
    if (isSystemFolder && QStorageInfo(QFileInfo(name).path()).fileSystemType() != "sysfs")
        GTEST_SKIP() << "no such system folder is mounted here";
    const QString path = isSystemFolder ? name : folder.filePath(name);
    const QStringList before = QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    EXPECT_EQ(errorOf([&] { writeWholeFile(path, "content"); }), GetParam().second);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), before);
}

INSTANTIATE_TEST_SUITE_P(Paths, WholeFile,
                         ::testing::Values(std::pair{"missing/a.pdf", 76}, std::pair{"A/B.pdf", 76},
                                           std::pair{"folder", 75}, std::pair{"/sys/a.pdf", 70}));

TEST(WholeFileOnAFullDisk, KeepsWhatWasThere) {
    QTemporaryDir folder;
    const QString path = folder.filePath("a.txt");
    writeWholeFile(path, "before");
    int number = 0;
    {
        const SmallDisk disk(1000);
        number = errorOf([&] { writeWholeFile(path, QByteArray(100000, 'x')); });
    }
    EXPECT_EQ(number, 61);
    EXPECT_EQ(contentOf(path), "before");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 1);
}

TEST(WholeFileOverWhatIsNoFile, LeavesIt) {
    QTemporaryDir folder;
    const QString pipe = folder.filePath("pipe");
    ASSERT_EQ(mkfifo(qPrintable(pipe), 0600), 0);
    QFile::link(pipe, folder.filePath("to pipe"));
    QStringList names = {"pipe", "to pipe"};
    // One of the test's own: a fault here would put a file into the place of the system's.
    if (mknod(qPrintable(folder.filePath("device")), S_IFCHR | 0600, makedev(1, 3)) == 0) names << "device";
    for (const QString &name : names) {
        EXPECT_EQ(errorOf([&] { writeWholeFile(folder.filePath(name), "content"); }), 75) << qPrintable(name);
        EXPECT_EQ(errorOf([&] { TextFile::readLines(folder.filePath(name)); }), 75) << qPrintable(name);
        EXPECT_FALSE(QFileInfo(folder.filePath(name)).isFile()) << qPrintable(name);
    }
}

TEST(WholeFileInASealedFolder, IsWrittenInPlaceWhereThatIsAllowed) {
    QTemporaryDir folder;
    const QString path = folder.filePath("a.txt");
    writeWholeFile(path, "before");
    ASSERT_TRUE(QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::ExeOwner));
    const bool sealed = !QFileInfo(folder.path()).isWritable();
    const int number = sealed ? errorOf([&] { writeWholeFile(path, "other"); }) : 70;
    const int inPlace = errorOf([&] { writeWholeFile(path, "after", FallBack::InPlace); });
    QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    if (!sealed) GTEST_SKIP() << "the super-user may write everywhere";
    EXPECT_EQ(number, 70);
    EXPECT_EQ(inPlace, 0);
    EXPECT_EQ(contentOf(path), "after");
}

} // namespace
