// The bytes of a table's definition, which goes on from page to page.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "table_reader/pages.h"

/// Goes no further along the chain of pages than it is asked for.
class DefinitionBytes {
public:
    /// What the first byte of such a page says.
    static constexpr std::uint8_t Kind = 2;

    /// Raises Damaged where no definition begins.
    DefinitionBytes(Pages &pages, std::uint32_t page);

    /// Valid until the next call. Raises Damaged where the definition ends before.
    const std::uint8_t *at(std::uint64_t offset, std::size_t size);

private:
    void addPage(std::size_t headSize);

    Pages &m_pages;
    std::uint32_t m_next;
    std::vector<std::uint8_t> m_content;
};
