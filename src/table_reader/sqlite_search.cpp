#include "table_reader/sqlite_search.h"

#include <algorithm>
#include <limits>

#include "table_reader/damaged.h"
#include "table_reader/key_match.h"

namespace {

constexpr std::uint64_t RowsAtOnce = 4000;

bool matches(const SqliteValue &value, const Condition &condition) {
    if (!condition.isText) return value.wholeNumber() == condition.integer;
    if (!value.hasText()) return false;
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
    return way.notes && !way.notes->isWhole();
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
    if (columns.empty() || number.empty()) return askingWay(columns);
    // So the row itself is read, and not what the index says of it.
    if (!integers.empty() && hasIndex(integers))
        return {columns, Way::Kind::Index,
                select(number + " IN (SELECT " + number + " FROM " + SqliteDatabase::quoted(m_table.name) +
                       " WHERE " + integers + ")"),
                nullptr};
    Columns each = columns;
    each.erase(std::unique(each.begin(), each.end()), each.end());
    return {columns, Way::Kind::Runs, select(number + " BETWEEN ? AND ?"),
            std::make_unique<SqliteKeyNotes>(m_database, m_table, each)};
}

SqliteSearch::Way SqliteSearch::askingWay(const Columns &columns) const {
    return {columns, Way::Kind::Asking, select(integersOf(columns)), nullptr};
}

bool SqliteSearch::hasIndex(const std::string &integers) const {
    constexpr std::size_t Detail = 3;
    const SqliteStatement plan =
        m_database.prepare("EXPLAIN QUERY PLAN SELECT " + m_table.rowNumber + " FROM " +
                           SqliteDatabase::quoted(m_table.name) + " WHERE " + integers);
    return m_database.step(plan) && plan.value(Detail).text().starts_with("SEARCH");
}

void SqliteSearch::note(Way &way, std::uint64_t rows) const {
    if (!way.notes || way.notes->isWhole()) return;
    if (!way.notes->add(rows)) way = askingWay(way.columns);
}

void SqliteSearch::readRuns(Way &way, const std::vector<Condition> &conditions, Reply &reply) {
    for (const KeyRuns::Range &range : way.notes->ranges(conditions)) {
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
