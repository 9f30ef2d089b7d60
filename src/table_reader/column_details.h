// What a table's definition says of its columns and libmdb does not hand on, or hands on under a wrong name.
#pragma once

#include <cstdint>
#include <map>

#include "table_reader/pages.h"

struct ColumnDetails {
    /// Of a Decimal: all its digits, and those behind the decimal sign.
    unsigned precision = 0;
    unsigned scale = 0;
    /// Its values are stored behind a head, whatever their type.
    bool calculated = false;
};

/// By the columns' numbers, for a Jet 4 file: Jet 3 knows nothing of the kind. Raises Damaged.
std::map<unsigned, ColumnDetails> columnDetails(Pages &pages, std::uint32_t definitionPage,
                                                const MdbFormatConstants &format);
