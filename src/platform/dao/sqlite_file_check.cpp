#include "platform/dao/sqlite_file_check.h"

#include <QFile>
#include <QFileInfo>

#include "platform/runtime/runtime_error.h"

namespace {

constexpr qint64 LeastJournal = 512; // its header fills a sector
const QByteArray FileMark("SQLite format 3\0", 16);
const QByteArray JournalMark("\xd9\xd5\x05\xf9\x20\xa1\x63\xd7", 8);

/// Without its mark a journal is one that its transaction is through with.
bool isHotJournal(const QString &path) {
    const QFileInfo info(path);
    if (!info.isFile() || info.size() < LeastJournal) return false;
    QFile file(path);
    return !file.open(QIODevice::ReadOnly) || file.read(JournalMark.size()) == JournalMark;
}

bool startsWith(const QString &path, const QByteArray &mark) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(mark.size()) == mark;
}

} // namespace

void checkSqliteSettled(const QString &path) {
    const QString file = QFileInfo(path).canonicalFilePath();
    const QString wal = file + "-wal";
    const QString journal = file + "-journal";
    const QString unsettled = QFileInfo(wal).size() > 0 ? wal : isHotJournal(journal) ? journal : QString();
    if (unsettled.isEmpty() || !startsWith(file, FileMark)) return;
    throw RuntimeError(
        3045, QString("Could not use '%1'; file already in use. Changes to it are still in '%2': close the "
                      "program that made them, or open and close the file with it once more.")
                  .arg(file, unsettled));
}
