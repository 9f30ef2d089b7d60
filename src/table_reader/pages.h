// Pages of the open file, with their cipher taken off.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include <mdbtools.h>

/// A table's pages mostly follow one another, so a run of them is read ahead; a page out of order is read
/// alone.
class Pages {
public:
    /// `file` is a descriptor of the file that `handle` has open.
    Pages(MdbHandle *handle, int file);

    std::size_t pageSize() const { return m_pageSize; }
    std::uint32_t count() const { return m_count; }

    /// Valid until the next call. Raises Damaged for a page that the file does not have.
    const std::uint8_t *at(std::uint32_t page);

private:
    void readDeciphered(std::uint32_t page);
    void readRun(std::uint32_t page);

    MdbHandle *m_handle;
    int m_file;
    std::size_t m_pageSize;
    std::uint32_t m_count = 0;
    std::uint32_t m_first = 0; // the run in m_bytes
    std::uint32_t m_held = 0;
    std::vector<std::uint8_t> m_bytes;
};
