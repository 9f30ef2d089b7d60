// The rows of a table that meet conditions.
#pragma once

#include <bitset>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "table_reader/access_file.h"
#include "table_reader/cell_text.h"
#include "table_reader/reply.h"
#include "table_reader/row.h"
#include "table_reader/row_writer.h"
#include "table_reader/table_scan.h"

/// A column, by its position, and what it must hold.
struct Condition {
    std::size_t column = 0;
    bool isText = false;
    std::int32_t integer = 0;
    std::u16string text;
};

/// Texts are compared without regard to ASCII capitals, and any other character counts as equal to any: the
/// main program, which knows all capitals, looks again.
///
/// There are no indexes to use, so the first search by some columns notes for every page which of 256 groups
/// of keys its rows belong to, and later ones leave out the pages that cannot hold theirs: rows of one key
/// mostly lie together.
class TableSearch {
public:
    TableSearch(const AccessFile &file, const Table &table);

    /// Sends every matching row, in the order of the file. Raises Damaged.
    void run(const std::vector<Condition> &conditions, Reply &reply);

private:
    using Groups = std::bitset<256>; // one bit for each group
    struct PageGroups {
        std::vector<std::size_t> columns;
        std::vector<Groups> ofPage;
    };
    struct Match {
        bool found = true;
        int group = 0; // or one of the two below
    };
    enum {
        AnyGroup = -1, // a key with unknown capitals, or no condition
        NoGroup = -2   // Null, which nothing is equal to
    };

    PageGroups &groupsBy(const std::vector<Condition> &conditions);
    /// Sends the page's matching rows. Gives the groups of all of them.
    Groups searchPage(std::uint32_t page, const std::vector<Condition> &conditions, Reply &reply);
    static void add(Groups &groups, int group);
    Match match(const Row &row, const std::vector<Condition> &conditions);
    Match matchInteger(const Row &row, const Condition &condition);
    Match compare(const std::vector<CellBytes> &cells, const std::vector<Condition> &conditions);

    const Table &m_table;
    CellText m_texts;
    TableScan m_scan;
    RowWriter m_writer;
    std::vector<PageGroups> m_groups;
    std::uint64_t m_rows = 0; // seen in this search
    std::vector<CellBytes> m_cells;
    std::vector<std::vector<std::uint8_t>> m_lastKey; // the stored bytes of the cells compared last
    std::optional<std::int32_t> m_lastInteger;
    Match m_lastMatch;
    std::u16string m_text;
};
