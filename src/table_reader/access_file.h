// An open Access file: its tables, their columns, and the pages that belong to a table.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/dao/file_identity.h"
#include "platform/dao/table_protocol.h"
#include "table_reader/access_header.h"
#include "table_reader/cell_text.h"
#include "table_reader/pages.h"
#include "table_reader/table_definition.h"

/// What the catalog lists by name like a table, and what has no rows in the file.
struct OtherObject {
    std::string name; // UTF-8
    TableProtocol::OtherKind kind = TableProtocol::OtherKind::Query;
};

class AccessFile {
public:
    /// What the first byte of a page says that is part of a table's map.
    static constexpr std::uint8_t MapKind = 5;

    /// Reads the catalog. Raises Damaged, for what is no Access file, too, and WrongPassword.
    /// `file` is a descriptor that stays the caller's.
    AccessFile(int file, std::u16string_view password);

    bool isJet3() const { return m_header.isJet3(); }
    CellText texts() const;
    const std::vector<Table> &tables() const { return m_tables; }
    const std::vector<OtherObject> &others() const { return m_others; }
    const FileIdentity &identity() const { return m_identity; }
    /// Raises Damaged where the file was written to after it was opened.
    void checkUnchanged() const;

    /// A reader of its own: what it has read ahead, no other one sees.
    Pages pages() const { return Pages(m_header, m_file); }
    /// The pages that the table's map lists, in the order of the file.
    std::vector<std::uint32_t> pagesOf(const Table &table) const;

private:
    Table readTable(const std::string &name, std::uint32_t definitionPage) const;
    void readCatalog();
    void addObject(const std::string &name, int type, std::uint32_t id);

    int m_file;
    FileIdentity m_identity;
    AccessHeader m_header;
    std::vector<Table> m_tables;
    std::vector<OtherObject> m_others;
};
