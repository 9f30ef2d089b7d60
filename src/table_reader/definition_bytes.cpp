#include "table_reader/definition_bytes.h"

#include "table_reader/bytes.h"
#include "table_reader/damaged.h"

namespace {
constexpr std::size_t NextPageOffset = 4;
constexpr std::size_t HeadOfFurtherPage = 8;
/// Of 255 columns and more indexes than a table can have; a chain of pages can be a circle.
constexpr std::uint64_t LongestDefinition = 1u << 20;
} // namespace

DefinitionBytes::DefinitionBytes(Pages &pages, std::uint32_t page)
    : m_pages(pages)
    , m_next(page) {
    addPage(0);
}

const std::uint8_t *DefinitionBytes::at(std::uint64_t offset, std::size_t size) {
    if (offset > LongestDefinition || size > LongestDefinition - offset)
        throw Damaged("definition of absurd size");
    while (m_content.size() < offset + size)
        addPage(HeadOfFurtherPage);
    return m_content.data() + offset;
}

/// The last page's successor is page 0, which is none of a definition.
void DefinitionBytes::addPage(std::size_t headSize) {
    const std::uint8_t *page = m_pages.at(m_next);
    if (page[0] != Kind) throw Damaged("unreadable table definition");
    m_next = bytes::u32(page + NextPageOffset);
    m_content.insert(m_content.end(), page + headSize, page + m_pages.pageSize());
}
