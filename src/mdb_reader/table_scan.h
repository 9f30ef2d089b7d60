// The rows of a table, page by page.
#pragma once

#include <functional>
#include <vector>

#include "mdb_reader/access_file.h"
#include "mdb_reader/data_page.h"
#include "mdb_reader/row.h"

class TableScan {
public:
    TableScan(const AccessFile &file, const Table &table);

    const std::vector<std::uint32_t> &pages() const { return m_owned; }
    /// The rows of one page, wherever they have moved to, in the order of the page. Raises Damaged.
    void visit(std::uint32_t page, const std::function<void(const Row &row)> &visitor);

private:
    bool hasOtherUse(const DataPage &page);
    Row follow(std::uint32_t place);

    const Table &m_table;
    bool m_jet3;
    Pages m_pages;
    Pages m_movedRows;
    std::vector<std::uint32_t> m_owned;
};
