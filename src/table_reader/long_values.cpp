#include "table_reader/long_values.h"

#include <algorithm>

#include "table_reader/bytes.h"
#include "table_reader/damaged.h"
#include "table_reader/data_page.h"

namespace {
constexpr std::size_t HeadSize = 12;
constexpr std::uint32_t InRowFlag = 0x80000000;
constexpr std::uint32_t OnePieceFlag = 0x40000000;
} // namespace

LongValues::LongValues(const AccessFile &file)
    : m_jet3(file.isJet3())
    , m_pages(file.pages()) {}

CellBytes LongValues::value(const CellBytes &cell) {
    if (cell.size == 0) return cell;
    if (cell.size < HeadSize) throw Damaged("long value without a head");
    const std::uint32_t head = bytes::u32(cell.data);
    const std::size_t size = head & ~(InRowFlag | OnePieceFlag);
    if ((head & InRowFlag) != 0) {
        if (size > cell.size - HeadSize) throw Damaged("long value cut off");
        return {cell.data + HeadSize, size};
    }
    m_read += size;
    if (m_read > std::uint64_t(m_pages.count()) * m_pages.pageSize())
        throw Damaged("long values of absurd size");
    const std::uint32_t place = bytes::u32(cell.data + 4);
    return (head & OnePieceFlag) != 0 ? onePiece(place, size) : chain(place, size);
}

CellBytes LongValues::onePiece(std::uint32_t place, std::size_t size) {
    const CellBytes whole = piece(place);
    if (whole.size < size) throw Damaged("long value cut off");
    return {whole.data, size};
}

CellBytes LongValues::chain(std::uint32_t place, std::size_t size) {
    m_value.clear();
    while (m_value.size() < size) {
        const CellBytes next = piece(place);
        if (next.size <= 4) throw Damaged("long value cut off");
        const std::size_t wanted = std::min(next.size - 4, size - m_value.size());
        m_value.insert(m_value.end(), next.data + 4, next.data + 4 + wanted);
        place = bytes::u32(next.data);
    }
    return {m_value.data(), m_value.size()};
}

CellBytes LongValues::piece(std::uint32_t place) {
    const DataPage page(m_pages.at(place >> 8), m_pages.pageSize(), m_jet3);
    if (!page.belongsTo(DataPage::LongValues)) throw Damaged("long value outside its pages");
    const Slot slot = page.slot(place & 0xff);
    return {slot.data, slot.size};
}
