#include "table_reader/sqlite_search.h"

#include <algorithm>
#include <limits>

#include "table_reader/damaged.h"
#include "table_reader/key_match.h"

namespace {

constexpr std::uint64_t RowsAtOnce = 4000;

/// Nothing for what no condition can ask for.
std::optional<std::int32_t> integerOf(const SqliteValue &value) {
    using Limits = std::numeric_limits<std::int32_t>;
    const int stored = value.type();
    if (stored != SQLITE_INTEGER && stored != SQLITE_FLOAT) return {};
    const double number = value.real();
    if (!(number >= Limits::min() && number <= Limits::max())) return {};
    const auto integer = static_cast<std::int32_t>(number);
    return integer == number ? std::optional(integer) : std::nullopt;
}

bool hasText(const SqliteValue &value) {
    const int stored = value.type();
    return stored != SQLITE_NULL && stored != SQLITE_BLOB;
}

bool matches(const SqliteValue &value, const Condition &condition) {
    if (!condition.isText) return integerOf(value) == condition.integer;
    if (!hasText(value)) return false;
    const std::u16string_view wanted = condition.text;
    const std::string_view text = value.text();
    return keyMatch::isAscii(text) ? keyMatch::mayBeEqual(text, wanted)
                                   : keyMatch::mayBeEqual(value.wideText(), wanted);
}

bool matchesAll(const SqliteStatement &row, const std::vector<Condition> &conditions) {
    return std::all_of(conditions.begin(), conditions.end(), [&](const Condition &condition) {
        return matches(row.value(condition.column), condition);
    });
}

bool integersMatch(const SqliteStatement &row, const std::vector<Condition> &conditions) {
    return std::all_of(conditions.begin(), conditions.end(), [&](const Condition &condition) {
        return condition.isText || matches(row.value(condition.column), condition);
    });
}

std::uint32_t markOfKey(const std::vector<Condition> &conditions) {
    KeyHash key;
    for (const Condition &condition : conditions) {
        if (condition.isText)
            keyMatch::addNarrow(key, keyMatch::narrowed(condition.text));
        else
            key.add(static_cast<std::uint32_t>(condition.integer));
    }
    return KeyRuns::mark(key.value());
}

void addText(KeyHash &key, const SqliteValue &value) {
    const KeyHash before = key;
    if (keyMatch::addNarrow(key, value.text())) return;
    key = before;
    keyMatch::addNarrow(key, keyMatch::narrowed(value.wideText()));
}

/// Rows that do not come in the order of their numbers have lost their place, or come twice.
void checkOrder(std::optional<std::int64_t> &last, std::int64_t row) {
    if (last && row <= *last) throw Damaged("rows out of their order");
    last = row;
}

} // namespace

SqliteSearch::SqliteSearch(const SqliteDatabase &database, const SqliteTable &table)
    : m_database(database)
    , m_table(table)
    , m_writer(table, database.size()) {}

void SqliteSearch::run(std::vector<Condition> conditions, Reply &reply) {
    std::sort(conditions.begin(), conditions.end(),
              [](const Condition &a, const Condition &b) { return a.column < b.column; });
    Columns columns;
    for (const Condition &condition : conditions)
        columns.push_back(condition.column);
    m_writer.restart();
    m_lastRow.reset();
    Way &way = wayBy(columns);
    note(way, std::numeric_limits<std::uint64_t>::max());
    if (way.kind == Way::Kind::Runs) return readRuns(way, conditions, reply);
    way.rows.restart();
    int parameter = 0;
    for (const Condition &condition : conditions)
        if (!condition.isText) way.rows.bind(++parameter, condition.integer);
    read(way, conditions, reply);
}

bool SqliteSearch::lookAhead(Columns columns) {
    std::sort(columns.begin(), columns.end());
    Way &way = wayBy(columns);
    note(way, RowsAtOnce);
    return way.kind == Way::Kind::Runs && !way.isNoted;
}

SqliteSearch::Way &SqliteSearch::wayBy(const Columns &columns) {
    const auto known =
        std::find_if(m_ways.begin(), m_ways.end(), [&](const Way &way) { return way.columns == columns; });
    if (known != m_ways.end()) return *known;
    m_ways.push_back(newWay(columns));
    return m_ways.back();
}

SqliteSearch::Way SqliteSearch::newWay(const Columns &columns) const {
    const std::string &number = m_table.rowNumber;
    const std::string integers = integersOf(columns);
    if (columns.empty() || number.empty())
        return {columns, Way::Kind::Asking, select(integers), {}, {}, true};
    // So the row itself is read, and not what the index says of it.
    if (!integers.empty() && hasIndex(integers))
        return {columns,
                Way::Kind::Index,
                select(number + " IN (SELECT " + number + " FROM " + SqliteDatabase::quoted(m_table.name) +
                       " WHERE " + integers + ")"),
                {},
                {},
                true};
    return {columns, Way::Kind::Runs, select(number + " BETWEEN ? AND ?"), {}, {}, false};
}

bool SqliteSearch::hasIndex(const std::string &integers) const {
    constexpr std::size_t Detail = 3;
    const SqliteStatement plan =
        m_database.prepare("EXPLAIN QUERY PLAN SELECT " + m_table.rowNumber + " FROM " +
                           SqliteDatabase::quoted(m_table.name) + " WHERE " + integers);
    return m_database.step(plan) && plan.value(Detail).text().starts_with("SEARCH");
}

void SqliteSearch::note(Way &way, std::uint64_t rows) const {
    if (way.isNoted) return;
    std::string values = m_table.rowNumber;
    for (const std::size_t each : way.columns)
        values += ", " + column(each);
    // An index, which SQLite might find the columns in, has the rows in another order.
    std::string from = SqliteDatabase::quoted(m_table.name) + " NOT INDEXED";
    if (way.lastNoted) from += " WHERE " + m_table.rowNumber + " > " + std::to_string(*way.lastNoted);
    bool hasRoom = true;
    try {
        way.isNoted = m_database.visit(values, from, [&](const SqliteDatabase::Row &row) {
            const std::int64_t number = row[0].integer();
            checkOrder(way.lastNoted, number);
            hasRoom = way.runs.add(number, markOf(row, way.columns));
            return hasRoom && --rows > 0;
        });
    } catch (...) {
        // The next one would go on behind the fault, and nobody hear of the rows that are lost there.
        way.runs = {};
        way.lastNoted.reset();
        throw;
    }
    if (!hasRoom) way = {way.columns, Way::Kind::Asking, select(integersOf(way.columns)), {}, {}, true};
}

/// The columns stand behind the row's number.
std::uint32_t SqliteSearch::markOf(const SqliteDatabase::Row &row, const Columns &columns) const {
    KeyHash key;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const SqliteValue &value = row[i + 1];
        if (isText(columns[i])) {
            if (!hasText(value)) return KeyRuns::NoKey;
            addText(key, value);
        } else {
            const std::optional<std::int32_t> integer = integerOf(value);
            if (!integer) return KeyRuns::NoKey;
            key.add(static_cast<std::uint32_t>(*integer));
        }
    }
    return KeyRuns::mark(key.value());
}

void SqliteSearch::readRuns(Way &way, const std::vector<Condition> &conditions, Reply &reply) {
    for (const KeyRuns::Range &range : way.runs.ranges(markOfKey(conditions))) {
        way.rows.restart();
        way.rows.bind(1, range.first);
        way.rows.bind(2, range.last);
        read(way, conditions, reply);
    }
}

void SqliteSearch::read(const Way &way, const std::vector<Condition> &conditions, Reply &reply) {
    const SqliteStatement &rows = way.rows;
    while (m_database.step(rows)) {
        if (!m_table.rowNumber.empty()) checkOrder(m_lastRow, rows.value(m_table.columns.size()).integer());
        if (matchesAll(rows, conditions))
            m_writer.write(rows, reply);
        else if (way.kind == Way::Kind::Index && !integersMatch(rows, conditions))
            throw Damaged("index that leads to another row");
        else
            m_writer.pass();
    }
}

SqliteStatement SqliteSearch::select(const std::string &where) const {
    const std::string &number = m_table.rowNumber;
    std::string sql = "SELECT " + column(0);
    for (std::size_t i = 1; i < m_table.columns.size(); ++i)
        sql += ", " + column(i);
    if (!number.empty()) sql += ", " + number;
    sql += " FROM " + SqliteDatabase::quoted(m_table.name);
    if (!where.empty()) sql += " WHERE " + where;
    if (!number.empty()) sql += " ORDER BY " + number;
    return m_database.prepare(sql);
}

std::string SqliteSearch::column(std::size_t index) const {
    return SqliteDatabase::quoted(m_table.columns[index].name);
}

std::string SqliteSearch::integersOf(const Columns &columns) const {
    std::string condition;
    for (const std::size_t each : columns) {
        if (isText(each)) continue;
        if (!condition.empty()) condition += " AND ";
        condition += column(each) + " = ?";
    }
    return condition;
}

bool SqliteSearch::isText(std::size_t column) const {
    return m_table.columns[column].type == TableProtocol::CellType::Text;
}
