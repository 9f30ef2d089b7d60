#include "table_reader/access_file.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <memory>

#include <fcntl.h>
#include <unistd.h>

#include "table_reader/bytes.h"
#include "table_reader/cell_text.h"
#include "table_reader/column_check.h"
#include "table_reader/column_details.h"
#include "table_reader/damaged.h"
#include "table_reader/row.h"
#include "table_reader/table_scan.h"

using TableProtocol::CellType;

namespace {

constexpr std::uint32_t CatalogPage = 2;
constexpr std::uint32_t PageBits = 0xffffff;
constexpr std::uint16_t TypeBits = 0x7f;
constexpr int OdbcLink = 4;
constexpr std::uint32_t SystemFlags = 0x80000002;

CellType cellType(int storedType) {
    switch (storedType) {
    case MDB_BOOL:
        return CellType::Boolean;
    case MDB_BYTE:
        return CellType::Byte;
    case MDB_INT:
        return CellType::Integer;
    case MDB_LONGINT:
        return CellType::Long;
    case MDB_MONEY:
        return CellType::Currency;
    case MDB_FLOAT:
        return CellType::Single;
    case MDB_DOUBLE:
    case MDB_NUMERIC:
        return CellType::Double;
    case MDB_DATETIME:
        return CellType::Date;
    case MDB_TEXT:
        return CellType::Text;
    case MDB_MEMO:
        return CellType::Memo;
    default:
        return CellType::Unsupported;
    }
}

/// `details` is null for Jet 3, which has no Decimal: nobody knows where it would keep the scale.
Column readColumn(const MdbColumn &stored, const ColumnDetails *details) {
    Column column;
    column.name = stored.name;
    column.type = cellType(stored.col_type);
    column.storedType = stored.col_type;
    column.storedSize = static_cast<unsigned>(stored.col_size);
    if (details ? details->calculated : stored.col_type == MDB_NUMERIC) column.type = CellType::Unsupported;
    if (column.type == CellType::Text) column.size = details ? column.storedSize / 2 : column.storedSize;
    if (details) column.precision = details->precision;
    if (details) column.scale = details->scale;
    column.number = static_cast<unsigned>(stored.col_num);
    column.fixed = stored.is_fixed != 0;
    column.fixedOffset = static_cast<unsigned>(stored.fixed_offset);
    column.variableIndex = stored.var_col_num;
    return column;
}

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

std::string utf8(const std::u16string &text) {
    const std::unique_ptr<char, void (*)(void *)> converted(
        g_utf16_to_utf8(reinterpret_cast<const gunichar2 *>(text.data()), static_cast<glong>(text.size()),
                        nullptr, nullptr, nullptr),
        g_free);
    if (!converted) throw Damaged("name that is no text");
    return converted.get();
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

AccessFile::AccessFile(int file)
    : m_file(file)
    , m_identity(FileIdentity::of(m_file)) {
    m_handle = mdb_open(("/proc/self/fd/" + std::to_string(file)).c_str(), MDB_NOFLAGS);
    if (!m_handle) throw Damaged("not an Access file");
    m_jet3 = IS_JET3(m_handle);
    readCatalog();
}

AccessFile::~AccessFile() {
    if (m_handle) mdb_close(m_handle);
}

void AccessFile::checkUnchanged() const {
    if (FileIdentity::of(m_file) != m_identity) throw Damaged("file that changes while it is read");
}

Table AccessFile::readTable(const std::string &name, std::uint32_t definitionPage) {
    MdbCatalogEntry entry = {};
    entry.mdb = m_handle;
    entry.object_type = MDB_TABLE;
    entry.table_pg = definitionPage;
    std::snprintf(entry.object_name, sizeof entry.object_name, "%s", name.c_str());
    const std::unique_ptr<MdbTableDef, void (*)(MdbTableDef *)> stored(mdb_read_table(&entry),
                                                                       mdb_free_tabledef);
    if (!stored || !mdb_read_columns(stored.get())) throw Damaged("unreadable table definition");
    Table table;
    table.name = name;
    table.rows = stored->num_rows;
    table.definitionPage = definitionPage;
    table.hasVariablePart = stored->num_var_cols > 0;
    table.usageMap.assign(stored->usage_map, stored->usage_map + stored->map_sz);
    Pages definition = pages();
    std::map<unsigned, ColumnDetails> details;
    if (!m_jet3) details = columnDetails(definition, definitionPage, *m_handle->fmt);
    for (guint i = 0; i < stored->columns->len; ++i) {
        const auto &column = *static_cast<const MdbColumn *>(g_ptr_array_index(stored->columns, i));
        const ColumnDetails *ofColumn = m_jet3 ? nullptr : &details[static_cast<unsigned>(column.col_num)];
        table.columns.push_back(readColumn(column, ofColumn));
    }
    const std::uint8_t *counts = definition.at(definitionPage) + m_handle->fmt->tab_num_cols_offset;
    checkColumns(table, {bytes::u16(counts - 4), bytes::u16(counts - 2)});
    return table;
}

void AccessFile::readCatalog() {
    const Table catalog = readTable("MSysObjects", CatalogPage);
    const Column &id = columnOf(catalog, "Id", CellType::Long);
    const Column &name = columnOf(catalog, "Name", CellType::Text);
    const Column &type = columnOf(catalog, "Type", CellType::Integer);
    const Column &flags = columnOf(catalog, "Flags", CellType::Long);
    const CellText texts(m_handle, m_jet3);
    std::u16string text;
    TableScan scan(*this, catalog);
    for (const std::uint32_t page : scan.pages()) {
        scan.visit(page, [&](const Row &row) {
            const int kind = number<std::uint16_t>(row, type) & TypeBits;
            if (kind != MDB_TABLE && kind != MDB_QUERY && kind != MDB_LINKED_TABLE && kind != OdbcLink)
                return;
            if ((number<std::uint32_t>(row, flags) & SystemFlags) != 0) return;
            const CellBytes cell = row.bit(name) ? row.cell(name) : CellBytes();
            texts.decode(cell.data, cell.size, text);
            addObject(utf8(text), kind, number<std::uint32_t>(row, id));
        });
    }
}

void AccessFile::addObject(const std::string &name, int type, std::uint32_t id) {
    if (type != MDB_TABLE) {
        using TableProtocol::OtherKind;
        m_others.push_back({name, type == MDB_QUERY ? OtherKind::Query : OtherKind::Link});
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
            if (mapPage != 0)
                addPages(owned, mapPages.at(mapPage) + 4, bytesOfPage, i * bytesOfPage * 8, mapPages.count());
        }
    } else {
        throw Damaged("unknown kind of usage map");
    }
    return owned;
}
