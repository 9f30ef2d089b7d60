// The rows of an SQLite table that meet conditions.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "table_reader/condition.h"
#include "table_reader/reply.h"
#include "table_reader/sqlite_file.h"
#include "table_reader/sqlite_key_notes.h"
#include "table_reader/sqlite_row_writer.h"

/// Integers are compared by SQLite, which takes an index of the file where one begins with the column. Texts,
/// for which the file has no index that takes capitals as they are taken here, are found by a note of where
/// the keys lie, made at the first search by some columns; so are integers without an index. A view's rows
/// are asked for and looked through each time.
class SqliteSearch {
public:
    SqliteSearch(const SqliteDatabase &database, const SqliteTable &table);

    /// Sends every row that may match, in the order of the file. Raises Damaged and what SqliteDatabase does.
    void run(std::vector<Condition> conditions, Reply &reply);
    /// Does some of what the first search by these columns would have to do. False when there is nothing
    /// left. Raises what that search will.
    bool lookAhead(std::vector<std::size_t> columns);

private:
    using Columns = std::vector<std::size_t>;
    /// How the rows are found for conditions on some columns, which stand in their own order.
    struct Way {
        enum class Kind { Asking, Index, Runs };
        Columns columns;
        Kind kind = Kind::Asking;
        SqliteStatement rows;
        std::unique_ptr<SqliteKeyNotes> notes; // of a way by runs
    };

    Way &wayBy(const Columns &columns);
    Way newWay(const Columns &columns) const;
    /// Without notes.
    Way askingWay(const Columns &columns) const;
    bool hasIndex(const std::string &integers) const;
    /// Notes the keys of so many rows more. Where there are too many keys it becomes a way without notes.
    void note(Way &way, std::uint64_t rows) const;
    void readRuns(Way &way, const std::vector<Condition> &conditions, Reply &reply);
    void read(const Way &way, const std::vector<Condition> &conditions, Reply &reply);
    /// `where` is a condition or nothing. The row's number, if it has one, stands behind the columns.
    SqliteStatement select(const std::string &where) const;
    /// The condition on the integers among the columns; nothing without one.
    std::string integersOf(const Columns &columns) const;
    std::string column(std::size_t index) const;
    bool isText(std::size_t column) const;

    const SqliteDatabase &m_database;
    const SqliteTable &m_table;
    SqliteRowWriter m_writer;
    std::vector<Way> m_ways;
    std::optional<std::int64_t> m_lastRow;
};
