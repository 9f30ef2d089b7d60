#include "table_reader/table_definition.h"

#include <algorithm>

#include "table_reader/bytes.h"
#include "table_reader/column_check.h"
#include "table_reader/damaged.h"
#include "table_reader/data_page.h"
#include "table_reader/definition_bytes.h"
#include "table_reader/name_text.h"

using TableProtocol::CellType;

namespace {

/// Where things stand: in the definition, and in the entry of a column.
struct DefinitionLayout {
    std::size_t rows;
    std::size_t counts; // of columns: ever, variable, present
    std::size_t indexes;
    std::size_t usageMap;
    std::size_t head; // its size; then come the indexes, the columns' entries and their names
    std::size_t indexEntry;
    std::size_t columnEntry;
    std::size_t columnNumber;
    std::size_t variableIndex;
    std::size_t flags;
    std::size_t fixedOffset;
    std::size_t columnSize;
    std::size_t nameLength; // bytes of it
};
constexpr DefinitionLayout Jet3Layout = {12, 21, 31, 35, 43, 8, 18, 1, 3, 13, 14, 16, 1};
constexpr DefinitionLayout Jet4Layout = {16, 41, 51, 55, 63, 12, 25, 5, 7, 15, 21, 23, 2};

// Known to Jet 4 alone.
constexpr std::size_t PrecisionOffset = 11;
constexpr std::size_t ScaleOffset = 12;
constexpr std::size_t FurtherFlagsOffset = 16;

constexpr std::uint8_t FixedFlag = 0x01;
constexpr std::uint8_t CalculatedFlags = 0xc0; // its values are stored behind a head, whatever their type

constexpr std::size_t MostColumns = 255;

CellType cellType(StoredType type) {
    switch (type) {
    case StoredType::Boolean:
        return CellType::Boolean;
    case StoredType::Byte:
        return CellType::Byte;
    case StoredType::Integer:
        return CellType::Integer;
    case StoredType::Long:
        return CellType::Long;
    case StoredType::Money:
        return CellType::Currency;
    case StoredType::Single:
        return CellType::Single;
    case StoredType::Double:
    case StoredType::Decimal:
        return CellType::Double;
    case StoredType::Date:
        return CellType::Date;
    case StoredType::Text:
        return CellType::Text;
    case StoredType::Memo:
        return CellType::Memo;
    }
    return CellType::Unsupported;
}

Column readColumn(const std::uint8_t *entry, const DefinitionLayout &layout, bool jet3) {
    Column column;
    column.storedType = static_cast<StoredType>(entry[0]);
    column.type = cellType(column.storedType);
    column.number = bytes::u16(entry + layout.columnNumber);
    column.variableIndex = bytes::u16(entry + layout.variableIndex);
    column.fixed = (entry[layout.flags] & FixedFlag) != 0;
    column.fixedOffset = bytes::u16(entry + layout.fixedOffset);
    if (column.storedType != StoredType::Boolean) column.storedSize = bytes::u16(entry + layout.columnSize);
    if (column.type == CellType::Text) column.size = jet3 ? column.storedSize : column.storedSize / 2;
    if (jet3) {
        // It has no Decimal: nobody knows where it would keep the scale.
        if (column.storedType == StoredType::Decimal) column.type = CellType::Unsupported;
        return column;
    }
    column.precision = entry[PrecisionOffset];
    column.scale = entry[ScaleOffset];
    if ((entry[FurtherFlagsOffset] & CalculatedFlags) == CalculatedFlags) column.type = CellType::Unsupported;
    return column;
}

std::vector<std::uint8_t> readMap(Pages &pages, std::uint32_t place, bool jet3) {
    const DataPage page(pages.at(place >> 8), pages.pageSize(), jet3);
    const Slot slot = page.slot(place & 0xff);
    return {slot.data, slot.data + slot.size};
}

} // namespace

Table readDefinition(Pages &pages, std::uint32_t page, const CellText &texts, bool jet3) {
    const DefinitionLayout &layout = jet3 ? Jet3Layout : Jet4Layout;
    DefinitionBytes definition(pages, page);
    Table table;
    table.definitionPage = page;
    table.rows = bytes::u32(definition.at(layout.rows, 4));
    const std::uint8_t *counts = definition.at(layout.counts, 6);
    table.counts = {bytes::u16(counts), bytes::u16(counts + 2)};
    table.hasVariablePart = table.counts.variable > 0;
    const std::size_t columns = bytes::u16(counts + 4);
    if (columns == 0 || columns > MostColumns) throw Damaged("table of absurd width");
    const std::uint32_t usageMap = bytes::u32(definition.at(layout.usageMap, 4));

    std::size_t at = layout.head + layout.indexEntry * bytes::u32(definition.at(layout.indexes, 4));
    for (std::size_t i = 0; i < columns; ++i, at += layout.columnEntry)
        table.columns.push_back(readColumn(definition.at(at, layout.columnEntry), layout, jet3));
    std::u16string name;
    for (Column &column : table.columns) {
        const std::uint8_t *length = definition.at(at, layout.nameLength);
        const std::size_t size = layout.nameLength == 1 ? *length : bytes::u16(length);
        at += layout.nameLength;
        texts.decode(definition.at(at, size), size, name);
        column.name = nameOf(name);
        at += size;
    }
    std::sort(table.columns.begin(), table.columns.end(),
              [](const Column &a, const Column &b) { return a.number < b.number; });
    checkColumns(table);
    table.usageMap = readMap(pages, usageMap, jet3);
    return table;
}
