// One stored row: where its cells lie.
#pragma once

#include <cstddef>
#include <cstdint>

#include "mdb_reader/access_file.h"

/// The bytes of one cell.
struct CellBytes {
    const std::uint8_t *data = nullptr;
    std::size_t size = 0;
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
