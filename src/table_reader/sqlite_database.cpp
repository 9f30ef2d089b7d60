#include "table_reader/sqlite_database.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <exception>
#include <limits>
#include <new>

#include <unistd.h>

#include "table_reader/damaged.h"
#include "table_reader/descriptor_vfs.h"
#include "table_reader/sqlite_refused.h"

namespace {

constexpr std::string_view SqliteMark("SQLite format 3\0", 16);
constexpr std::size_t SqliteHeaderSize = 100;
constexpr int StepsBetweenLooks = 100'000;
constexpr std::chrono::seconds MostWork(5);
constexpr std::uint64_t LeastLongestValue = 1u << 20;
constexpr std::uint64_t MostLongestValue = 512u << 20; // half of what this process may have

constexpr char VisitFunction[] = "visit_row";

using SqliteHeader = std::array<std::uint8_t, SqliteHeaderSize>;

SqliteHeader headerOf(int file) {
    SqliteHeader header = {};
    for (std::size_t have = 0; have < header.size();) {
        const ssize_t got = pread(file, header.data() + have, header.size() - have, static_cast<off_t>(have));
        if (got <= 0) break;
        have += static_cast<std::size_t>(got);
    }
    return header;
}

std::uint32_t bigEndian(const SqliteHeader &header, std::size_t at, std::size_t size) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < size; ++i)
        value = value << 8 | header[at + i];
    return value;
}

/// Only a writer of old leaves the number of pages in the header behind.
std::uint64_t declaredSize(const SqliteHeader &header, std::uint64_t size) {
    const std::uint64_t written = bigEndian(header, 16, 2);
    const std::uint64_t page = written == 1 ? 65536 : written;
    const std::uint64_t pages = bigEndian(header, 28, 4);
    if (pages > 0 && bigEndian(header, 24, 4) == bigEndian(header, 92, 4)) return pages * page;
    return page > 0 ? (size + page - 1) / page * page : size;
}

/// The processor's, since a medium may take its time.
std::chrono::nanoseconds workDone() {
    timespec now = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return std::chrono::seconds(now.tv_sec) + std::chrono::nanoseconds(now.tv_nsec);
}

} // namespace

std::optional<std::int32_t> SqliteValue::wholeNumber() const {
    using Limits = std::numeric_limits<std::int32_t>;
    const int stored = type();
    if (stored != SQLITE_INTEGER && stored != SQLITE_FLOAT) return {};
    const double number = real();
    if (!(number >= Limits::min() && number <= Limits::max())) return {};
    const auto integer = static_cast<std::int32_t>(number);
    return integer == number ? std::optional(integer) : std::nullopt;
}

std::string_view SqliteValue::text() const {
    const unsigned char *text = sqlite3_value_text(m_value);
    if (!text) throw std::bad_alloc();
    return {reinterpret_cast<const char *>(text), static_cast<std::size_t>(sqlite3_value_bytes(m_value))};
}

std::u16string_view SqliteValue::wideText() const {
    const void *text = sqlite3_value_text16(m_value);
    if (!text) throw std::bad_alloc();
    const auto size = static_cast<std::size_t>(sqlite3_value_bytes16(m_value));
    return {static_cast<const char16_t *>(text), size / sizeof(char16_t)};
}

std::size_t SqliteValue::storedSize() const {
    return static_cast<std::size_t>(m_wide ? sqlite3_value_bytes16(m_value) : sqlite3_value_bytes(m_value));
}

bool SqliteDatabase::isSqlite(int file) {
    const SqliteHeader header = headerOf(file);
    return std::equal(SqliteMark.begin(), SqliteMark.end(), header.begin());
}

SqliteDatabase::SqliteDatabase(int file, Reply &reply)
    : m_file(file)
    , m_identity(FileIdentity::of(file))
    , m_reply(reply) {
    checkWhole();
    sqlite3_config(SQLITE_CONFIG_SINGLETHREAD); // locks were a third of the time
    sqlite3 *database = nullptr;
    const int result = sqlite3_open_v2("file", &database, SQLITE_OPEN_READONLY, DescriptorVfs::install(file));
    m_database.reset(database);
    if (result != SQLITE_OK) refuse();
    sqlite3_db_config(database, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(database, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    // Only what a view or a generated column makes up is longer than the file.
    sqlite3_limit(database, SQLITE_LIMIT_LENGTH,
                  static_cast<int>(std::clamp(size(), LeastLongestValue, MostLongestValue)));
    sqlite3_progress_handler(
        database, StepsBetweenLooks,
        [](void *self) { return static_cast<SqliteDatabase *>(self)->goesOn() ? 0 : 1; }, this);
    exec("PRAGMA cell_size_check = ON");
    exec("PRAGMA temp_store = MEMORY");
    const SqliteStatement encoding = prepare("PRAGMA encoding");
    m_wide = step(encoding) && encoding.value(0).text() != "UTF-8";
}

void SqliteDatabase::checkWhole() const {
    const std::uint64_t expected =
        size() < SqliteHeaderSize ? SqliteHeaderSize : declaredSize(headerOf(m_file), size());
    if (size() < expected) throw SqliteCutOff{size(), expected};
}

void SqliteDatabase::checkUnchanged() const {
    if (FileIdentity::of(m_file) != m_identity) throw Damaged("file written to while it is read");
}

SqliteStatement SqliteDatabase::prepare(const std::string &sql) const {
    ++m_steps;
    sqlite3_stmt *statement = nullptr;
    if (sqlite3_prepare_v2(m_database.get(), sql.data(), static_cast<int>(sql.size()), &statement, nullptr) !=
        SQLITE_OK)
        refuse();
    return {statement, m_wide};
}

bool SqliteDatabase::accepts(const std::string &sql) const {
    ++m_steps;
    sqlite3_stmt *statement = nullptr;
    const int result =
        sqlite3_prepare_v2(m_database.get(), sql.data(), static_cast<int>(sql.size()), &statement, nullptr);
    sqlite3_finalize(statement);
    return result == SQLITE_OK;
}

bool SqliteDatabase::step(const SqliteStatement &statement) const {
    ++m_steps;
    switch (sqlite3_step(statement.m_statement.get())) {
    case SQLITE_ROW:
        return true;
    case SQLITE_DONE:
        return false;
    default:
        refuse();
    }
}

struct SqliteDatabase::Visit {
    const SqliteDatabase &database;
    const TakeRow &take;
    Row row;
    bool hasEnough = false;
    std::exception_ptr raised;
};

void SqliteDatabase::visitRow(sqlite3_context *context, int count, sqlite3_value **values) {
    auto &visit = *static_cast<Visit *>(sqlite3_user_data(context));
    ++visit.database.m_steps;
    visit.row.clear();
    try {
        for (int i = 0; i < count; ++i)
            visit.row.emplace_back(values[i], visit.database.m_wide);
        visit.hasEnough = !visit.take(visit.row);
    } catch (...) { // SQLite is no C++
        visit.raised = std::current_exception();
    }
    if (visit.hasEnough || visit.raised) sqlite3_result_error_code(context, SQLITE_ABORT);
}

bool SqliteDatabase::visit(const std::string &values, const std::string &rows, const TakeRow &take) const {
    Visit visit{*this, take, {}, false, {}};
    constexpr int AnyCount = -1;
    const int made = sqlite3_create_function_v2(
        m_database.get(), VisitFunction, AnyCount, SQLITE_UTF8 | SQLITE_DIRECTONLY, &visit, nullptr, visitRow,
        [](sqlite3_context *) {}, nullptr);
    if (made != SQLITE_OK) refuse();
    const SqliteStatement statement =
        prepare(std::string("SELECT ") + VisitFunction + "(" + values + ") FROM " + rows);
    try {
        step(statement);
    } catch (const SqliteRefused &) {
        if (visit.raised) std::rethrow_exception(visit.raised);
        if (!visit.hasEnough) throw;
    }
    return !visit.hasEnough;
}

void SqliteDatabase::exec(const char *sql) const {
    if (sqlite3_exec(m_database.get(), sql, nullptr, nullptr, nullptr) != SQLITE_OK) refuse();
}

bool SqliteDatabase::goesOn() {
    m_reply.stillBusy();
    const Clock now = workDone();
    if (m_steps != m_stepsSeen) {
        m_stepsSeen = m_steps;
        m_began = now;
    }
    return now - m_began < MostWork;
}

void SqliteDatabase::refuse() const {
    const int error = sqlite3_errcode(m_database.get());
    if (error == SQLITE_INTERRUPT) throw SqliteRefused("a view takes too long");
    const std::string reason = sqlite3_errmsg(m_database.get());
    // A page that it still has, though it found its cells to be wrong, SQLite takes for good the next time.
    if (error == SQLITE_CORRUPT) sqlite3_db_release_memory(m_database.get());
    throw SqliteRefused(reason);
}

std::string SqliteDatabase::quoted(const std::string &name) {
    std::string text = "\"";
    for (const char character : name) {
        text += character;
        if (character == '"') text += character;
    }
    return text + '"';
}
