#include "table_reader/table_scan.h"

#include "table_reader/bytes.h"
#include "table_reader/damaged.h"
#include "table_reader/definition_bytes.h"

namespace {

constexpr int MostMoves = 16;
// Between the two are two kinds of index.
constexpr std::uint8_t FirstOtherKind = DefinitionBytes::Kind;
constexpr std::uint8_t LastOtherKind = AccessFile::MapKind;

std::uint32_t newPlace(const Slot &slot) {
    if (slot.size < 4) throw Damaged("moved row without a place");
    return bytes::u32(slot.data);
}

} // namespace

TableScan::TableScan(const AccessFile &file, const Table &table)
    : m_table(table)
    , m_jet3(file.isJet3())
    , m_pages(file.pages())
    , m_movedRows(file.pages())
    , m_owned(file.pagesOf(table)) {}

bool TableScan::isOurs(const DataPage &page) {
    if (page.belongsTo(m_table.definitionPage)) return true;
    // A map can list a page that has gone to another use. Any other page has lost this table's rows.
    if (!hasOtherUse(page)) throw Damaged("page that is nobody's");
    return false;
}

bool TableScan::hasOtherUse(const DataPage &page) {
    if (page.kind() != DataPage::Kind) return page.kind() >= FirstOtherKind && page.kind() <= LastOtherKind;
    return page.owner() == DataPage::LongValues || m_movedRows.at(page.owner())[0] == DefinitionBytes::Kind;
}

Row TableScan::follow(const Slot &moved) {
    std::uint32_t place = newPlace(moved);
    for (int moves = 0; moves < MostMoves; ++moves) {
        const DataPage page(m_movedRows.at(place >> 8), m_movedRows.pageSize(), m_jet3);
        if (!page.belongsTo(m_table.definitionPage)) throw Damaged("row moved out of its table");
        const Slot slot = page.slot(place & 0xff);
        if (!slot.moved) return Row(slot.data, slot.size, m_table, m_jet3);
        place = newPlace(slot);
    }
    throw Damaged("row that moves in a circle");
}
