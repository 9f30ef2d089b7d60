// A page of rows, or of pieces of long values.
#pragma once

#include <cstddef>
#include <cstdint>

#include "table_reader/bytes.h"
#include "table_reader/damaged.h"

/// What a slot of the page points at.
struct Slot {
    const std::uint8_t *data = nullptr;
    std::size_t size = 0;
    /// Deleted, or the new place of a moved row, which is read by way of its old one.
    bool hidden = false;
    /// The row has moved: here stands only where to.
    bool moved = false;
};

class DataPage {
public:
    /// What the first byte of such a page says.
    static constexpr std::uint8_t Kind = 1;
    /// The owner of the pages of long values, which belong to no table.
    static constexpr std::uint32_t LongValues = 0x4c41564c; // "LVAL"

    /// Raises Damaged where the slots do not fit in the page.
    DataPage(const std::uint8_t *bytes, std::size_t size, bool jet3);

    /// Whether it is a page of the table with this definition page.
    bool belongsTo(std::uint32_t table) const { return kind() == Kind && owner() == table; }
    std::uint8_t kind() const { return m_bytes[0]; }
    std::uint32_t owner() const;
    std::size_t slots() const { return m_slots; }
    /// Raises Damaged for a slot that is none, or that points outside the page.
    Slot slot(std::size_t index) const;

private:
    static constexpr std::uint16_t HiddenFlag = 0x8000;
    static constexpr std::uint16_t MovedFlag = 0x4000;
    static constexpr std::uint16_t OffsetBits = 0x1fff;

    const std::uint8_t *m_bytes;
    std::size_t m_size;
    std::size_t m_slotTable;
    std::size_t m_slots = 0;
};

// Here, and always put in place, because a search asks for each of millions of rows.

[[gnu::always_inline]] inline Slot DataPage::slot(std::size_t index) const {
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
