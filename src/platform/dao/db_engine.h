// Opens databases and remembers which are open.
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QHash>
#include <QString>

#include "platform/dao/file_lock.h"

class Database;
class TableSource;
class TableStore;

class DBEngine {
public:
    static DBEngine &instance();

    /// Tells the file by its content: an Access file (97 to 2007) or an SQLite file with the same tables. A
    /// file that is open in this engine opens again, with or without its password, on the same rows.
    ///
    /// A file that does not answer is waited for as long as waitsOn wants it.
    ///
    /// `connect` is ";Pwd=..." or "Access 2000;". Raises 3024 (no such file), 3044 (no such folder), 3343 (no
    /// database, or a damaged one), 3031 (wrong password), 3356 (held exclusively by another run), 70 (the
    /// file, or its folder, may not be read), 3043 (the file does not answer), 3045 (changes to an SQLite
    /// file stand beside it), 3049 (an SQLite file that is cut off).
    std::shared_ptr<Database> OpenDatabase(const QString &path, bool exclusive, bool readOnly,
                                           const QString &connect);

    /// The same without a claim on the file: a run that holds it exclusively neither hinders it nor is
    /// hindered.
    std::shared_ptr<Database> OpenBeside(const QString &path, const QString &connect);

    /// Asked whether to wait on for a file each time it has not answered for some seconds, when it is opened
    /// and when its tables are read. Nobody waits without it.
    void setWaitsOn(std::function<bool(const QString &path)> waitsOn) { m_waitsOn = std::move(waitsOn); }

private:
    std::shared_ptr<Database> open(const QString &path, std::optional<FileLock::Kind> claim,
                                   const QString &connect);
    std::unique_ptr<TableSource> openSource(const QString &path, const QString &password) const;

    // By canonical path, since a link to an open file is that file, and by the path that was asked for.
    QHash<QString, std::weak_ptr<TableStore>> m_open;
    std::function<bool(const QString &path)> m_waitsOn;
};
