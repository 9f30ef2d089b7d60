#include "tests/dao/sql_support.h"

#include <QDateTime>

#include "platform/runtime/conversions.h"
#include "platform/runtime/runtime_error.h"
#include "tests/dao/source_support.h"

namespace {

FieldDefinition fieldOf(const QString &column) {
    static const QMap<QString, FieldType> types = {
        {"BOOLEAN", FieldType::Boolean},  {"BYTE", FieldType::Byte},     {"INT", FieldType::Integer},
        {"LONG", FieldType::Long},        {"SINGLE", FieldType::Single}, {"DOUBLE", FieldType::Double},
        {"DATE", FieldType::Date},        {"TEXT", FieldType::Text},     {"MEMO", FieldType::Memo},
        {"OTHER", FieldType::Unsupported}};
    const QString type = column.section(':', 1).section('(', 0, 0);
    return {column.section(':', 0, 0), types.value(type), type == "TEXT" ? 80 : 0};
}

QVariant cellOf(const QString &text, FieldType type) {
    if (text == "\\N") return {};
    switch (type) {
    case FieldType::Boolean:
        return text == "1";
    case FieldType::Byte:
    case FieldType::Integer:
    case FieldType::Long:
        return text.toInt();
    case FieldType::Single:
        return text.toFloat();
    case FieldType::Currency:
    case FieldType::Double:
        return text.toDouble();
    case FieldType::Date:
        return text.contains('T') ? QDateTime::fromString(text, Qt::ISODate)
                                  : QDate::fromString(text, Qt::ISODate).startOfDay();
    case FieldType::Text:
    case FieldType::Memo:
        break;
    case FieldType::Unsupported:
        return {};
    }
    return text;
}

} // namespace

void ListSource::add(const QString &table, const QString &columns, const QStringList &rows) {
    Table added;
    for (const QString &column : columns.split(','))
        added.fields += fieldOf(column);
    for (const QString &row : rows) {
        QVector<QVariant> cells;
        for (int i = 0; i < added.fields.size(); ++i)
            cells += cellOf(row.section('|', i, i), added.fields[i].type);
        added.rows += cells;
    }
    m_tables.insert(table, added);
}

void ListSource::send(const QVector<QVariant> &row, TableColumns &rows, int &sent) const {
    if (sent++ == m_damagedAfter) throw RuntimeError(3343);
    rows.appendRow(row);
}

void ListSource::readAll(const QString &table, TableColumns &rows, const RowsArrived &) {
    *m_reads += table;
    int sent = 0;
    for (const QVector<QVariant> &row : m_tables[table].rows)
        send(row, rows, sent);
}

void ListSource::readMatching(const QString &table, const QVector<ColumnCondition> &conditions,
                              TableColumns &rows) {
    QString read = table;
    for (const ColumnCondition &condition : conditions)
        read += " " + condition.column + "=" + condition.value.toString();
    *m_reads += read;
    int sent = 0;
    for (const QVector<QVariant> &row : m_tables[table].rows) {
        bool meets = true;
        for (const ColumnCondition &condition : conditions)
            for (int i = 0; i < row.size(); ++i)
                if (m_tables[table].fields[i].name == condition.column)
                    meets &= row[i].isValid() &&
                             row[i].toString().compare(condition.value.toString(), Qt::CaseInsensitive) == 0;
        if (meets) send(row, rows, sent);
    }
}

Database databaseOver(std::unique_ptr<TableSource> source, qint64 wholeTableLimit) {
    return Database("", std::make_shared<TableStore>(std::move(source), nullptr, wholeTableLimit));
}

Database sampleDatabase(const QString &file, qint64 wholeTableLimit) {
    return databaseOver(std::make_unique<SampleSource>(samplePath(file)), wholeTableLimit);
}

std::string shownCell(const QVariant &cell) {
    return IsNull(cell) ? "-" : CStr(cell).toStdString();
}

std::vector<std::string> shownRows(const Recordset &recordset, const QStringList &columns) {
    std::vector<std::string> texts;
    for (int row = 0; row < recordset.RecordCount(); ++row) {
        QStringList cells;
        for (int i = 0; i < recordset.fieldDefinitions().size(); ++i)
            if (columns.isEmpty()) cells += QString::fromStdString(shownCell(recordset.value(row, i)));
        for (const QString &column : columns)
            cells += QString::fromStdString(shownCell(recordset.value(row, recordset.fieldIndex(column))));
        texts.push_back(cells.join('|').toStdString());
    }
    return texts;
}

std::vector<std::string> shownRows(Database &database, const QString &sql, const QStringList &columns) {
    return shownRows(*database.OpenRecordset(sql), columns);
}

std::string fieldNames(const Recordset &recordset) {
    QStringList names;
    for (const FieldDefinition &field : recordset.fieldDefinitions())
        names += field.name;
    return names.join('|').toStdString();
}
