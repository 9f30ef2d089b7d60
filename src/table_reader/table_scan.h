// The rows of a table, page by page.
#pragma once

#include <vector>

#include "table_reader/access_file.h"
#include "table_reader/data_page.h"
#include "table_reader/row.h"

class TableScan {
public:
    TableScan(const AccessFile &file, const Table &table);

    const std::vector<std::uint32_t> &pages() const { return m_owned; }
    /// The rows of one page, wherever they have moved to, in the order of the page. Raises Damaged.
    template <class Visitor>
    void visit(std::uint32_t number, Visitor visitor) {
        const DataPage page(m_pages.at(number), m_pages.pageSize(), m_jet3);
        if (!isOurs(page)) return;
        for (std::size_t i = 0; i < page.slots(); ++i) {
            const Slot slot = page.slot(i);
            if (slot.hidden || slot.size == 0) continue;
            visitor(slot.moved ? follow(slot) : Row(slot.data, slot.size, m_table, m_jet3));
        }
    }

private:
    bool isOurs(const DataPage &page);
    bool hasOtherUse(const DataPage &page);
    Row follow(const Slot &moved);

    const Table &m_table;
    bool m_jet3;
    Pages m_pages;
    Pages m_movedRows;
    std::vector<std::uint32_t> m_owned;
};
