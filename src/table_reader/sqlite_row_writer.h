// Rows of SQLite to the rows of an answer.
#pragma once

#include <cstdint>

#include "table_reader/answer_limit.h"
#include "table_reader/reply.h"
#include "table_reader/sqlite_file.h"

/// A row whose values all have their columns' types goes out like any other file's; one with a date, or with
/// a value that does not fit, goes as it is stored, and the main program makes of it what it can.
class SqliteRowWriter {
public:
    SqliteRowWriter(const SqliteTable &table, std::uint64_t fileSize)
        : m_table(table)
        , m_limit(fileSize) {}

    /// A new answer begins.
    void restart() { m_limit.restart(); }
    /// Raises SqliteRefused where the answer gets too long.
    void write(const SqliteStatement &row, Reply &reply);
    /// The same for a row that was looked at, and is none of the answer's.
    void pass() { charge(0); }

private:
    void charge(std::size_t bytes);
    bool isPlain(const SqliteStatement &row) const;
    void writePlain(const SqliteStatement &row, Reply &reply) const;
    void writeStored(const SqliteStatement &row, Reply &reply) const;

    const SqliteTable &m_table;
    AnswerLimit m_limit;
};
