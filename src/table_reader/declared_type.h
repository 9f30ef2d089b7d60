// What a column of an SQLite file is declared as.
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/dao/table_protocol.h"

struct DeclaredType {
    TableProtocol::CellType type = TableProtocol::CellType::Text;
    /// Characters of a Text, else 0.
    std::uint16_t size = 0;
};

/// "TEXT(80)", "varchar ( 20 )", "Yes/No", "LONG INTEGER", "datetime", ... An unknown type is a Text of 255
/// characters.
DeclaredType declaredType(std::string_view declaration);
