// Rows of a table as columns: what the rows of a file become on their way, and how a whole table is kept.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <QHash>
#include <QString>
#include <QVariant>

#include "platform/dao/field_type.h"

/// Stands in a row for a value that is there and cannot be handed over. It does no harm until somebody asks
/// for its column: then 3343 is raised with this description, which names table and column.
struct UnreadableCell {
    QString description;
};
Q_DECLARE_METATYPE(UnreadableCell)

/// Rows count from 0. A row's cells are appended in the order of the fields, each by the call that its type
/// has, and the row is there after endRow(). A Boolean is an integer, True is -1; Single, Double, Currency
/// and Date are numbers, a Date one of days since 1899-12-30; Text and Memo are UTF-8.
class TableColumns {
public:
    explicit TableColumns(FieldDefinitions fields);

    const FieldDefinitions &fields() const { return m_fields; }
    int rowCount() const { return m_rows; }

    void appendNull(int column);
    void appendInteger(int column, qint32 value) {
        Column &to = at(column);
        to.integers.push_back(value);
        to.isNull.push_back(0);
    }
    /// What is no number is Null, and zero has no sign.
    void appendNumber(int column, double value) {
        Column &to = at(column);
        if (value != value) return appendNull(column);
        to.numbers.push_back(value + 0.0);
        to.isNull.push_back(0);
    }
    /// `units` many units of UTF-16, wherever they begin.
    void appendText(int column, const char *utf16, qsizetype units);
    /// Any cell by its type. An UnreadableCell is Null here, and its description is kept.
    void appendCell(int column, const QVariant &cell);
    void endRow() { ++m_rows; }
    void appendRow(const QVector<QVariant> &row);

    /// Leaves the first `rows` rows, and takes away the beginning of one that has not ended.
    void truncate(int rows);

    bool isNull(int row, int column) const { return at(column).isNull[std::size_t(row)] != 0; }
    /// Of cells that are not Null.
    qint32 integer(int row, int column) const { return at(column).integers[std::size_t(row)]; }
    double number(int row, int column) const { return at(column).numbers[std::size_t(row)]; }
    /// Valid until rows are added or taken away.
    std::string_view text(int row, int column) const {
        const Column &from = at(column);
        const std::size_t begin = row == 0 ? 0 : from.ends[std::size_t(row) - 1];
        return {from.texts.data() + begin, from.ends[std::size_t(row)] - begin};
    }
    QVariant cell(int row, int column) const;
    /// The description of the column's first UnreadableCell. Empty without one.
    QString unreadable(int column) const { return m_unreadable.value(column).description; }

private:
    struct Column {
        std::vector<quint8> isNull;
        // By the field's type one of these.
        std::vector<qint32> integers;
        std::vector<double> numbers;
        std::string texts;
        std::vector<std::size_t> ends; // of each row's text
    };

    struct FirstUnreadable {
        int row = 0;
        QString description;
    };

    Column &at(int column) { return m_columns[std::size_t(column)]; }
    const Column &at(int column) const { return m_columns[std::size_t(column)]; }

    FieldDefinitions m_fields;
    std::vector<Column> m_columns;
    QHash<int, FirstUnreadable> m_unreadable;
    int m_rows = 0;
};

/// Whether the type's cells are integers in TableColumns.
inline bool isKeptAsInteger(FieldType type) {
    return type == FieldType::Boolean || isIntegerType(type);
}
