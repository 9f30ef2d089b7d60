#include "table_reader/data_page.h"

#include "table_reader/bytes.h"
#include "table_reader/damaged.h"

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
