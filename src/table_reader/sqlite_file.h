// An open SQLite file: its tables and views, and their columns.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/dao/table_protocol.h"
#include "table_reader/sqlite_database.h"

struct SqliteColumn {
    std::string name; // UTF-8
    TableProtocol::CellType type = TableProtocol::CellType::Text;
    std::uint16_t size = 0; // characters of a Text
};

struct SqliteTable {
    std::string name; // UTF-8
    bool isView = false;
    /// The name that SQL has for a row's number; empty where the rows have none.
    std::string rowNumber;
    /// Of a view empty until somebody asks for it: one over what is not there does no harm until then.
    std::vector<SqliteColumn> columns;
};

/// A view is a table like any other. The declared types give the columns' types; what a view calculates has
/// the type of its values. Every call can raise what SqliteDatabase does.
class SqliteFile {
public:
    SqliteFile(int file, Reply &reply);

    const SqliteDatabase &database() const { return m_database; }
    const std::vector<SqliteTable> &tables() const { return m_tables; }
    /// The same, with its columns.
    const SqliteTable &table(std::size_t index);
    /// Of many rows an estimate: to count them takes a look at each page.
    std::uint32_t rowCount(std::size_t index) const;

private:
    void readCatalog();
    void readColumns(SqliteTable &table) const;
    void findRowNumber(SqliteTable &table) const;
    TableProtocol::CellType typeOfValues(const std::string &view, const std::string &column) const;
    std::uint64_t count(const std::string &sql) const;

    SqliteDatabase m_database;
    std::vector<SqliteTable> m_tables;
};
