// Where the keys of an SQLite table lie whose columns have no index.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "table_reader/condition.h"
#include "table_reader/key_runs.h"
#include "table_reader/sqlite_database.h"
#include "table_reader/sqlite_file.h"

/// Made row by row in the order of the rows' numbers, which the table must have. Of several columns one is
/// noted alone if it tells the keys apart: SQLite takes its time for each.
class SqliteKeyNotes {
public:
    using Columns = std::vector<std::size_t>;

    /// `columns` are those of the conditions that will be asked for, each once. Raises what SqliteDatabase
    /// does.
    SqliteKeyNotes(const SqliteDatabase &database, const SqliteTable &table, const Columns &columns);

    /// Goes on with so many rows. False where the rows have too many keys, and the notes are good for
    /// nothing. Raises Damaged for rows out of their order, and what SqliteDatabase does; then it begins
    /// anew.
    bool add(std::uint64_t rows);
    bool isWhole() const { return m_isWhole; }
    /// The numbers of the rows that may meet the conditions, and of more. Of whole notes.
    std::vector<KeyRuns::Range> ranges(const std::vector<Condition> &conditions) const;

private:
    using Row = SqliteDatabase::Row;

    Columns tellingColumns(const Columns &columns) const;
    std::optional<std::int64_t> endOfRows(const char *order) const;
    bool addRow(const Row &row);
    bool readTexts(const Row &row);
    std::uint32_t markOfTexts(const Row &row) const;
    std::uint32_t markOf(const Row &row) const;
    /// The row's number and these.
    std::string values(const Columns &columns) const;
    std::string fromTable() const;

    const SqliteDatabase &m_database;
    const SqliteTable &m_table;
    Columns m_columns;
    bool m_textsAlone; // the columns have texts
    KeyRuns m_runs;
    bool m_isWhole = false;
    std::optional<std::int64_t> m_last;    // row
    std::vector<std::string_view> m_texts; // of the row at hand
    std::vector<std::string> m_lastTexts;
};

/// Rows that do not come in the order of their numbers have lost their place, or come twice. Raises Damaged.
void checkOrder(std::optional<std::int64_t> &last, std::int64_t row);
