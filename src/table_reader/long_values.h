// Values that do not lie in their row: memos.
#pragma once

#include <cstdint>
#include <vector>

#include "table_reader/access_file.h"
#include "table_reader/row.h"

class LongValues {
public:
    explicit LongValues(const AccessFile &file);

    /// A new reading begins: within one, all values together cannot be larger than the file.
    void restart() { m_read = 0; }
    /// The value that a Memo's cell holds or points at. Valid until the next call. Raises Damaged.
    CellBytes value(const CellBytes &cell);

private:
    CellBytes onePiece(std::uint32_t place, std::size_t size);
    CellBytes chain(std::uint32_t place, std::size_t size);
    /// `place` is a slot's number in the lowest byte and its page above.
    CellBytes piece(std::uint32_t place);

    bool m_jet3;
    Pages m_pages;
    std::uint64_t m_read = 0;
    std::vector<std::uint8_t> m_value;
};
