#include "table_reader/sqlite_file.h"

#include <algorithm>
#include <limits>

#include "table_reader/declared_type.h"
#include "table_reader/sqlite_refused.h"

using TableProtocol::CellType;

namespace {

constexpr std::uint64_t Counted = 10'000;
constexpr std::size_t LongestTableName = 1000;
constexpr std::size_t MostTables = 10'000;

std::string textOf(const SqliteValue &value) {
    return value.isNull() ? std::string() : std::string(value.text());
}

std::string nameOf(const SqliteValue &value) {
    const std::string name = textOf(value);
    if (name.size() > LongestTableName) throw SqliteRefused("a name is too long");
    return name;
}

bool isSameName(const std::string &a, const std::string &b) {
    return sqlite3_stricmp(a.c_str(), b.c_str()) == 0;
}

} // namespace

SqliteFile::SqliteFile(int file, Reply &reply)
    : m_database(file, reply) {
    readCatalog();
}

void SqliteFile::readCatalog() {
    const SqliteStatement tables = m_database.prepare(
        "SELECT name, type = 'view' FROM sqlite_schema WHERE type IN ('table', 'view') AND name NOT "
        "LIKE 'sqlite~_%' ESCAPE '~' AND sql NOT LIKE 'CREATE VIRTUAL%' ORDER BY rowid");
    while (m_database.step(tables)) {
        SqliteTable table;
        table.name = nameOf(tables.value(0));
        table.isView = tables.value(1).integer() != 0;
        if (!table.isView) readColumns(table);
        if (m_tables.size() == MostTables) throw SqliteRefused("too many tables");
        m_tables.push_back(std::move(table));
    }
}

const SqliteTable &SqliteFile::table(std::size_t index) {
    if (m_tables[index].columns.empty()) readColumns(m_tables[index]);
    return m_tables[index];
}

void SqliteFile::readColumns(SqliteTable &table) const {
    // Other than table_info it knows of generated columns.
    const SqliteStatement rows =
        m_database.prepare("PRAGMA table_xinfo(" + SqliteDatabase::quoted(table.name) + ")");
    std::vector<SqliteColumn> columns;
    while (m_database.step(rows)) {
        SqliteColumn column;
        column.name = nameOf(rows.value(1));
        const std::string declaration = textOf(rows.value(2));
        const DeclaredType declared = declaredType(declaration);
        column.type = declared.type;
        if (table.isView && declaration.empty()) column.type = typeOfValues(table.name, column.name);
        column.size = column.type == CellType::Text ? declared.size : std::uint16_t(0);
        columns.push_back(std::move(column));
    }
    if (columns.empty()) throw SqliteRefused("a table has no columns");
    table.columns = std::move(columns);
    findRowNumber(table);
}

void SqliteFile::findRowNumber(SqliteTable &table) const {
    if (table.isView) return;
    for (const std::string name : {"rowid", "_rowid_", "oid"}) {
        const bool isColumn =
            std::any_of(table.columns.begin(), table.columns.end(),
                        [&](const SqliteColumn &column) { return isSameName(column.name, name); });
        if (isColumn) continue;
        if (m_database.accepts("SELECT " + name + " FROM " + SqliteDatabase::quoted(table.name)))
            table.rowNumber = name;
        return;
    }
}

/// What a view calculates has no declared type, and numbers must not be sorted as texts.
CellType SqliteFile::typeOfValues(const std::string &view, const std::string &column) const {
    const std::string type = "typeof(" + SqliteDatabase::quoted(column) + ")";
    const SqliteStatement values =
        m_database.prepare("SELECT sum(" + type + " <> 'null'), sum(" + type + " IN ('text', 'blob')), sum(" +
                           type + " = 'real') FROM " + SqliteDatabase::quoted(view));
    if (!m_database.step(values)) return CellType::Text;
    const bool hasNone = values.value(0).integer() == 0;
    if (hasNone || values.value(1).integer() > 0) return CellType::Text;
    return values.value(2).integer() > 0 ? CellType::Double : CellType::Long;
}

std::uint32_t SqliteFile::rowCount(std::size_t index) const {
    const SqliteTable &table = m_tables[index];
    const std::string name = SqliteDatabase::quoted(table.name);
    std::uint64_t rows = 0;
    if (table.rowNumber.empty()) {
        rows = count("SELECT count(*) FROM " + name);
    } else {
        rows =
            count("SELECT count(*) FROM (SELECT 1 FROM " + name + " LIMIT " + std::to_string(Counted) + ")");
        if (rows == Counted)
            rows = std::max(rows, count("SELECT (SELECT max(" + table.rowNumber + ") FROM " + name +
                                        ") - (SELECT min(" + table.rowNumber + ") FROM " + name + ") + 1"));
    }
    return static_cast<std::uint32_t>(
        std::min<std::uint64_t>(rows, std::numeric_limits<std::uint32_t>::max() - 1));
}

std::uint64_t SqliteFile::count(const std::string &sql) const {
    const SqliteStatement counted = m_database.prepare(sql);
    if (!m_database.step(counted)) return 0;
    return static_cast<std::uint64_t>(std::max<std::int64_t>(counted.value(0).integer(), 0));
}
