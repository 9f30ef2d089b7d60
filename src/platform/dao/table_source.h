// Where a database's tables come from: an Access file, an SQLite file.
#pragma once

#include <functional>
#include <optional>

#include <QStringList>
#include <QVector>

#include "platform/dao/table_columns.h"

/// Called now and then while rows come into the columns: it may take them out.
using RowsArrived = std::function<void()>;

/// A column and the value that a row must hold in it: an integer for a Byte, Integer or Long column, a text
/// for a Text column, where capitals do not count (QString::compare). Null meets no condition. Names of
/// columns are not case sensitive.
struct ColumnCondition {
    QString column;
    QVariant value;
};

/// Raises 3343 when the file turns out to be damaged, whatever it is asked.
class TableSource {
public:
    virtual ~TableSource() = default;

    virtual QStringList tableNames() = 0;
    /// What has this name and is no table, in the middle of a sentence; nothing for nothing. Capitals do not
    /// count.
    virtual QString whatElse(const QString &) { return {}; }
    /// `table` as tableNames() spells it.
    virtual FieldDefinitions fields(const QString &table) = 0;
    /// Rows that the file says the table has: an estimate, good enough to choose a way of reading.
    virtual qint64 rowCount(const QString &table) = 0;
    /// Appends the rows, in the order of the file, to `rows`, which has the table's fields. What has come
    /// before an error stays there.
    virtual void readAll(const QString &table, TableColumns &rows, const RowsArrived &arrived = {}) = 0;
    /// The same for the rows that meet every one of `conditions`. Raises 3265 for an unknown
    /// column, 3421 for a column of another type or a value that is not of the column's kind.
    virtual void readMatching(const QString &table, const QVector<ColumnCondition> &conditions,
                              TableColumns &rows) = 0;
    /// Searches of the table by these columns are to be expected. Returns at once and raises nothing.
    virtual void lookAhead(const QString &, const QVector<int> &) {}
};
