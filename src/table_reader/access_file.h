// An open Access file: its tables, their columns, and the pages that belong to a table.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/dao/file_identity.h"
#include "platform/dao/table_protocol.h"
#include "table_reader/pages.h"

struct Column {
    std::string name; // UTF-8
    TableProtocol::CellType type = TableProtocol::CellType::Memo;
    /// Characters of a Text.
    unsigned size = 0;
    /// As libmdb numbers the types.
    int storedType = 0;
    unsigned storedSize = 0;
    /// Of an MDB_NUMERIC, whose CellType is Double.
    unsigned precision = 0;
    unsigned scale = 0;
    /// The bit in a row's null mask.
    unsigned number = 0;
    bool fixed = false;
    unsigned fixedOffset = 0;
    unsigned variableIndex = 0;
};

struct Table {
    std::string name; // UTF-8
    std::uint32_t rows = 0;
    std::uint32_t definitionPage = 0;
    /// Whether its rows have a section of variable length.
    bool hasVariablePart = false;
    std::vector<Column> columns;
    /// Libmdb's copy of the map of the pages that belong to the table.
    std::vector<std::uint8_t> usageMap;
};

/// What the catalog lists by name like a table, and what has no rows in the file.
struct OtherObject {
    std::string name; // UTF-8
    TableProtocol::OtherKind kind = TableProtocol::OtherKind::Query;
};

class AccessFile {
public:
    /// Reads the catalog, by hand: libmdb passes over what it cannot read, and a table would be missing.
    /// Raises Damaged for what is no Access file, too.
    /// `file` is a descriptor that stays the caller's.
    explicit AccessFile(int file);
    ~AccessFile();
    AccessFile(const AccessFile &) = delete;
    AccessFile &operator=(const AccessFile &) = delete;

    MdbHandle *handle() const { return m_handle; }
    bool isJet3() const { return m_jet3; }
    const std::vector<Table> &tables() const { return m_tables; }
    const std::vector<OtherObject> &others() const { return m_others; }
    const FileIdentity &identity() const { return m_identity; }
    /// Raises Damaged where the file was written to after it was opened.
    void checkUnchanged() const;

    /// A reader of its own: what it has read ahead, no other one sees.
    Pages pages() const { return Pages(m_handle, m_file); }
    /// The pages that the table's map lists, in the order of the file.
    std::vector<std::uint32_t> pagesOf(const Table &table) const;

private:
    Table readTable(const std::string &name, std::uint32_t definitionPage);
    void readCatalog();
    void addObject(const std::string &name, int type, std::uint32_t id);

    MdbHandle *m_handle = nullptr;
    int m_file;
    FileIdentity m_identity;
    bool m_jet3 = false;
    std::vector<Table> m_tables;
    std::vector<OtherObject> m_others;
};
