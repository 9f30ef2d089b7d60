// SQLite over the open file.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <sqlite3.h>

#include "platform/dao/file_identity.h"
#include "table_reader/reply.h"

/// A stored value. The parts of a row are valid until the next step.
class SqliteValue {
public:
    SqliteValue(sqlite3_value *value, bool wide)
        : m_value(value)
        , m_wide(wide) {}

    int type() const { return sqlite3_value_type(m_value); }
    bool isText() const { return type() == SQLITE_TEXT; }
    bool isNull() const { return type() == SQLITE_NULL; }
    /// A text, or a number's digits.
    bool hasText() const { return !isNull() && type() != SQLITE_BLOB; }
    std::int64_t integer() const { return sqlite3_value_int64(m_value); }
    double real() const { return sqlite3_value_double(m_value); }
    /// Nothing for what no condition can ask for.
    std::optional<std::int32_t> wholeNumber() const;
    /// In UTF-8; of a number, its digits. Valid until another form of it is asked for. Raises std::bad_alloc.
    std::string_view text() const;
    /// The same. SQLite knows what to make of bytes that are no UTF-8.
    std::u16string_view wideText() const;
    /// Bytes of a text as it is stored.
    std::size_t storedSize() const;

private:
    sqlite3_value *m_value;
    bool m_wide; // how texts are stored
};

class SqliteStatement {
public:
    /// Of the row at hand.
    SqliteValue value(std::size_t column) const {
        return {sqlite3_column_value(m_statement.get(), static_cast<int>(column)), m_wide};
    }
    void bind(int parameter, std::int64_t value) { sqlite3_bind_int64(m_statement.get(), parameter, value); }
    /// To the state before the first step.
    void restart() { sqlite3_reset(m_statement.get()); }

private:
    friend class SqliteDatabase;
    struct Closer {
        void operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }
    };
    SqliteStatement(sqlite3_stmt *statement, bool wide)
        : m_statement(statement)
        , m_wide(wide) {}

    std::unique_ptr<sqlite3_stmt, Closer> m_statement;
    bool m_wide;
};

class SqliteDatabase {
public:
    static bool isSqlite(int file);

    /// Signs of life go to `reply`. Raises SqliteCutOff, and SqliteRefused for what is no database.
    SqliteDatabase(int file, Reply &reply);

    std::uint64_t size() const { return m_identity.size; }
    const FileIdentity &identity() const { return m_identity; }
    /// Raises Damaged where the file was written to after it was opened.
    void checkUnchanged() const;

    /// Both raise SqliteRefused: what SQLite says against the statement or the file, or a row takes more
    /// than five seconds of work, as a view can that never ends.
    SqliteStatement prepare(const std::string &sql) const;
    /// False after the last row.
    bool step(const SqliteStatement &statement) const;
    bool accepts(const std::string &sql) const;

    /// The values of one row, as many as were asked for.
    using Row = std::vector<SqliteValue>;
    /// False where there are enough of them.
    using TakeRow = std::function<bool(const Row &row)>;
    /// Calls `take` for each row of `SELECT values FROM rows`, faster than single steps do: no row is made of
    /// them. `take` raises what it likes. False where it had enough.
    bool visit(const std::string &values, const std::string &rows, const TakeRow &take) const;

    static std::string quoted(const std::string &name);

private:
    using Clock = std::chrono::nanoseconds;
    struct Closer {
        void operator()(sqlite3 *database) const { sqlite3_close(database); }
    };

    struct Visit;
    static void visitRow(sqlite3_context *context, int count, sqlite3_value **values);
    void checkWhole() const;
    void exec(const char *sql) const;
    bool goesOn();
    [[noreturn]] void refuse() const;

    int m_file;
    FileIdentity m_identity;
    Reply &m_reply;
    std::unique_ptr<sqlite3, Closer> m_database;
    bool m_wide = false;
    mutable std::uint64_t m_steps = 0;
    std::uint64_t m_stepsSeen = 0;
    Clock m_began{}; // processor time at the first look at the step at hand
};
