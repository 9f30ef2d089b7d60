// Opens databases and remembers which are open.
#pragma once

#include <memory>

#include <QHash>
#include <QString>

class Database;
class TableStore;

class DBEngine {
public:
    static DBEngine &instance();

    /// Tells the file by its content: an Access file (97 to 2007) or an SQLite file with the same tables. A
    /// file that is open in this engine opens again, with or without its password, on the same rows.
    ///
    /// `connect` is ";Pwd=..." or "Access 2000;". Raises 3024 (no such file), 3044 (no such folder), 3343 (no
    /// database, or a damaged one), 3031 (wrong password), 3356 (held exclusively by another run), 3045
    /// (changes to an SQLite file stand beside it), 3049 (an SQLite file that is cut off).
    std::shared_ptr<Database> OpenDatabase(const QString &path, bool exclusive, bool readOnly,
                                           const QString &connect);

private:
    // By canonical path, since a link to an open file is that file, and by the path that was asked for.
    QHash<QString, std::weak_ptr<TableStore>> m_open;
};
