// The rows of a table that meet conditions.
#pragma once

#include <bitset>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "table_reader/access_file.h"
#include "table_reader/cell_text.h"
#include "table_reader/condition.h"
#include "table_reader/last_key.h"
#include "table_reader/reply.h"
#include "table_reader/row.h"
#include "table_reader/row_writer.h"
#include "table_reader/table_scan.h"

/// There are no indexes to use, so the first search by some columns notes for every page which of 256 groups
/// of keys its rows belong to, and later ones leave out the pages that cannot hold theirs: rows of one key
/// mostly lie together.
class TableSearch {
public:
    TableSearch(const AccessFile &file, const Table &table);

    /// Sends every matching row, in the order of the file. Raises Damaged.
    void run(std::vector<Condition> conditions, Reply &reply);
    /// Does some of what the first search by these columns would have to do, `pages` pages of it. False when
    /// there is nothing left. Raises Damaged, as that search will.
    bool lookAhead(const std::vector<std::size_t> &columns, std::size_t pages);

private:
    using Groups = std::bitset<256>; // one bit for each group
    struct PageGroups {
        std::vector<std::size_t> columns;
        std::vector<Groups> ofPage;
        std::uint64_t rows = 0; // on these pages
    };
    struct Match {
        bool found = true;
        int group = 0; // or one of the two below
    };
    enum {
        AnyGroup = -1, // a key with unknown capitals, or no condition
        NoGroup = -2   // Null, which nothing is equal to
    };

    /// What has been noted for these columns, which does not depend on the order in which they are named.
    PageGroups &start(std::vector<Condition> &conditions);
    /// Sends the page's matching rows, without a reply none. Gives the groups of all of them, and their
    /// number.
    Groups searchPage(std::uint32_t page, const std::vector<Condition> &conditions, Reply *reply,
                      std::uint64_t *rows);
    /// The same for the first page that has not been looked at, and notes it.
    void searchNewPage(PageGroups &groups, const std::vector<Condition> &conditions, Reply *reply);
    static void add(Groups &groups, int group);
    Match match(const Row &row, const std::vector<Condition> &conditions);
    Match matchInteger(const Row &row, const Condition &condition);
    Match compare(const std::vector<CellBytes> &cells, const std::vector<Condition> &conditions);

    const Table &m_table;
    bool m_jet3;
    CellText m_texts;
    TableScan m_scan;
    RowWriter m_writer;
    std::vector<PageGroups> m_groups;
    std::vector<CellBytes> m_cells;
    LastKey m_lastKey;
    std::optional<std::int32_t> m_lastInteger;
    Match m_lastMatch;
    std::u16string m_text;
};

/// One search for each table, made when it is first wanted.
class TableSearches {
public:
    /// `file` outlives this.
    explicit TableSearches(const AccessFile &file)
        : m_file(file)
        , m_searches(file.tables().size()) {}

    /// Raises Damaged.
    TableSearch &of(std::size_t table) {
        std::unique_ptr<TableSearch> &search = m_searches[table];
        if (!search) search = std::make_unique<TableSearch>(m_file, m_file.tables()[table]);
        return *search;
    }

private:
    const AccessFile &m_file;
    std::vector<std::unique_ptr<TableSearch>> m_searches;
};
