// The texts by which a row was compared last: rows of one key mostly follow one another.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <vector>

#include "table_reader/condition.h"
#include "table_reader/row.h"

/// Knows a row with the same texts without a look at each of its cells, where the columns lie side by side
/// in the rows, as those of a composition's key do. Elsewhere it knows none.
class LastKey {
public:
    /// Of the columns of these conditions, in Jet 4. Forgets the last row.
    void start(const Table &table, bool jet3, const std::vector<Condition> &conditions);

    /// Whether the row's cells are there, and the last one's. Raises Damaged.
    [[gnu::always_inline]] bool isOf(const Row &row) const {
        if (m_cells.empty() || !row.isWhole(m_run)) return false;
        if (!isSame(row.offsets(m_run), m_offsets)) return false;
        const CellBytes cells = row.cells(m_run);
        return cells.size == m_cells.size() && isSame(cells.data, m_cells);
    }
    /// The row is the last one from now on. Its cells lie within it.
    void take(const Row &row);

private:
    /// A few bytes, in place: a call takes longer than they do.
    [[gnu::always_inline]] static bool isSame(const std::uint8_t *data,
                                              const std::vector<std::uint8_t> &other) {
        constexpr std::size_t Step = sizeof(std::uint64_t);
        const std::uint8_t *const with = other.data();
        const std::size_t size = other.size();
        if (size < Step) return std::equal(other.begin(), other.end(), data);
        for (std::size_t at = 0; at + Step < size; at += Step)
            if (word(data + at) != word(with + at)) return false;
        return word(data + size - Step) == word(with + size - Step);
    }
    [[gnu::always_inline]] static std::uint64_t word(const std::uint8_t *at) {
        std::uint64_t word = 0;
        std::memcpy(&word, at, sizeof word);
        return word;
    }

    ColumnRun m_run;
    std::vector<std::uint8_t> m_offsets;
    std::vector<std::uint8_t> m_cells;
};
