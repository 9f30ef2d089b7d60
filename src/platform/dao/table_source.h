// Where a database's tables come from: an Access file, an SQLite file.
#pragma once

#include <functional>
#include <optional>

#include <QStringList>
#include <QVariant>
#include <QVector>

#include "platform/dao/field_type.h"

/// One row, in the order of the table's definition. The sink is called for each row in the order of the file.
using RowSink = std::function<void(const QVector<QVariant> &row)>;

/// Stands in a row for a value that is there and cannot be handed over. It does no harm until somebody asks
/// for its column: then 3343 is raised with this description, which names table and column.
struct UnreadableCell {
    QString description;
};
Q_DECLARE_METATYPE(UnreadableCell)

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
    virtual void readAll(const QString &table, const RowSink &sink) = 0;
    /// The rows that meet every one of `conditions`, in the order of the file. Raises 3265 for an unknown
    /// column, 3421 for a column of another type or a value that is not of the column's kind.
    virtual void readMatching(const QString &table, const QVector<ColumnCondition> &conditions,
                              const RowSink &sink) = 0;
};
