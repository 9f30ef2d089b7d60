// Columns in memory as a table of SQLite, without a copy.
#pragma once

#include <QByteArray>
#include <QHash>

class TableColumns;
struct sqlite3;

/// By the name of the table.
using ColumnTables = QHash<QByteArray, const TableColumns *>;

namespace ColumnsModule {

/// Once for a connection, which `tables` must outlive, as the columns must their table; they stay as they are
/// while a statement runs over them.
void registerIn(sqlite3 *connection, const ColumnTables &tables);

/// The statement that makes one of the tables. Its columns are c0, c1, ...; the identity of a row is its
/// number from 1.
QByteArray createTable(const QByteArray &name);

} // namespace ColumnsModule
