#include "platform/dao/table_columns.h"

#include <algorithm>
#include <cstring>

#include "platform/dao/date_number.h"

TableColumns::TableColumns(FieldDefinitions fields)
    : m_fields(std::move(fields))
    , m_columns(std::size_t(m_fields.size())) {}

void TableColumns::appendNull(int column) {
    Column &to = at(column);
    const FieldType type = m_fields[column].type;
    to.isNull.push_back(1);
    if (isTextType(type))
        to.ends.push_back(to.texts.size());
    else if (isKeptAsInteger(type))
        to.integers.push_back(0);
    else if (type != FieldType::Unsupported)
        to.numbers.push_back(0);
}

void TableColumns::appendText(int column, const char *utf16, qsizetype units) {
    Column &to = at(column);
    const std::size_t begin = to.texts.size();
    to.texts.resize(begin + std::size_t(units));
    char *out = to.texts.data() + begin;
    char16_t all = 0;
    for (qsizetype i = 0; i < units; ++i) {
        char16_t unit = 0;
        std::memcpy(&unit, utf16 + i * qsizetype(sizeof unit), sizeof unit);
        all |= unit;
        out[i] = static_cast<char>(unit);
    }
    if (all >= 0x80) {
        QString text(units, Qt::Uninitialized);
        std::memcpy(text.data(), utf16, std::size_t(units) * sizeof(char16_t));
        const QByteArray utf8 = text.toUtf8();
        to.texts.replace(begin, std::string::npos, utf8.constData(), std::size_t(utf8.size()));
    }
    to.ends.push_back(to.texts.size());
    to.isNull.push_back(0);
}

void TableColumns::appendCell(int column, const QVariant &cell) {
    if (cell.typeId() == qMetaTypeId<UnreadableCell>()) {
        if (!m_unreadable.contains(column))
            m_unreadable.insert(column, {m_rows, cell.value<UnreadableCell>().description});
        return appendNull(column);
    }
    if (!cell.isValid()) return appendNull(column);
    switch (m_fields[column].type) {
    case FieldType::Boolean:
        return appendInteger(column, cell.toBool() ? -1 : 0);
    case FieldType::Byte:
    case FieldType::Integer:
    case FieldType::Long:
        return appendInteger(column, cell.toInt());
    case FieldType::Currency:
    case FieldType::Single:
    case FieldType::Double:
        return appendNumber(column, cell.toDouble());
    case FieldType::Date: {
        const QDateTime moment = cell.toDateTime();
        return moment.isValid() ? appendNumber(column, dateNumber(moment)) : appendNull(column);
    }
    case FieldType::Text:
    case FieldType::Memo: {
        const QString text = cell.toString();
        return appendText(column, reinterpret_cast<const char *>(text.constData()), text.size());
    }
    case FieldType::Unsupported:
        return appendNull(column);
    }
}

void TableColumns::appendRow(const QVector<QVariant> &row) {
    for (int i = 0; i < m_fields.size(); ++i)
        appendCell(i, row.value(i));
    endRow();
}

void TableColumns::truncate(int rows) {
    const auto size = static_cast<std::size_t>(rows);
    const auto shorten = [size](auto &values) { values.resize(std::min(values.size(), size)); };
    for (Column &column : m_columns) {
        shorten(column.isNull);
        shorten(column.integers);
        shorten(column.numbers);
        shorten(column.ends);
        column.texts.resize(column.ends.empty() ? 0 : column.ends.back());
    }
    m_unreadable.removeIf([rows](const auto &entry) { return entry->row >= rows; });
    m_rows = rows;
}

QVariant TableColumns::cell(int row, int column) const {
    if (isNull(row, column)) return {};
    switch (m_fields[column].type) {
    case FieldType::Boolean:
        return integer(row, column) != 0;
    case FieldType::Byte:
    case FieldType::Integer:
    case FieldType::Long:
        return integer(row, column);
    case FieldType::Single:
        return static_cast<float>(number(row, column));
    case FieldType::Double:
    case FieldType::Currency:
        return number(row, column);
    case FieldType::Date:
        return dateOfNumber(number(row, column));
    case FieldType::Text:
    case FieldType::Memo: {
        const std::string_view utf8 = text(row, column);
        return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
    }
    case FieldType::Unsupported:
        break;
    }
    return {};
}
