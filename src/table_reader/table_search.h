// The rows of a table that meet conditions.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "table_reader/access_file.h"
#include "table_reader/cell_text.h"
#include "table_reader/condition.h"
#include "table_reader/key_runs.h"
#include "table_reader/last_key.h"
#include "table_reader/reply.h"
#include "table_reader/row.h"
#include "table_reader/row_writer.h"
#include "table_reader/table_scan.h"

/// There are no indexes to use, so the first search by some columns notes on which pages each key is, and
/// later ones read these alone.
class TableSearch {
public:
    TableSearch(const AccessFile &file, const Table &table);

    /// Sends every matching row, in the order of the file. Raises Damaged.
    void run(std::vector<Condition> conditions, Reply &reply);
    /// Does some of what the first search by these columns would have to do, `pages` pages of it. False when
    /// there is nothing left. Raises Damaged, as that search will.
    bool lookAhead(const std::vector<std::size_t> &columns, std::size_t pages);

private:
    /// Of the pages from the first one on.
    struct Notes {
        std::vector<std::size_t> columns;
        std::size_t pages = 0;
        std::uint64_t rows = 0; // on these pages
        KeyRuns runs;           // of pages, by their places in the scan
        bool hasRoom = true;    // without it there are no runs, and every page is read
    };
    struct Match {
        bool found = true;
        std::uint32_t mark = KeyRuns::AnyKey;
    };

    /// What has been noted for these columns, which does not depend on the order in which they are named.
    Notes &start(std::vector<Condition> &conditions);
    /// The same for the first page that has not been looked at, and notes it.
    void searchNewPage(Notes &notes, const std::vector<Condition> &conditions, Reply *reply);
    void searchNotedPages(const Notes &notes, const std::vector<Condition> &conditions, Reply &reply);
    /// Sends its matching rows.
    void searchPage(std::size_t place, const std::vector<Condition> &conditions, Reply &reply);
    Match match(const Row &row, const std::vector<Condition> &conditions);
    Match matchInteger(const Row &row, const Condition &condition);
    Match compare(const std::vector<CellBytes> &cells, const std::vector<Condition> &conditions);

    const Table &m_table;
    bool m_jet3;
    CellText m_texts;
    TableScan m_scan;
    RowWriter m_writer;
    std::vector<Notes> m_notes;
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
