#include "mdb_reader/row.h"

#include "mdb_reader/bytes.h"
#include "mdb_reader/damaged.h"

Row::Row(const std::uint8_t *data, std::size_t size, const Table &table, bool jet3)
    : m_data(data)
    , m_jet3(jet3) {
    const std::size_t word = jet3 ? 1 : 2;
    if (size < word) throw Damaged("row without a head");
    m_columns = jet3 ? data[0] : bytes::u16(data);
    const std::size_t maskSize = (m_columns + 7) / 8;
    if (size < word + maskSize + (table.hasVariablePart ? word : 0)) throw Damaged("row too short");
    m_mask = size - maskSize;
    if (!table.hasVariablePart) return;

    m_variables = jet3 ? data[m_mask - 1] : bytes::u16(data + m_mask - 2);
    const std::size_t jumps = jet3 ? (size - 1) / 256 : 0;
    const std::size_t behindCells = jumps + (m_variables + 2) * word;
    if (m_mask < word + behindCells) throw Damaged("row too short");
    m_offsets = m_mask - 2 * word - jumps;
    // The number of jumps goes by the size of the whole row; where the cells alone need one fewer, the last
    // is a dummy.
    m_jumps = jumps > 0 && (m_mask - behindCells) / 256 < jumps ? jumps - 1 : jumps;
}

CellBytes Row::cell(const Column &column) const {
    std::size_t begin = 0;
    std::size_t end = 0;
    if (column.fixed) {
        begin = (m_jet3 ? 1 : 2) + column.fixedOffset;
        end = begin + column.storedSize;
    } else {
        if (column.variableIndex >= m_variables) return {};
        begin = offset(column.variableIndex);
        end = offset(column.variableIndex + 1);
    }
    if (begin > end || end > m_mask) throw Damaged("cell outside its row");
    return {m_data + begin, end - begin};
}

std::size_t Row::offset(std::size_t index) const {
    if (!m_jet3) return bytes::u16(m_data + m_offsets - 2 * index);
    std::size_t passed = 0;
    while (passed < m_jumps && index >= m_data[m_mask - 2 - passed])
        ++passed;
    return m_data[m_offsets - index] + passed * 256;
}
