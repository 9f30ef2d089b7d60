#include "table_reader/column_details.h"

#include "table_reader/bytes.h"
#include "table_reader/damaged.h"

namespace {

constexpr std::size_t PrecisionOffset = 11;
constexpr std::size_t ScaleOffset = 12;
constexpr std::size_t FlagsOffset = 16;
constexpr std::uint8_t CalculatedFlags = 0xc0;

constexpr std::size_t NextPageOffset = 4;
constexpr std::size_t HeadOfFurtherPage = 8;

/// The first `size` bytes of a definition, which goes on in further pages.
std::vector<std::uint8_t> definitionBytes(Pages &pages, std::uint32_t page, std::uint64_t size) {
    if (size > std::uint64_t(pages.count()) * pages.pageSize()) throw Damaged("definition of absurd size");
    const std::uint8_t *at = pages.at(page);
    std::vector<std::uint8_t> content(at, at + pages.pageSize());
    while (content.size() < size) {
        at = pages.at(bytes::u32(at + NextPageOffset));
        content.insert(content.end(), at + HeadOfFurtherPage, at + pages.pageSize());
    }
    return content;
}

} // namespace

std::map<unsigned, ColumnDetails> columnDetails(Pages &pages, std::uint32_t definitionPage,
                                                const MdbFormatConstants &format) {
    const std::uint8_t *head = pages.at(definitionPage);
    const std::size_t columns = bytes::u16(head + format.tab_num_cols_offset);
    const std::uint64_t indexes = bytes::u32(head + format.tab_num_ridxs_offset);
    const std::uint64_t begin = format.tab_cols_start_offset + indexes * format.tab_ridx_entry_size;
    const std::vector<std::uint8_t> definition =
        definitionBytes(pages, definitionPage, begin + columns * format.tab_col_entry_size);
    std::map<unsigned, ColumnDetails> details;
    for (std::size_t i = 0; i < columns; ++i) {
        const std::uint8_t *entry = definition.data() + begin + i * format.tab_col_entry_size;
        details[entry[format.col_num_offset]] = {entry[PrecisionOffset], entry[ScaleOffset],
                                                 (entry[FlagsOffset] & CalculatedFlags) == CalculatedFlags};
    }
    return details;
}
