#include "platform/dao/memory_table.h"

#include <algorithm>
#include <numeric>

#include "platform/dao/memory_database.h"
#include "platform/runtime/regional_settings.h"
#include "platform/runtime/runtime_error.h"

namespace {

// Some screens full: a grid asks for the same rows at every painting.
constexpr int KeptRows = 500;
// Sort orders are few and small, but a program may make up any number of them.
constexpr int KeptOrders = 50;

class Transaction {
public:
    explicit Transaction(MemoryDatabase &database)
        : m_database(database) {
        m_database.execute("begin");
    }
    ~Transaction() {
        if (!m_open) return;
        try {
            m_database.execute("rollback");
        } catch (const RuntimeError &) {
            // The error that brought us here is the one to tell.
        }
    }
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;

    void commit() {
        m_database.execute("commit");
        m_open = false;
    }

private:
    MemoryDatabase &m_database;
    bool m_open = true;
};

// What the text of a value depends on besides the value.
QString regionalNotation(FieldType type) {
    const RegionalSettings &settings = RegionalSettings::current();
    if (type == FieldType::Date) return settings.shortDateFormat + '\n' + settings.timeFormat;
    const bool isReal = type == FieldType::Single || type == FieldType::Double || type == FieldType::Currency;
    return isReal ? QString(settings.decimalSign) : QString();
}

} // namespace

MemoryTable::MemoryTable(std::shared_ptr<MemoryDatabase> database, QByteArray sqlName,
                         FieldDefinitions fields, Kind kind)
    : m_database(std::move(database))
    , m_sqlName(std::move(sqlName))
    , m_fields(std::move(fields))
    , m_kind(kind)
    , m_columns(m_fields)
    , m_textColumns(static_cast<std::size_t>(m_fields.size()))
    , m_rows(KeptRows) {
    if (m_kind == Kind::Complete) {
        m_database->createOverColumns(m_sqlName, m_columns);
        return;
    }
    QByteArrayList columns;
    for (int i = 0; i < m_fields.size(); ++i)
        columns += columnName(i) + (isTextType(m_fields[i].type) ? MemoryDatabase::JetCollation : "");
    m_database->execute(QByteArray(m_kind == Kind::Result ? "create temp table " : "create table ") +
                        m_sqlName + " (" + columns.join(", ") + ")");
}

MemoryTable::~MemoryTable() {
    try {
        if (m_kind == Kind::Complete) m_database->dropColumns(m_sqlName);
        if (m_kind == Kind::Result) m_database->execute("drop table " + m_sqlName);
    } catch (const RuntimeError &) {
        // It stays until the database goes; nobody can reach it.
    }
}

QByteArray MemoryTable::columnName(int column) {
    return "c" + QByteArray::number(column);
}

void MemoryTable::load(const std::function<void(TableColumns &)> &read) {
    if (m_kind == Kind::Complete) {
        const int before = m_columns.rowCount();
        try {
            read(m_columns);
        } catch (...) {
            m_columns.truncate(before);
            throw;
        }
    } else {
        TableColumns rows(m_fields);
        read(rows);
        insertRows(rows);
        for (int i = 0; i < m_fields.size(); ++i)
            if (const QString reason = rows.unreadable(i); !reason.isEmpty() && !m_unreadable.contains(i))
                m_unreadable.insert(i, reason);
    }
    rowsAdded();
}

void MemoryTable::insertRows(const TableColumns &rows) {
    const QByteArray marks = QByteArray("?, ").repeated(m_fields.size()).chopped(2);
    Transaction transaction(*m_database);
    {
        const auto insert = m_database->prepare("insert into " + m_sqlName + " values (" + marks + ")");
        for (int row = 0; row < rows.rowCount(); ++row) {
            for (int i = 0; i < m_fields.size(); ++i)
                insert->bindCell(i, rows, row, i);
            insert->step();
            insert->reset();
        }
    }
    transaction.commit();
}

void MemoryTable::fill(const SqlText &query) {
    m_database->execute("insert into " + m_sqlName + " " + query);
    rowsAdded();
}

void MemoryTable::setKey(const QVector<int> &columns) {
    QByteArrayList names;
    for (int column : columns)
        names += columnName(column);
    m_keyNames = names.join(", ");
    m_database->execute("create index " + m_sqlName + "_key on " + m_sqlName + " (" + m_keyNames + ")");
}

void MemoryTable::rowsAdded() {
    if (m_kind == Kind::Complete) {
        m_rowCount = m_columns.rowCount();
    } else {
        const auto count = m_database->prepare("select count(*) from " + m_sqlName);
        count->step();
        m_rowCount = count->integer(0);
    }
    m_orders.clear();
    std::fill(m_textColumns.begin(), m_textColumns.end(), std::nullopt);
}

std::vector<int> MemoryTable::rows(const RowFilter &filter, const RowOrder &order) {
    if (m_kind == Kind::Growing) {
        SqlText sql = "select rowid from " + m_sqlName + " as t0";
        if (!filter.condition.text.isEmpty()) sql += " where " + filter.condition;
        sql += " order by ";
        if (!order.sql.text.isEmpty()) sql += order.sql + ", ";
        return queriedRows(sql + m_keyNames + ", rowid");
    }
    const std::vector<int> &all = ordered(order);
    if (filter.likes.empty() && filter.condition.text.isEmpty()) return all;
    const RowMarks meant = marks(filter);
    std::vector<int> found;
    std::copy_if(all.begin(), all.end(), std::back_inserter(found),
                 [&](int row) { return meant[static_cast<std::size_t>(row)] != 0; });
    return found;
}

RowMarks MemoryTable::marks(const RowFilter &filter) {
    const std::size_t size = static_cast<std::size_t>(m_rowCount) + 1;
    RowMarks marks(size, filter.condition.text.isEmpty());
    marks[0] = 0;
    if (!filter.condition.text.isEmpty()) {
        SqlText sql = "select rowid from " + m_sqlName + " as t0 where ";
        for (int row : queriedRows(sql + filter.condition))
            marks[static_cast<std::size_t>(row)] = 1;
    }
    for (const RowFilter::Like &like : filter.likes) {
        const RowMarks alike = textColumn(like.column).matching(like.pattern);
        for (std::size_t row = 0; row < size; ++row)
            marks[row] &= alike[row];
    }
    return marks;
}

const std::vector<int> &MemoryTable::ordered(const RowOrder &order) {
    QByteArray key = order.sql.text;
    for (const QVariant &value : order.sql.parameters)
        key += '\0' + value.toString().toUtf8();
    if (const auto kept = m_orders.constFind(key); kept != m_orders.constEnd()) return *kept;
    if (m_orders.size() >= KeptOrders) m_orders.clear();
    std::vector<int> rows(static_cast<std::size_t>(m_rowCount));
    if (order.sql.text.isEmpty())
        std::iota(rows.begin(), rows.end(), 1);
    else if (m_kind == Kind::Complete && order.columns)
        rows = orderedRows(m_columns, *order.columns);
    else
        rows = queriedRows("select rowid from " + m_sqlName + " as t0 order by " + order.sql + ", rowid");
    return *m_orders.insert(key, std::move(rows));
}

std::vector<int> MemoryTable::queriedRows(const SqlText &sql) {
    std::vector<int> rows;
    const auto statement = m_database->prepare(sql);
    while (statement->step())
        rows.push_back(statement->integer(0));
    return rows;
}

const TextColumn &MemoryTable::textColumn(int column) {
    std::optional<KeptTextColumn> &kept = m_textColumns[static_cast<std::size_t>(column)];
    const FieldType type = m_fields[column].type;
    const QString notation = regionalNotation(type);
    if (kept && kept->regionalNotation == notation) return kept->texts;
    kept = KeptTextColumn{{}, notation};
    if (m_kind == Kind::Complete && isTextType(type)) {
        for (int row = 0; row < m_rowCount; ++row) {
            const std::string_view text = m_columns.text(row, column);
            kept->texts.append(m_columns.isNull(row, column) ? nullptr : text.data(), qsizetype(text.size()));
        }
        return kept->texts;
    }
    const QByteArray text = textExpression(columnName(column), type);
    const auto statement = m_database->prepare("select " + text + " from " + m_sqlName + " order by rowid");
    while (statement->step()) {
        qsizetype size = 0;
        const char *utf8 = statement->text(0, size);
        kept->texts.append(utf8, size);
    }
    return kept->texts;
}

void MemoryTable::checkReadable(int column) const {
    const QString reason =
        m_kind == Kind::Complete ? m_columns.unreadable(column) : m_unreadable.value(column);
    if (!reason.isEmpty()) throw RuntimeError(3343, reason);
}

QVariant MemoryTable::cell(int row, int column) {
    checkReadable(column);
    if (m_kind == Kind::Complete) return m_columns.cell(row - 1, column);
    if (const QVector<QVariant> *kept = m_rows.object(row)) return kept->value(column);
    auto cells = std::make_unique<QVector<QVariant>>();
    const auto statement =
        m_database->prepare({"select * from " + m_sqlName + " where rowid = ?", {qlonglong(row)}});
    statement->step();
    for (int i = 0; i < m_fields.size(); ++i)
        *cells += statement->cell(i, m_fields[i].type);
    const QVariant value = cells->value(column);
    m_rows.insert(row, cells.release());
    return value;
}
