// One stored row: where its cells lie.
#pragma once

#include <cstddef>
#include <cstdint>

#include "table_reader/access_file.h"
#include "table_reader/bytes.h"
#include "table_reader/damaged.h"

/// The bytes of one cell.
struct CellBytes {
    const std::uint8_t *data = nullptr;
    std::size_t size = 0;
};

/// Columns of variable size that lie side by side in every row.
struct ColumnRun {
    std::size_t firstIndex = 0; // among the cells of variable size
    std::size_t count = 0;      // none: there is no run
    std::size_t maskByte = 0;   // where all of their bits are
    std::uint8_t maskBits = 0;
    std::size_t lastNumber = 0;

    /// Where each cell begins and the last one ends, two bytes for each.
    std::size_t offsetsSize() const { return 2 * (count + 1); }
};

/// Looks no further into the row than it is asked for: a search reads one column of many rows.
///
/// A row is the number of its columns, the cells of fixed size, those of variable size, the table of these
/// ones' offsets from last to first, their number, and a bit for each column that is set where the column is
/// not Null. A number is a byte in Jet 3, two in Jet 4; a one-byte offset needs a table of jumps, which
/// stands behind the offsets.
class Row {
public:
    /// `data` stays the caller's. Raises Damaged.
    Row(const std::uint8_t *data, std::size_t size, const Table &table, bool jet3);

    /// The bit that says "not Null", and for a Boolean is the value. Clear for a column younger than the row.
    bool bit(const Column &column) const {
        return column.number < m_columns &&
               (m_data[m_mask + column.number / 8] >> column.number % 8 & 1) != 0;
    }
    /// For a column whose bit is set. Raises Damaged where the cell does not lie within the row. A null
    /// `data` where the row is older than the column.
    CellBytes cell(const Column &column) const;

    /// Whether none of the run's cells is Null, and all are there. In Jet 4 only, as what follows.
    [[gnu::always_inline]] bool isWhole(const ColumnRun &run) const {
        return run.lastNumber < m_columns && run.firstIndex + run.count <= m_variables &&
               (m_data[m_mask + run.maskByte] & run.maskBits) == run.maskBits;
    }
    /// The stored offsets of a whole run. From last to first.
    [[gnu::always_inline]] const std::uint8_t *offsets(const ColumnRun &run) const {
        return m_data + m_offsets - 2 * (run.firstIndex + run.count);
    }
    /// The cells of a whole run as one piece. Raises Damaged.
    [[gnu::always_inline]] CellBytes cells(const ColumnRun &run) const {
        const std::size_t begin = bytes::u16(m_data + m_offsets - 2 * run.firstIndex);
        const std::size_t end = bytes::u16(offsets(run));
        if (begin > end || end > m_mask) throw Damaged("cell outside its row");
        return {m_data + begin, end - begin};
    }

private:
    std::size_t offset(std::size_t index) const;

    const std::uint8_t *m_data;
    bool m_jet3;
    std::size_t m_columns;
    std::size_t m_mask;          // where the bits begin
    std::size_t m_variables = 0; // cells of variable size
    std::size_t m_offsets = 0;   // where the first cell's offset stands
    std::size_t m_jumps = 0;     // one-byte offsets start again from zero so often
};

// Here, because a search makes millions of rows and asks each for one cell. The compiler is not asked
// whether: it weighs the program as a whole, and a search got half as slow again by what was added elsewhere.

[[gnu::always_inline]] inline Row::Row(const std::uint8_t *data, std::size_t size, const Table &table,
                                       bool jet3)
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

[[gnu::always_inline]] inline CellBytes Row::cell(const Column &column) const {
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
