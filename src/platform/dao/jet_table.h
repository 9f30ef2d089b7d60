// A table as a statement sees it.
#pragma once

#include <memory>

#include "platform/dao/field_type.h"
#include "platform/dao/memory_table.h"

struct JetTable {
    /// What its columns may be qualified with.
    QString name;
    std::shared_ptr<MemoryTable> table;
    FieldDefinitions fields;
    /// The column in memory of each field.
    QVector<int> columns;

    static JetTable whole(const QString &name, std::shared_ptr<MemoryTable> table);
};
