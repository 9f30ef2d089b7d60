// One table in memory: rows of a file's table, or of a query's result.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include <QCache>
#include <QHash>

#include "platform/dao/field_type.h"
#include "platform/dao/like_pattern.h"
#include "platform/dao/row_order.h"
#include "platform/dao/sql_text.h"
#include "platform/dao/table_columns.h"
#include "platform/dao/text_column.h"

class MemoryDatabase;

/// What a statement asks of the rows of one table: all conditions hold together.
struct RowFilter {
    struct Like {
        int column;
        LikePattern pattern;
    };
    std::vector<Like> likes;
    /// A condition on the table's row, under the name t0; without text there is none.
    SqlText condition;
};

/// A row is known by its identity, a number from 1 in the order in which the rows came. Rows are added, never
/// changed or taken away, so that an identity stays good.
class MemoryTable {
public:
    /// A stored table is Complete when it gets all its rows at once, Growing when they come key by key; a
    /// Result goes away with this object.
    enum class Kind { Complete, Growing, Result };

    MemoryTable(std::shared_ptr<MemoryDatabase> database, QByteArray sqlName, FieldDefinitions fields,
                Kind kind);
    ~MemoryTable();
    MemoryTable(const MemoryTable &) = delete;
    MemoryTable &operator=(const MemoryTable &) = delete;

    const QByteArray &sqlName() const { return m_sqlName; }
    const FieldDefinitions &fields() const { return m_fields; }
    Kind kind() const { return m_kind; }
    int rowCount() const { return m_rowCount; }

    /// Adds the rows that `read` appends: all of it, or nothing when it throws.
    void load(const std::function<void(TableColumns &rows)> &read);
    /// Adds the rows of a query of this database, in its order.
    void fill(const SqlText &query);
    /// Of a Growing table: the columns that its keys are made of. They order the rows as far as a statement
    /// does not, since the order in which the keys came is no property of the data.
    void setKey(const QVector<int> &columns);

    /// Row identities in the order that `order` gives, and where it leaves them alike in their own.
    std::vector<int> rows(const RowFilter &filter, const RowOrder &order);
    RowMarks marks(const RowFilter &filter);
    QVariant cell(int row, int column);
    /// Raises 3343 where a row holds an UnreadableCell in the column.
    void checkReadable(int column) const;

    /// The name of a column in SQL.
    static QByteArray columnName(int column);

private:
    void rowsAdded();
    const std::vector<int> &ordered(const RowOrder &order);
    void insertRows(const TableColumns &rows);
    std::vector<int> queriedRows(const SqlText &sql);
    const TextColumn &textColumn(int column);

    struct KeptTextColumn {
        TextColumn texts;
        QString regionalNotation;
    };

    std::shared_ptr<MemoryDatabase> m_database;
    QByteArray m_sqlName;
    FieldDefinitions m_fields;
    Kind m_kind;
    QByteArray m_keyNames;
    int m_rowCount = 0;
    /// Of a Complete table all rows; the others keep theirs in the database.
    TableColumns m_columns;
    /// The description of each column's first cell that cannot be read.
    QHash<int, QString> m_unreadable;
    QHash<QByteArray, std::vector<int>> m_orders;
    std::vector<std::optional<KeptTextColumn>> m_textColumns;
    QCache<int, QVector<QVariant>> m_rows;
};
