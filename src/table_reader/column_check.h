// Whether a table's definition can be true.
#pragma once

#include <cstddef>

#include "table_reader/access_file.h"

/// What the definition says of its columns as a whole.
struct ColumnCounts {
    /// Columns that the table has ever had.
    std::size_t ever = 0;
    std::size_t variable = 0;
};

/// A definition that contradicts itself would have every row of the table misread, and none of them would
/// show it. Raises Damaged.
void checkColumns(const Table &table, const ColumnCounts &counts);
