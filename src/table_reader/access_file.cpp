#include "table_reader/access_file.h"

#include <algorithm>
#include <cstring>

#include "table_reader/bytes.h"
#include "table_reader/damaged.h"
#include "table_reader/name_text.h"
#include "table_reader/row.h"
#include "table_reader/table_scan.h"

using TableProtocol::CellType;

namespace {

constexpr std::uint32_t CatalogPage = 2;
constexpr std::uint32_t PageBits = 0xffffff;
constexpr std::size_t MostObjects = 65535;
// What an object of the catalog is.
constexpr std::uint16_t TypeBits = 0x7f;
constexpr int TableObject = 1;
constexpr int OdbcLink = 4;
constexpr int Query = 5;
constexpr int LinkedTable = 6;
constexpr std::uint32_t SystemFlags = 0x80000002;

const Column &columnOf(const Table &table, const char *name, CellType type) {
    for (const Column &column : table.columns)
        if (column.name == name && column.type == type) return column;
    throw Damaged("catalog without its columns");
}

/// Null counts as 0.
template <typename Number>
Number number(const Row &row, const Column &column) {
    Number value = 0;
    const CellBytes cell = row.bit(column) ? row.cell(column) : CellBytes();
    if (cell.size >= sizeof value) std::memcpy(&value, cell.data, sizeof value);
    return value;
}

/// Adds the pages whose bits are set in `bits`; the first bit stands for `first`.
void addPages(std::vector<std::uint32_t> &owned, const std::uint8_t *bits, std::size_t size,
              std::uint64_t first, std::uint32_t pagesOfFile) {
    for (std::size_t i = 0; i < size; ++i) {
        for (unsigned bit = 0; bits[i] >> bit != 0; ++bit) {
            if ((bits[i] >> bit & 1) == 0) continue;
            const std::uint64_t page = first + i * 8 + bit;
            if (page >= pagesOfFile) throw Damaged("page beyond the end of the file");
            owned.push_back(static_cast<std::uint32_t>(page));
        }
    }
}

} // namespace

AccessFile::AccessFile(int file, std::u16string_view password)
    : m_file(file)
    , m_identity(FileIdentity::of(m_file))
    , m_header(AccessHeader::read(m_file)) {
    if (!m_header.accepts(password)) throw WrongPassword();
    readCatalog();
}

CellText AccessFile::texts() const {
    return isJet3() ? CellText::ofCodePage(m_header.codePage()) : CellText::ofUnits();
}

void AccessFile::checkUnchanged() const {
    if (FileIdentity::of(m_file) != m_identity) throw Damaged("file that changes while it is read");
}

Table AccessFile::readTable(const std::string &name, std::uint32_t definitionPage) const {
    Pages definition = pages();
    Table table = readDefinition(definition, definitionPage, texts(), isJet3());
    table.name = name;
    return table;
}

void AccessFile::readCatalog() {
    const Table catalog = readTable("MSysObjects", CatalogPage);
    const Column &id = columnOf(catalog, "Id", CellType::Long);
    const Column &name = columnOf(catalog, "Name", CellType::Text);
    const Column &type = columnOf(catalog, "Type", CellType::Integer);
    const Column &flags = columnOf(catalog, "Flags", CellType::Long);
    const CellText cellTexts = texts();
    std::u16string text;
    TableScan scan(*this, catalog);
    for (const std::uint32_t page : scan.pages()) {
        scan.visit(page, [&](const Row &row) {
            const int kind = number<std::uint16_t>(row, type) & TypeBits;
            if (kind != TableObject && kind != Query && kind != LinkedTable && kind != OdbcLink) return;
            if ((number<std::uint32_t>(row, flags) & SystemFlags) != 0) return;
            const CellBytes cell = row.bit(name) ? row.cell(name) : CellBytes();
            cellTexts.decode(cell.data, cell.size, text);
            addObject(nameOf(text), kind, number<std::uint32_t>(row, id));
        });
    }
}

void AccessFile::addObject(const std::string &name, int type, std::uint32_t id) {
    if (m_tables.size() + m_others.size() == MostObjects) throw Damaged("too many tables");
    if (type != TableObject) {
        using TableProtocol::OtherKind;
        m_others.push_back({name, type == Query ? OtherKind::Query : OtherKind::Link});
        return;
    }
    const std::uint32_t definition = id & PageBits;
    if (std::any_of(m_tables.begin(), m_tables.end(),
                    [&](const Table &table) { return table.definitionPage == definition; }))
        throw Damaged("two tables in one place");
    m_tables.push_back(readTable(name, definition));
}

std::vector<std::uint32_t> AccessFile::pagesOf(const Table &table) const {
    const std::vector<std::uint8_t> &map = table.usageMap;
    const int kind = map.empty() ? -1 : map[0];
    Pages mapPages = pages();
    std::vector<std::uint32_t> owned;
    if (kind == 0 && map.size() >= 5) {
        addPages(owned, map.data() + 5, map.size() - 5, bytes::u32(map.data() + 1), mapPages.count());
    } else if (kind == 1) {
        const std::size_t bytesOfPage = mapPages.pageSize() - 4;
        for (std::size_t i = 0; 1 + 4 * i + 4 <= map.size(); ++i) {
            const std::uint32_t mapPage = bytes::u32(map.data() + 1 + 4 * i);
            if (mapPage == 0) continue;
            const std::uint8_t *page = mapPages.at(mapPage);
            if (page[0] != MapKind) throw Damaged("map that is none");
            addPages(owned, page + 4, bytesOfPage, i * bytesOfPage * 8, mapPages.count());
        }
    } else {
        throw Damaged("unknown kind of usage map");
    }
    return owned;
}
