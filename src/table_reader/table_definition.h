// What a file says of one of its tables.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/dao/table_protocol.h"
#include "table_reader/cell_text.h"
#include "table_reader/pages.h"
#include "table_reader/stored_type.h"

struct Column {
    std::string name; // UTF-8
    TableProtocol::CellType type = TableProtocol::CellType::Memo;
    /// Characters of a Text.
    unsigned size = 0;
    StoredType storedType = StoredType::Memo;
    unsigned storedSize = 0;
    /// Of a Decimal, whose CellType is Double.
    unsigned precision = 0;
    unsigned scale = 0;
    /// The bit in a row's null mask.
    unsigned number = 0;
    bool fixed = false;
    unsigned fixedOffset = 0;
    unsigned variableIndex = 0;
};

/// What a definition says of its columns as a whole.
struct ColumnCounts {
    /// Columns that the table has ever had.
    std::size_t ever = 0;
    std::size_t variable = 0;
};

struct Table {
    std::string name; // UTF-8
    std::uint32_t rows = 0;
    std::uint32_t definitionPage = 0;
    /// Whether its rows have a section of variable length.
    bool hasVariablePart = false;
    ColumnCounts counts;
    /// In the order of their numbers.
    std::vector<Column> columns;
    /// The map of the pages that belong to the table.
    std::vector<std::uint8_t> usageMap;
};

/// Of everything but its name. Raises Damaged for a definition that is none, or that contradicts itself.
Table readDefinition(Pages &pages, std::uint32_t page, const CellText &texts, bool jet3);
