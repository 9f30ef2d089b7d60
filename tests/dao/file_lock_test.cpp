// Two runs and one file. flock() tells two descriptors apart as it tells two processes.
#include <gtest/gtest.h>

#include <QDir>

#include "platform/dao/file_lock.h"
#include "tests/dao/source_support.h"

TEST(FileLock, ExclusiveKeepsEveryOtherOut) {
    using Kind = FileLock::Kind;
    const QTemporaryDir folder;
    const QString path = writeFile(folder, "locked.mdb", "content");
    QFile::setPermissions(path, QFile::ReadOwner);
    const auto errorOfLocking = [&](Kind kind) { return errorOf([&] { FileLock lock(path, kind); }); };
    {
        const FileLock first(path, Kind::Exclusive);
        EXPECT_EQ(errorOfLocking(Kind::Exclusive), 3356);
        EXPECT_EQ(errorOfLocking(Kind::Shared), 3356);
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList("locked.mdb"));
    }
    {
        const FileLock first(path, Kind::Shared);
        EXPECT_EQ(errorOfLocking(Kind::Shared), 0);
        EXPECT_EQ(errorOfLocking(Kind::Exclusive), 3356);
    }
    EXPECT_EQ(errorOfLocking(Kind::Exclusive), 0);
}

TEST(FileLock, HelperDoesNotKeepTheLock) {
    const QTemporaryDir folder;
    const QString path = writeFile(folder, "copy.mdb", fileBytes(samplePath("PMA_Index.mdb")));
    auto lock = std::make_unique<FileLock>(path, FileLock::Kind::Exclusive);
    const AccessSource source(path, helperPath());
    lock.reset();
    EXPECT_EQ(errorOf([&] { FileLock(path, FileLock::Kind::Exclusive); }), 0);
}
