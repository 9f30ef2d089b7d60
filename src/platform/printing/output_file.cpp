#include "platform/printing/output_file.h"

#include <cerrno>

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include "platform/runtime/runtime_error.h"

namespace Printing {

namespace {

[[noreturn]] void raise(int number, const QString &path) {
    throw RuntimeError(number,
                       RuntimeError::standardDescription(number) + QStringLiteral(": '%1'").arg(path));
}

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

void writeOutputFile(const QString &path, const QByteArray &bytes) {
    const QFileInfo info(path);
    if (!info.dir().exists()) raise(76, path);
    if (info.isDir()) raise(75, path);
    if (info.exists() && !info.isWritable()) raise(70, path);

    QSaveFile file(path);
    errno = 0;
    if (!file.open(QIODevice::WriteOnly)) raise(numberOf(errno) == 70 ? 70 : 75, path);
    const bool written = file.write(bytes) == bytes.size() && file.flush();
    if (!written || !file.commit()) raise(numberOf(errno), path);
}

} // namespace Printing
