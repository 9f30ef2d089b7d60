// Conditions on a table, checked against its columns.
#pragma once

#include <optional>

#include "platform/dao/table_source.h"

struct BoundCondition {
    qsizetype column = 0;
    bool isText = false;
    qint32 integer = 0;
    QString text;
};

/// Nothing where no row can meet them all: a Null, or an integer that no column can hold. Raises 3265 for an
/// unknown column, 3421 for a column of another type or a value that is not of the column's kind.
std::optional<QVector<BoundCondition>> bindConditions(const FieldDefinitions &fields,
                                                      const QVector<ColumnCondition> &conditions);

/// Whether the row holds the texts of the conditions.
bool meetsTexts(const TableColumns &rows, int row, const QVector<BoundCondition> &conditions);
