#include "platform/dao/file_lock.h"

#include <cerrno>

#include <QFile>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include "platform/runtime/runtime_error.h"

namespace {

/// NFS turns flock() into a lock of ranges, and grants an exclusive one to nobody who cannot write. A read
/// lock shuts nobody out, but it can be seen: of two who first place theirs and then look for another's, at
/// most one stays. Gives the system's error number, EWOULDBLOCK where somebody else holds the file.
int claimByReadLock(int file) {
    struct flock lock = {};
    lock.l_type = F_RDLCK;
    lock.l_whence = SEEK_SET;
    if (fcntl(file, F_OFD_SETLK, &lock) != 0) return errno == EACCES ? EWOULDBLOCK : errno;
    lock.l_type = F_WRLCK;
    if (fcntl(file, F_OFD_GETLK, &lock) != 0) return errno;
    return lock.l_type == F_UNLCK ? 0 : EWOULDBLOCK;
}

} // namespace

FileLock::FileLock(const QString &path, Kind kind)
    : m_file(open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {
    if (m_file < 0) return;
    int error = flock(m_file, (kind == Kind::Exclusive ? LOCK_EX : LOCK_SH) | LOCK_NB) == 0 ? 0 : errno;
    if (error == EBADF) error = claimByReadLock(m_file);
    if (error == 0) return;
    close(m_file);
    m_file = -1;
    if (error == EWOULDBLOCK) throw RuntimeError(3356);
}

FileLock::~FileLock() {
    if (m_file >= 0) close(m_file);
}
