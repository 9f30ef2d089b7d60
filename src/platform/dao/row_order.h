// The order of a table's rows, by plain columns without SQL.
#pragma once

#include <optional>
#include <vector>

#include "platform/dao/sql_text.h"
#include "platform/dao/table_columns.h"

struct ColumnOrder {
    int column = 0;
    bool descending = false;
};

/// The terms of an ORDER BY.
struct RowOrder {
    SqlText sql;
    /// The same, where each term is a column of the table.
    std::optional<std::vector<ColumnOrder>> columns;
};

/// The rows' identities, from 1, as SQL orders them: texts without regard to capitals, Null before all
/// others, and rows that are alike as they came.
std::vector<int> orderedRows(const TableColumns &table, const std::vector<ColumnOrder> &order);
