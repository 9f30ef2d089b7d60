// Two runs and one file. Locks tell two descriptors apart as they tell two processes.
#include <gtest/gtest.h>

#include <cerrno>

#include <QDir>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "platform/dao/file_lock.h"
#include "tests/dao/source_support.h"

namespace {

bool asOnNfs = false;

} // namespace

// Stands in for the system's.
extern "C" int flock(int file, int operation) {
    if (!asOnNfs) return static_cast<int>(syscall(SYS_flock, file, operation));
    if ((operation & LOCK_EX) != 0) {
        errno = EBADF; // of a descriptor that is open for reading alone
        return -1;
    }
    struct flock lock = {};
    lock.l_type = F_RDLCK;
    return fcntl(file, F_OFD_SETLK, &lock);
}

class AnyFileSystem : public testing::TestWithParam<bool> {
protected:
    AnyFileSystem() { asOnNfs = GetParam(); }
    ~AnyFileSystem() override { asOnNfs = false; }
};

INSTANTIATE_TEST_SUITE_P(FileLock, AnyFileSystem, testing::Bool());

TEST_P(AnyFileSystem, ExclusiveKeepsEveryOtherOut) {
    using Kind = FileLock::Kind;
    const QTemporaryDir folder;
    const QString path = writeFile(folder, "locked.mdb", "content");
    QFile::setPermissions(path, QFile::ReadOwner);
    const auto errorOfLocking = [&](Kind kind) { return errorOf([&] { FileLock lock(path, kind); }); };
    {
        const FileLock first(path, Kind::Exclusive);
        EXPECT_EQ(errorOfLocking(Kind::Exclusive), 3356);
        EXPECT_EQ(errorOfLocking(Kind::Shared), asOnNfs ? 0 : 3356);
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
    const SampleSource source(path);
    lock.reset();
    EXPECT_EQ(errorOf([&] { FileLock(path, FileLock::Kind::Exclusive); }), 0);
}
