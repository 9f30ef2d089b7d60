#include "platform/dao/file_lock.h"

#include <cerrno>

#include <QFile>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include "platform/runtime/runtime_error.h"

FileLock::FileLock(const QString &path, Kind kind)
    : m_file(open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {
    if (m_file < 0) return;
    if (flock(m_file, (kind == Kind::Exclusive ? LOCK_EX : LOCK_SH) | LOCK_NB) == 0) return;
    const bool held = errno == EWOULDBLOCK;
    close(m_file);
    m_file = -1;
    if (held) throw RuntimeError(3356);
}

FileLock::~FileLock() {
    if (m_file >= 0) close(m_file);
}
