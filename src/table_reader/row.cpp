#include "table_reader/row.h"

std::size_t Row::offset(std::size_t index) const {
    if (!m_jet3) return bytes::u16(m_data + m_offsets - 2 * index);
    std::size_t passed = 0;
    while (passed < m_jumps && index >= m_data[m_mask - 2 - passed])
        ++passed;
    return m_data[m_offsets - index] + passed * 256;
}
