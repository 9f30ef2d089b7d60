// What a recordset reads from: the rows of one query, by position.
#pragma once

#include <QString>
#include <QVariant>

#include "platform/dao/field_type.h"

/// Shared by a recordset and its clones.
class RecordsetRows {
public:
    virtual ~RecordsetRows() = default;

    virtual const FieldDefinitions &fields() const = 0;
    virtual int count() const = 0;
    /// `row` and `column` count from 0 and are within bounds.
    virtual QVariant value(int row, int column) const = 0;
    /// Raises 3343 where a value of the column cannot be handed over.
    virtual void checkReadable(int) const {}
    /// The first matching row of `from`, `from` + `step`, ... (`step` is 1 or -1), or -1. Raises 3077 for a
    /// condition that is no SQL, 3070 for one with an unknown column.
    virtual int find(const QString &criterion, int from, int step) const = 0;
};
