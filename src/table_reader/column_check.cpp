#include "table_reader/column_check.h"

#include <set>

#include "table_reader/damaged.h"

namespace {

constexpr unsigned AnySize = ~0u;
constexpr unsigned MostDigits = 28;

/// The bytes that a value takes in a row; a Boolean is a bit elsewhere.
unsigned sizeOf(const Column &column) {
    if (column.type == TableProtocol::CellType::Unsupported) return AnySize;
    switch (column.storedType) {
    case StoredType::Boolean:
        return 0;
    case StoredType::Byte:
        return 1;
    case StoredType::Integer:
        return 2;
    case StoredType::Long:
    case StoredType::Single:
        return 4;
    case StoredType::Money:
    case StoredType::Double:
    case StoredType::Date:
        return 8;
    case StoredType::Decimal:
        return 17;
    default:
        return AnySize;
    }
}

} // namespace

void checkColumns(const Table &table) {
    std::set<unsigned> numbers;
    std::set<unsigned> variables;
    std::set<std::size_t> taken; // bytes of the fixed part
    for (const Column &column : table.columns) {
        const unsigned size = sizeOf(column);
        if (column.number >= table.counts.ever || !numbers.insert(column.number).second)
            throw Damaged("column out of place");
        if (size == 0) continue;
        if (size != AnySize && size != column.storedSize) throw Damaged("column of a wrong size");
        if (column.storedType == StoredType::Decimal &&
            (column.precision > MostDigits || column.scale > column.precision))
            throw Damaged("decimal of absurd size");
        if (!column.fixed) {
            if (column.variableIndex >= table.counts.variable ||
                !variables.insert(column.variableIndex).second)
                throw Damaged("column out of place");
            continue;
        }
        for (std::size_t i = 0; i < column.storedSize; ++i)
            if (!taken.insert(column.fixedOffset + i).second) throw Damaged("columns over one another");
    }
}
