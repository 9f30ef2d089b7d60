// One open database: its name and its queries.
#pragma once

#include <memory>

#include <QStringList>

#include "platform/dao/row_cells.h"

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

    /// Statements like this one, with other values, are to be expected soon: whatever makes the first of them
    /// quick may be done meanwhile. Raises 3075 and 3078.
    void Expect(const QString &sql);

    /// Hands the cells of these columns to `sink`, row by row in the order of the file and past the memory:
    /// for whoever keeps the rows in a form of his own. A sink that throws ends the reading; one that asks
    /// this database for anything else gets 3043. Raises 3078, 3265 for an unknown column, 3259 for an
    /// Unsupported one, and 3343 at a value that cannot be handed over.
    void ReadRows(const QString &table, const QStringList &columns, const RowSink &sink);
    /// What the file says, good enough to show progress. Raises 3078.
    qint64 RowCount(const QString &table);

    /// Lets go of the file, and of its lock. Recordsets that are open keep the rows they have fetched.
    void Close();

private:
    /// Raises 3420 after Close().
    std::shared_ptr<TableStore> open() const;

    QString m_name;
    std::shared_ptr<TableStore> m_store;
};
