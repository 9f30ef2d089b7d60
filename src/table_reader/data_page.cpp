#include "table_reader/data_page.h"

#include "table_reader/bytes.h"
#include "table_reader/damaged.h"

namespace {
constexpr std::uint16_t HiddenFlag = 0x8000;
constexpr std::uint16_t MovedFlag = 0x4000;
constexpr std::uint16_t OffsetBits = 0x1fff;
} // namespace

DataPage::DataPage(const std::uint8_t *data, std::size_t size, bool jet3)
    : m_bytes(data)
    , m_size(size)
    , m_slotTable(jet3 ? 10 : 14) {
    if (kind() != Kind) return;
    m_slots = bytes::u16(data + m_slotTable - 2);
    if (m_slotTable + 2 * m_slots > size) throw Damaged("page with too many rows");
}

std::uint32_t DataPage::owner() const {
    return bytes::u32(m_bytes + 4);
}

Slot DataPage::slot(std::size_t index) const {
    if (index >= m_slots) throw Damaged("row that is not in its page");
    // Rows are laid from the end of the page towards its front, so that each ends where the one before
    // begins.
    const std::uint16_t stored = bytes::u16(m_bytes + m_slotTable + 2 * index);
    const std::size_t begin = stored & OffsetBits;
    const std::size_t end =
        index == 0 ? m_size : bytes::u16(m_bytes + m_slotTable + 2 * (index - 1)) & OffsetBits;
    if (begin > end || end > m_size || begin < m_slotTable + 2 * m_slots)
        throw Damaged("row outside its page");
    return {m_bytes + begin, end - begin, (stored & HiddenFlag) != 0, (stored & MovedFlag) != 0};
}
