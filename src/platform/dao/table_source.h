// Where a database's tables come from: an Access file, an SQLite file.
#pragma once

#include <functional>
#include <optional>

#include <QStringList>
#include <QVariant>

#include "platform/dao/field_type.h"

/// One row, in the order of the table's definition. The sink is called for each row in the order of the file.
using RowSink = std::function<void(const QVector<QVariant> &row)>;

/// Raises 3343 when the file turns out to be damaged, whatever it is asked.
class TableSource {
public:
    virtual ~TableSource() = default;

    virtual QStringList tableNames() = 0;
    /// `table` as tableNames() spells it.
    virtual FieldDefinitions fields(const QString &table) = 0;
    /// Rows that the file says the table has: an estimate, good enough to choose a way of reading.
    virtual qint64 rowCount(const QString &table) = 0;
    virtual void readAll(const QString &table, const RowSink &sink) = 0;
    /// The rows whose integer column `column` holds `key`.
    virtual void readKey(const QString &table, const QString &column, int key, const RowSink &sink) = 0;
};
