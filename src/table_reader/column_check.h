// Whether a table's definition can be true.
#pragma once

#include "table_reader/table_definition.h"

/// A definition that contradicts itself would have every row of the table misread, and none of them would
/// show it. Raises Damaged.
void checkColumns(const Table &table);
