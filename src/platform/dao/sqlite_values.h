// Values as an SQLite file stores them, and what their columns' types make of them.
#pragma once

#include "platform/dao/bound_condition.h"
#include "platform/dao/frame_reader.h"

/// What the description of a value that cannot be read names.
struct StoredPlace {
    QString path;
    QString table;
};

/// Appends the rows of a StoredRows frame, of which those stay that meet the conditions on texts. A value
/// that its column's type cannot hold is an UnreadableCell: a text that is no number among numbers, a blob, a
/// text of many megabytes. A date is a text of the ISO form or a number of days since 1899-12-30. Raises
/// MalformedFrame.
void readStoredRows(FrameReader &frame, TableColumns &rows, const QVector<BoundCondition> &conditions,
                    const StoredPlace &place);
