#include "platform/runtime/whole_file.h"

#include <cerrno>

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include "platform/runtime/runtime_error.h"

namespace {

int numberOf(int systemError) {
    switch (systemError) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return 61;
    case EACCES:
    case EPERM:
    case EROFS:
        return 70;
    default:
        return 57;
    }
}

} // namespace

void writeWholeFile(const QString &path, const QByteArray &bytes, FallBack fallBack) {
    const QFileInfo info(path);
    if (!info.dir().exists()) throw RuntimeError::ofFile(76, path);
    // A device would be replaced by a file, and whoever reads from a pipe would wait for ever.
    if (info.exists() && !info.isFile()) throw RuntimeError::ofFile(75, path);
    if (info.exists() && !info.isWritable()) throw RuntimeError::ofFile(70, path);

    QSaveFile file(path);
    file.setDirectWriteFallback(fallBack == FallBack::InPlace);
    errno = 0;
    if (!file.open(QIODevice::WriteOnly)) throw RuntimeError::ofFile(numberOf(errno) == 70 ? 70 : 75, path);
    errno = 0;
    const bool written = file.write(bytes) == bytes.size() && file.flush();
    if (!written || !file.commit()) throw RuntimeError::ofFile(numberOf(errno), path);
}
