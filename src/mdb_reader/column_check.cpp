#include "mdb_reader/column_check.h"

#include <set>

#include "mdb_reader/damaged.h"

namespace {

constexpr int LargeNumber = 0x13; // of later versions than libmdb names
constexpr unsigned AnySize = ~0u;

/// The bytes that a value of this type takes in a row; a Boolean is a bit elsewhere.
unsigned sizeOf(int storedType) {
    switch (storedType) {
    case MDB_BOOL:
        return 0;
    case MDB_BYTE:
        return 1;
    case MDB_INT:
        return 2;
    case MDB_LONGINT:
    case MDB_FLOAT:
        return 4;
    case MDB_MONEY:
    case MDB_DOUBLE:
    case MDB_DATETIME:
    case LargeNumber:
        return 8;
    case MDB_REPID:
        return 16;
    case MDB_NUMERIC:
        return 17;
    case MDB_BINARY:
    case MDB_TEXT:
    case MDB_OLE:
    case MDB_MEMO:
    case MDB_COMPLEX:
        return AnySize;
    default:
        throw Damaged("column of no known type");
    }
}

} // namespace

void checkColumns(const Table &table, const ColumnCounts &counts) {
    std::set<unsigned> numbers;
    std::set<unsigned> variables;
    std::set<std::size_t> taken; // bytes of the fixed part
    for (const Column &column : table.columns) {
        const unsigned size = sizeOf(column.storedType);
        if (column.number >= counts.ever || !numbers.insert(column.number).second)
            throw Damaged("column out of place");
        if (size == 0) continue;
        if (size != AnySize && size != column.storedSize) throw Damaged("column of a wrong size");
        if (!column.fixed) {
            if (column.variableIndex >= counts.variable || !variables.insert(column.variableIndex).second)
                throw Damaged("column out of place");
            continue;
        }
        for (std::size_t i = 0; i < column.storedSize; ++i)
            if (!taken.insert(column.fixedOffset + i).second) throw Damaged("columns over one another");
    }
}
