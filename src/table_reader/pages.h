// Pages of the open file, with their cipher taken off.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "table_reader/access_header.h"

/// A table's pages mostly follow one another, so a run of them is read ahead; a page out of order is read
/// alone.
class Pages {
public:
    /// `header` is that of the open file.
    Pages(const AccessHeader &header, int file);

    std::size_t pageSize() const { return m_pageSize; }
    std::uint32_t count() const { return m_count; }

    /// Valid until the next call. Raises Damaged for a page that the file does not have.
    const std::uint8_t *at(std::uint32_t page);

private:
    void readRun(std::uint32_t page);
    void decipher();

    int m_file;
    std::uint32_t m_key;
    std::size_t m_pageSize;
    std::uint32_t m_count = 0;
    std::uint32_t m_first = 0; // the run in m_bytes
    std::uint32_t m_held = 0;
    std::vector<std::uint8_t> m_bytes;
};
