#include "platform/dao/sqlite_file_check.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include "platform/runtime/runtime_error.h"

namespace {

constexpr qint64 SqliteHeaderSize = 100;
constexpr qint64 LeastJournal = 512; // its header fills a sector
const QByteArray JournalMark("\xd9\xd5\x05\xf9\x20\xa1\x63\xd7", 8);

/// Without its mark a journal is one that its transaction is through with.
bool isHotJournal(const QString &path) {
    const QFileInfo info(path);
    if (!info.isFile() || info.size() < LeastJournal) return false;
    QFile file(path);
    return !file.open(QIODevice::ReadOnly) || file.read(JournalMark.size()) == JournalMark;
}

void checkBeside(const QString &file) {
    const QString wal = file + "-wal";
    const QString journal = file + "-journal";
    const QString unsettled = QFileInfo(wal).size() > 0 ? wal : isHotJournal(journal) ? journal : QString();
    if (unsettled.isEmpty()) return;
    throw RuntimeError(
        3045, QString("Could not use '%1'; file already in use. Changes to it are still in '%2': close the "
                      "program that made them, or open and close the file with it once more.")
                  .arg(file, unsettled));
}

/// Only a writer of old leaves the number of pages in the header behind.
qint64 declaredSize(const QByteArray &header, qint64 size) {
    const char *bytes = header.constData();
    const qint64 written = qFromBigEndian<quint16>(bytes + 16);
    const qint64 page = written == 1 ? 65536 : written;
    const qint64 pages = qFromBigEndian<quint32>(bytes + 28);
    const bool isCounted =
        pages > 0 && qFromBigEndian<quint32>(bytes + 24) == qFromBigEndian<quint32>(bytes + 92);
    if (isCounted) return pages * page;
    return page > 0 ? (size + page - 1) / page * page : size;
}

} // namespace

void checkSqliteFile(const QString &path) {
    const QString canonical = QFileInfo(path).canonicalFilePath();
    checkBeside(canonical);
    QFile file(canonical);
    if (!file.open(QIODevice::ReadOnly)) return;
    const QByteArray header = file.read(SqliteHeaderSize);
    const qint64 expected =
        header.size() < SqliteHeaderSize ? SqliteHeaderSize : declaredSize(header, file.size());
    if (file.size() >= expected) return;
    throw RuntimeError(3049, QString("Can't open database '%1'. The file is cut off: it has %2 bytes, and "
                                     "%3 belong to it.")
                                 .arg(canonical)
                                 .arg(file.size())
                                 .arg(expected));
}
