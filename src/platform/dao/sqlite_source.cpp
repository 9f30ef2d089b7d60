#include "platform/dao/sqlite_source.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <ctime>
#include <limits>

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <sqlite3.h>

#include "platform/dao/date_serial.h"
#include "platform/dao/sqlite_file_check.h"
#include "platform/runtime/runtime_error.h"

namespace {

constexpr int TextSize = 255;
constexpr char TextCollation[] = "any_capitals";
constexpr int RowsAtOnce = 1000;
constexpr int StepsBetweenLooks = 100'000;
constexpr qint64 LeastLongestValue = 1 << 20;

/// The processor's, since a medium may take its time.
qint64 secondsOfWork() {
    timespec now = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return now.tv_sec;
}

int compareTexts(void *, int sizeA, const void *a, int sizeB, const void *b) {
    const auto view = [](const void *units, int size) {
        return QStringView(static_cast<const char16_t *>(units), size / qsizetype(sizeof(char16_t)));
    };
    return view(a, sizeA).compare(view(b, sizeB), Qt::CaseInsensitive);
}

QString quoted(const QString &name) {
    return '"' + QString(name).replace('"', "\"\"") + '"';
}

QString textAt(sqlite3_stmt *statement, int column) {
    const auto *units = static_cast<const QChar *>(sqlite3_column_text16(statement, column));
    const qsizetype size = sqlite3_column_bytes16(statement, column) / qsizetype(sizeof(QChar));
    return units ? QString(units, size) : QString(QLatin1String(""));
}

/// A value that its column's type cannot hold.
struct Misfit {};

double numberAt(sqlite3_stmt *statement, int column) {
    if (sqlite3_column_type(statement, column) != SQLITE_TEXT)
        return sqlite3_column_double(statement, column);
    bool good = false;
    const double value = textAt(statement, column).toDouble(&good);
    if (!good) throw Misfit();
    return value;
}

bool booleanAt(sqlite3_stmt *statement, int column) {
    if (sqlite3_column_type(statement, column) == SQLITE_TEXT) {
        const QString text = textAt(statement, column).trimmed().toLower();
        if (text == QLatin1String("true") || text == QLatin1String("yes")) return true;
        if (text == QLatin1String("false") || text == QLatin1String("no")) return false;
    }
    return numberAt(statement, column) != 0;
}

int integerAt(sqlite3_stmt *statement, int column) {
    const double value = numberAt(statement, column);
    if (value != std::floor(value) || value < std::numeric_limits<int>::min() ||
        value > std::numeric_limits<int>::max())
        throw Misfit();
    return static_cast<int>(value);
}

float singleAt(sqlite3_stmt *statement, int column) {
    const double value = numberAt(statement, column);
    if (std::abs(value) > double(std::numeric_limits<float>::max())) throw Misfit();
    return static_cast<float>(value);
}

QDateTime dateAt(sqlite3_stmt *statement, int column) {
    if (sqlite3_column_type(statement, column) == SQLITE_TEXT) {
        QString text = textAt(statement, column).trimmed();
        if (text.size() == 10) text += QLatin1String("T00:00");
        if (text.size() > 10) text[10] = 'T';
        // As local time it would come back as another one where the clocks jump over it.
        QDateTime moment = QDateTime::fromString(text + 'Z', Qt::ISODate);
        if (!moment.isValid()) moment = QDateTime::fromString(text, Qt::ISODate); // it names its zone
        if (!moment.isValid()) throw Misfit();
        return calendarMoment(moment.date(), moment.time());
    }
    const std::optional<QDateTime> moment = fromDateSerial(sqlite3_column_double(statement, column));
    if (!moment) throw Misfit();
    return *moment;
}

QVariant valueAt(sqlite3_stmt *statement, int column, FieldType type) {
    const int stored = sqlite3_column_type(statement, column);
    if (stored == SQLITE_NULL) return {};
    if (stored == SQLITE_BLOB) throw Misfit();
    if (type == FieldType::Text || type == FieldType::Memo) return textAt(statement, column);
    // What importing a CSV file leaves of an empty cell.
    if (stored == SQLITE_TEXT && textAt(statement, column).trimmed().isEmpty()) return {};
    switch (type) {
    case FieldType::Boolean:
        return booleanAt(statement, column);
    case FieldType::Single:
        return singleAt(statement, column);
    case FieldType::Currency:
    case FieldType::Double:
        return numberAt(statement, column);
    case FieldType::Date:
        return dateAt(statement, column);
    default:
        return integerAt(statement, column);
    }
}

} // namespace

void SqliteSource::Closer::operator()(sqlite3 *database) const {
    sqlite3_close(database);
}

void SqliteSource::Closer::operator()(sqlite3_stmt *statement) const {
    sqlite3_finalize(statement);
}

SqliteSource::SqliteSource(QString path, int mostSeconds)
    : m_path(std::move(path))
    , m_mostSeconds(mostSeconds)
    , m_file(m_path) {
    if (!isSqliteFile(m_path)) raiseDamaged(); // SQLite takes an empty file for an empty database
    if (m_file.open(QIODevice::ReadOnly)) m_identity = FileIdentity::of(m_file.handle());
    checkSqliteFile(m_path);
    const QByteArray address =
        QUrl::fromLocalFile(QFileInfo(m_path).absoluteFilePath()).toEncoded() + "?mode=ro&immutable=1";
    sqlite3 *database = nullptr;
    const int result =
        sqlite3_open_v2(address.constData(), &database, SQLITE_OPEN_READONLY | SQLITE_OPEN_URI, nullptr);
    m_database.reset(database);
    if (result != SQLITE_OK) raiseDamaged();
    sqlite3_db_config(database, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    // Only what a view or a generated column makes up is longer than the file.
    sqlite3_limit(database, SQLITE_LIMIT_LENGTH,
                  static_cast<int>(
                      std::clamp<qint64>(m_file.size(), LeastLongestValue, std::numeric_limits<int>::max())));
    sqlite3_progress_handler(
        database, StepsBetweenLooks,
        [](void *source) { return int(secondsOfWork() > static_cast<SqliteSource *>(source)->m_deadline); },
        this);
    sqlite3_exec(database, "PRAGMA cell_size_check = ON", nullptr, nullptr, nullptr);
    sqlite3_create_collation(database, TextCollation, SQLITE_UTF16, nullptr, compareTexts);
    readCatalog();
}

bool SqliteSource::isSqliteFile(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(16) == QByteArray("SQLite format 3\0", 16);
}

FieldDefinition SqliteSource::declaredField(const QString &declaration) {
    static const QHash<QString, FieldType> types = {
        {"BOOLEAN", FieldType::Boolean},   {"BOOL", FieldType::Boolean},
        {"YES/NO", FieldType::Boolean},    {"YESNO", FieldType::Boolean},
        {"BIT", FieldType::Boolean},       {"LOGICAL", FieldType::Boolean},
        {"BYTE", FieldType::Byte},         {"TINYINT", FieldType::Byte},
        {"INTEGER", FieldType::Integer},   {"INT", FieldType::Integer},
        {"SMALLINT", FieldType::Integer},  {"SHORT", FieldType::Integer},
        {"LONG", FieldType::Long},         {"LONG INTEGER", FieldType::Long},
        {"BIGINT", FieldType::Long},       {"MEDIUMINT", FieldType::Long},
        {"COUNTER", FieldType::Long},      {"AUTOINCREMENT", FieldType::Long},
        {"CURRENCY", FieldType::Currency}, {"MONEY", FieldType::Currency},
        {"SINGLE", FieldType::Single},     {"DOUBLE", FieldType::Double},
        {"REAL", FieldType::Double},       {"FLOAT", FieldType::Double},
        {"NUMERIC", FieldType::Double},    {"NUMBER", FieldType::Double},
        {"DECIMAL", FieldType::Double},    {"DATE", FieldType::Date},
        {"DATETIME", FieldType::Date},     {"DATE/TIME", FieldType::Date},
        {"TIMESTAMP", FieldType::Date},    {"MEMO", FieldType::Memo},
        {"LONGTEXT", FieldType::Memo},     {"LONG TEXT", FieldType::Memo},
        {"CLOB", FieldType::Memo},         {"DOUBLE PRECISION", FieldType::Double},
    };
    const qsizetype bracket = declaration.indexOf('(');
    const QString name = declaration.left(bracket).simplified().toUpper();
    FieldDefinition field;
    field.type = types.value(name, FieldType::Text);
    if (field.type == FieldType::Text) {
        const QString size = declaration.mid(bracket + 1).section(')', 0, 0);
        field.size = bracket >= 0 && size.toInt() > 0 ? size.toInt() : TextSize;
    }
    return field;
}

QStringList SqliteSource::tableNames() {
    QStringList names;
    for (const Table &table : m_tables)
        names << table.name;
    return names;
}

FieldDefinitions SqliteSource::fields(const QString &table) {
    return fieldsOf(find(table));
}

qint64 SqliteSource::rowCount(const QString &table) {
    Table &found = find(table);
    if (!found.rows) {
        const Statement statement = prepare("SELECT count(*) FROM " + quoted(found.name));
        found.rows = step(statement) ? sqlite3_column_int64(statement.get(), 0) : 0;
    }
    return *found.rows;
}

void SqliteSource::readAll(const QString &table, TableColumns &rows, const RowsArrived &arrived) {
    read(find(table), {}, rows, arrived);
}

void SqliteSource::readMatching(const QString &table, const QVector<ColumnCondition> &conditions,
                                TableColumns &rows) {
    Table &found = find(table);
    if (const auto bound = bindConditions(fieldsOf(found), conditions)) read(found, *bound, rows, {});
}

void SqliteSource::readCatalog() {
    const Statement tables =
        prepare("SELECT name, type = 'view' FROM sqlite_schema WHERE type IN ('table', 'view') AND name NOT "
                "LIKE 'sqlite~_%' ESCAPE '~' AND sql NOT LIKE 'CREATE VIRTUAL%' ORDER BY rowid");
    while (step(tables)) {
        m_tables.append({textAt(tables.get(), 0), sqlite3_column_int(tables.get(), 1) != 0, {}, {}});
        // A view over what is not there does no harm until somebody asks for it.
        if (!m_tables.last().isView) fieldsOf(m_tables.last());
    }
}

SqliteSource::Table &SqliteSource::find(const QString &table) {
    const auto found =
        std::find_if(m_tables.begin(), m_tables.end(), [&](const Table &each) { return each.name == table; });
    if (found == m_tables.end()) throw RuntimeError(3078);
    return *found;
}

const FieldDefinitions &SqliteSource::fieldsOf(Table &table) {
    if (!table.fields.isEmpty()) return table.fields;
    // Other than table_info it knows of generated columns.
    const Statement columns = prepare("PRAGMA table_xinfo(" + quoted(table.name) + ")");
    FieldDefinitions fields;
    while (step(columns)) {
        const QString declaration = textAt(columns.get(), 2);
        FieldDefinition field = declaredField(declaration);
        field.name = textAt(columns.get(), 1);
        if (table.isView && declaration.isEmpty()) field.type = typeOfValues(table.name, field.name);
        if (!isTextType(field.type)) field.size = 0;
        fields.append(field);
    }
    return table.fields = fields;
}

/// What a view calculates has no declared type, and numbers must not be sorted as texts.
FieldType SqliteSource::typeOfValues(const QString &view, const QString &column) const {
    const QString type = "typeof(" + quoted(column) + ")";
    const Statement values =
        prepare("SELECT sum(" + type + " <> 'null'), sum(" + type + " IN ('text', 'blob')), sum(" + type +
                " = 'real') FROM " + quoted(view));
    if (!step(values)) return FieldType::Text;
    const bool hasNone = sqlite3_column_int64(values.get(), 0) == 0;
    if (hasNone || sqlite3_column_int64(values.get(), 1) > 0) return FieldType::Text;
    return sqlite3_column_int64(values.get(), 2) > 0 ? FieldType::Double : FieldType::Long;
}

void SqliteSource::read(Table &table, const QVector<BoundCondition> &conditions, TableColumns &rows,
                        const RowsArrived &arrived) {
    const FieldDefinitions &fields = fieldsOf(table);
    QStringList columns;
    for (const FieldDefinition &field : fields)
        columns << quoted(field.name);
    QStringList tests;
    for (const BoundCondition &condition : conditions) {
        const QString &column = columns[condition.column];
        tests << (condition.isText ? "CAST(" + column + " AS TEXT) = ? COLLATE " + TextCollation
                                   : column + " = ?");
    }
    const QString where = tests.isEmpty() ? QString() : " WHERE " + tests.join(" AND ");
    const Statement statement =
        prepare("SELECT " + columns.join(", ") + " FROM " + quoted(table.name) + where);
    for (int i = 0; i < conditions.size(); ++i) {
        const BoundCondition &condition = conditions[i];
        if (condition.isText)
            sqlite3_bind_text16(statement.get(), i + 1, condition.text.utf16(),
                                static_cast<int>(condition.text.size() * qsizetype(sizeof(QChar))),
                                SQLITE_TRANSIENT);
        else
            sqlite3_bind_int(statement.get(), i + 1, condition.integer);
    }

    // The file is opened as one that nobody writes, and SQLite does not look again.
    const auto checkUnchanged = [this] {
        if (FileIdentity::of(m_file.handle()) != m_identity) raiseDamaged();
    };
    checkUnchanged();
    QVector<QVariant> row(fields.size());
    while (step(statement)) {
        for (int i = 0; i < row.size(); ++i) {
            try {
                row[i] = valueAt(statement.get(), i, fields[i].type);
            } catch (const Misfit &) {
                row[i] = QVariant::fromValue(
                    UnreadableCell{"Unrecognized database format '" + m_path + "': a value in " + table.name +
                                   "." + fields[i].name + " is not of the column's type."});
            }
        }
        rows.appendRow(row);
        if (arrived && rows.rowCount() >= RowsAtOnce) arrived();
    }
    checkUnchanged();
}

SqliteSource::Statement SqliteSource::prepare(const QString &sql) const {
    m_deadline = secondsOfWork() + m_mostSeconds;
    sqlite3_stmt *statement = nullptr;
    if (sqlite3_prepare_v2(m_database.get(), sql.toUtf8().constData(), -1, &statement, nullptr) != SQLITE_OK)
        raiseRefused();
    return Statement(statement);
}

bool SqliteSource::step(const Statement &statement) const {
    m_deadline = secondsOfWork() + m_mostSeconds;
    switch (sqlite3_step(statement.get())) {
    case SQLITE_ROW:
        return true;
    case SQLITE_DONE:
        return false;
    default:
        raiseRefused();
    }
}

void SqliteSource::raiseRefused() const {
    raiseDamaged(sqlite3_errcode(m_database.get()) == SQLITE_INTERRUPT
                     ? QStringLiteral("a view takes too long")
                     : QString::fromUtf8(sqlite3_errmsg(m_database.get())));
}

void SqliteSource::raiseDamaged(const QString &reason) const {
    throw RuntimeError(3343, "Unrecognized database format '" + m_path + '\'' +
                                 (reason.isEmpty() ? reason : ": " + reason) + '.');
}
