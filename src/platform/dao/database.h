// One open database: its name and its queries.
#pragma once

#include <memory>

#include <QString>

class Recordset;
class TableStore;

class Database {
public:
    Database(QString name, std::shared_ptr<TableStore> store);

    /// The full path that was opened.
    const QString &Name() const { return m_name; }

    /// `sql` is a statement in the engine's dialect or a table's name. Raises 3075 (syntax), 3078 (no such
    /// table), 3061 (no such column), each quoting the piece; 3343 when the file turns out to be damaged.
    std::shared_ptr<Recordset> OpenRecordset(const QString &sql);

    /// Lets go of the file, and of its lock. Recordsets that are open keep the rows they have fetched.
    void Close();

private:
    QString m_name;
    std::shared_ptr<TableStore> m_store;
};
