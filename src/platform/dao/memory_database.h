// The SQLite database in memory that a store keeps its rows in.
#pragma once

#include <memory>

#include <QByteArray>
#include <QHash>
#include <QVariant>

#include "platform/dao/columns_module.h"
#include "platform/dao/field_type.h"
#include "platform/dao/sql_text.h"

struct sqlite3;
struct sqlite3_stmt;
class MemoryDatabase;

/// A statement on its way. At its end it goes back to the database, prepared for the next use.
class MemoryStatement {
public:
    MemoryStatement(MemoryDatabase &database, QByteArray sql, sqlite3_stmt *statement);
    ~MemoryStatement();
    MemoryStatement(const MemoryStatement &) = delete;
    MemoryStatement &operator=(const MemoryStatement &) = delete;

    /// Positions count from 0; values as in SqlText.
    void bind(int position, const QVariant &value);
    /// The same for a cell of a table.
    void bindCell(int position, const TableColumns &columns, int row, int column);
    /// False behind the last row.
    bool step();
    /// After the last row, for another round with other values.
    void reset();

    int integer(int column) const;
    QVariant cell(int column, FieldType type) const;
    /// UTF-8, valid until the next step; a null pointer for Null.
    const char *text(int column, qsizetype &size) const;

private:
    MemoryDatabase &m_database;
    QByteArray m_sql;
    sqlite3_stmt *m_statement;
};

/// Texts compare without regard to capitals in every column that is declared with JetCollation. The functions
/// jet_like(pattern, text), jet_single(number), jet_double(number) and jet_date(number) are there; the latter
/// three give the text of a value under the regional settings.
class MemoryDatabase {
public:
    static constexpr const char *JetCollation = " collate jet";

    MemoryDatabase();
    ~MemoryDatabase();
    MemoryDatabase(const MemoryDatabase &) = delete;
    MemoryDatabase &operator=(const MemoryDatabase &) = delete;

    /// Raises 3360 for a statement beyond SQLite's limits.
    std::unique_ptr<MemoryStatement> prepare(const SqlText &sql);
    void execute(const SqlText &sql);

    /// A table over `columns`, which are read where they are, until dropColumns().
    void createOverColumns(const QByteArray &name, const TableColumns &columns);
    void dropColumns(const QByteArray &name);

private:
    friend class MemoryStatement;

    void giveBack(const QByteArray &sql, sqlite3_stmt *statement);
    void forgetStatements();

    ColumnTables m_columnTables;
    sqlite3 *m_connection = nullptr;
    QMultiHash<QByteArray, sqlite3_stmt *> m_idle;
};

/// The value as the store keeps it: True is -1, a date a number of days.
QVariant storedValue(const QVariant &cell, FieldType type);
/// SQL for the text that a column's value stands for where it meets a text.
QByteArray textExpression(const QByteArray &value, FieldType type);
