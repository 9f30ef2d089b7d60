// The types of columns, as a table's definition numbers them.
#pragma once

#include <cstdint>

/// Those that are read; a definition can hold any other number, too.
enum class StoredType : std::uint8_t {
    Boolean = 1,
    Byte,
    Integer,
    Long,
    Money,
    Single,
    Double,
    Date,
    Text = 10,
    Memo = 12,
    Decimal = 16,
};
