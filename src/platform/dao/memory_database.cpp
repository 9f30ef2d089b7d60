#include "platform/dao/memory_database.h"

#include <sqlite3.h>

#include "platform/dao/date_number.h"
#include "platform/dao/jet_errors.h"
#include "platform/dao/memory_functions.h"
#include "platform/dao/table_columns.h"

namespace {

// A program asks the same few statements again and again; texts that never return must not pile up.
constexpr qsizetype MaximumIdleStatements = 100;

[[noreturn]] void raise(int code) {
    if (code == SQLITE_NOMEM) throw RuntimeError(7);
    throw RuntimeError(3035, "System resource exceeded.");
}

void check(int code) {
    if (code != SQLITE_OK) raise(code);
}

} // namespace

MemoryStatement::MemoryStatement(MemoryDatabase &database, QByteArray sql, sqlite3_stmt *statement)
    : m_database(database)
    , m_sql(std::move(sql))
    , m_statement(statement) {}

MemoryStatement::~MemoryStatement() {
    m_database.giveBack(m_sql, m_statement);
}

void MemoryStatement::bind(int position, const QVariant &value) {
    const int index = position + 1;
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return check(sqlite3_bind_null(m_statement, index));
    case QMetaType::LongLong:
        return check(sqlite3_bind_int64(m_statement, index, value.toLongLong()));
    case QMetaType::Double:
        return check(sqlite3_bind_double(m_statement, index, value.toDouble()));
    default:
        break;
    }
    const QByteArray text = value.toString().toUtf8();
    check(sqlite3_bind_text64(m_statement, index, text.constData(), static_cast<sqlite3_uint64>(text.size()),
                              SQLITE_TRANSIENT, SQLITE_UTF8));
}

void MemoryStatement::bindCell(int position, const TableColumns &columns, int row, int column) {
    const int index = position + 1;
    const FieldType type = columns.fields()[column].type;
    if (columns.isNull(row, column)) return check(sqlite3_bind_null(m_statement, index));
    if (isKeptAsInteger(type))
        return check(sqlite3_bind_int(m_statement, index, columns.integer(row, column)));
    if (!isTextType(type)) return check(sqlite3_bind_double(m_statement, index, columns.number(row, column)));
    const std::string_view text = columns.text(row, column);
    check(sqlite3_bind_text64(m_statement, index, text.data(), text.size(), SQLITE_STATIC, SQLITE_UTF8));
}

bool MemoryStatement::step() {
    const int code = sqlite3_step(m_statement);
    if (code == SQLITE_ROW) return true;
    if (code != SQLITE_DONE) raise(code);
    return false;
}

void MemoryStatement::reset() {
    sqlite3_reset(m_statement);
}

int MemoryStatement::integer(int column) const {
    return sqlite3_column_int(m_statement, column);
}

const char *MemoryStatement::text(int column, qsizetype &size) const {
    const unsigned char *text = sqlite3_column_text(m_statement, column);
    size = sqlite3_column_bytes(m_statement, column);
    return reinterpret_cast<const char *>(text);
}

QVariant MemoryStatement::cell(int column, FieldType type) const {
    if (sqlite3_column_type(m_statement, column) == SQLITE_NULL) return {};
    switch (type) {
    case FieldType::Boolean:
        return sqlite3_column_int(m_statement, column) != 0;
    case FieldType::Byte:
    case FieldType::Integer:
    case FieldType::Long:
        return sqlite3_column_int(m_statement, column);
    case FieldType::Single:
        return static_cast<float>(sqlite3_column_double(m_statement, column));
    case FieldType::Double:
    case FieldType::Currency:
        return sqlite3_column_double(m_statement, column);
    case FieldType::Date:
        return dateOfNumber(sqlite3_column_double(m_statement, column));
    case FieldType::Text:
    case FieldType::Memo:
        break;
    case FieldType::Unsupported:
        return {};
    }
    qsizetype size = 0;
    const char *utf8 = text(column, size);
    return QString::fromUtf8(utf8, size);
}

MemoryDatabase::MemoryDatabase() {
    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX;
    const int code = sqlite3_open_v2(":memory:", &m_connection, flags, nullptr);
    if (code != SQLITE_OK) {
        sqlite3_close(m_connection);
        raise(code);
    }
    registerMemoryFunctions(m_connection);
    ColumnsModule::registerIn(m_connection, m_columnTables);
    execute("pragma temp_store = memory");
}

MemoryDatabase::~MemoryDatabase() {
    forgetStatements();
    sqlite3_close(m_connection);
}

std::unique_ptr<MemoryStatement> MemoryDatabase::prepare(const SqlText &sql) {
    sqlite3_stmt *statement = nullptr;
    if (const auto idle = m_idle.find(sql.text); idle != m_idle.end()) {
        statement = *idle;
        m_idle.erase(idle);
    } else {
        const int code =
            sqlite3_prepare_v3(m_connection, sql.text.constData(), static_cast<int>(sql.text.size()),
                               SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
        if (code == SQLITE_NOMEM) raise(code);
        // What reaches SQLite is well-formed, so a refusal tells of the number of terms, columns or values.
        if (code != SQLITE_OK) throw JetErrors::tooComplex();
    }
    auto prepared = std::make_unique<MemoryStatement>(*this, sql.text, statement);
    for (int i = 0; i < sql.parameters.size(); ++i)
        prepared->bind(i, sql.parameters[i]);
    return prepared;
}

void MemoryDatabase::execute(const SqlText &sql) {
    const std::unique_ptr<MemoryStatement> statement = prepare(sql);
    while (statement->step()) {
    }
}

void MemoryDatabase::createOverColumns(const QByteArray &name, const TableColumns &columns) {
    m_columnTables.insert(name, &columns);
    execute(ColumnsModule::createTable(name));
}

void MemoryDatabase::dropColumns(const QByteArray &name) {
    forgetStatements();
    execute("drop table " + name);
    m_columnTables.remove(name);
}

void MemoryDatabase::giveBack(const QByteArray &sql, sqlite3_stmt *statement) {
    if (m_idle.size() >= MaximumIdleStatements) forgetStatements();
    sqlite3_reset(statement);
    m_idle.insert(sql, statement);
}

void MemoryDatabase::forgetStatements() {
    for (sqlite3_stmt *statement : std::as_const(m_idle))
        sqlite3_finalize(statement);
    m_idle.clear();
}

QVariant storedValue(const QVariant &cell, FieldType type) {
    if (!cell.isValid()) return {};
    switch (type) {
    case FieldType::Boolean:
        return cell.toBool() ? qlonglong(-1) : qlonglong(0);
    case FieldType::Byte:
    case FieldType::Integer:
    case FieldType::Long:
        return cell.toLongLong();
    case FieldType::Single:
    case FieldType::Double:
    case FieldType::Currency:
        return cell.toDouble();
    case FieldType::Date: {
        const QDateTime moment = cell.toDateTime();
        return moment.isValid() ? QVariant(dateNumber(moment)) : QVariant();
    }
    case FieldType::Text:
    case FieldType::Memo:
        break;
    case FieldType::Unsupported:
        return {};
    }
    return cell.toString();
}

QByteArray textExpression(const QByteArray &value, FieldType type) {
    switch (type) {
    case FieldType::Boolean:
    case FieldType::Byte:
    case FieldType::Integer:
    case FieldType::Long:
        return "cast(" + value + " as text)";
    case FieldType::Single:
        return "jet_single(" + value + ")";
    case FieldType::Double:
    case FieldType::Currency:
        return "jet_double(" + value + ")";
    case FieldType::Date:
        return "jet_date(" + value + ")";
    case FieldType::Text:
    case FieldType::Memo:
    case FieldType::Unsupported:
        break;
    }
    return value;
}
