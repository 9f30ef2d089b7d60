#include "platform/dao/db_engine.h"

#include <cerrno>

#include <QFile>
#include <QFileInfo>

#include <unistd.h>

#include "platform/dao/database.h"
#include "platform/dao/file_lock.h"
#include "platform/dao/file_source.h"
#include "platform/dao/table_store.h"
#include "platform/runtime/runtime_error.h"

namespace {

QString passwordOf(const QString &connect) {
    for (const QString &part : connect.split(';'))
        if (part.startsWith(QLatin1String("pwd="), Qt::CaseInsensitive)) return part.mid(4);
    return {};
}

/// A folder that may not be searched hides what is in it, and a look at the file would find nothing.
void checkPermission(const QString &path) {
    if (access(QFile::encodeName(path).constData(), R_OK) != 0 && errno == EACCES)
        throw RuntimeError::ofFile(70, path);
}

} // namespace

DBEngine &DBEngine::instance() {
    static DBEngine engine;
    return engine;
}

std::shared_ptr<Database> DBEngine::OpenDatabase(const QString &path, bool exclusive, bool,
                                                 const QString &connect) {
    return open(path, exclusive ? FileLock::Kind::Exclusive : FileLock::Kind::Shared, connect);
}

std::shared_ptr<Database> DBEngine::OpenBeside(const QString &path, const QString &connect) {
    return open(path, std::nullopt, connect);
}

std::shared_ptr<Database> DBEngine::open(const QString &path, std::optional<FileLock::Kind> claim,
                                         const QString &connect) {
    // a damaged path, which Qt and the system would end at different places
    if (path.contains(QChar::Null)) throw RuntimeError(3024, QString("Could not find file '%1'.").arg(path));
    const QFileInfo file(path);
    const QString fullPath = file.absoluteFilePath();
    m_open.removeIf([](const auto &entry) { return entry.value().expired(); });
    // what is open goes on being read, whatever has become of the file of that name
    if (const std::shared_ptr<TableStore> open = path.isEmpty() ? nullptr : m_open.value(fullPath).lock())
        return std::make_shared<Database>(fullPath, open);
    if (!path.isEmpty()) checkPermission(fullPath);
    if (!path.isEmpty() && !QFileInfo(file.absolutePath()).isDir())
        throw RuntimeError(3044, QString("'%1' is not a valid path.  Make sure that the path name is spelled "
                                         "correctly and that you are connected to the server on which the "
                                         "file resides.")
                                     .arg(path));
    if (path.isEmpty() || !file.exists())
        throw RuntimeError(3024, QString("Could not find file '%1'.").arg(path));
    if (!file.isFile()) throw RuntimeError(3343, QString("Unrecognized database format '%1'.").arg(path));

    const QString identity = file.canonicalFilePath();
    std::shared_ptr<TableStore> store = m_open.value(identity).lock();
    if (!store) {
        std::unique_ptr<FileLock> lock;
        if (claim) lock = std::make_unique<FileLock>(fullPath, *claim);
        store = std::make_shared<TableStore>(openSource(fullPath, passwordOf(connect)), std::move(lock));
        m_open.insert(identity, store);
    }
    m_open.insert(fullPath, store);
    return std::make_shared<Database>(fullPath, store);
}

std::unique_ptr<TableSource> DBEngine::openSource(const QString &path, const QString &password) const {
    const auto waitsOn = [this](const QString &silent) { return m_waitsOn && m_waitsOn(silent); };
    return std::make_unique<FileSource>(path, FileSource::helperProgram(), waitsOn, FileSource::Patience,
                                        password);
}
