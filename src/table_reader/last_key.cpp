#include "table_reader/last_key.h"

#include <algorithm>

namespace {

ColumnRun runOf(const Table &table, const std::vector<Condition> &conditions) {
    std::vector<const Column *> columns;
    for (const Condition &condition : conditions)
        columns.push_back(&table.columns[condition.column]);
    std::sort(columns.begin(), columns.end(),
              [](const Column *a, const Column *b) { return a->variableIndex < b->variableIndex; });
    ColumnRun run;
    for (const Column *column : columns) {
        const std::size_t byte = column->number / 8;
        if (column->fixed) return {};
        if (run.count == 0) {
            run.firstIndex = column->variableIndex;
            run.maskByte = byte;
        }
        if (column->variableIndex != run.firstIndex + run.count || byte != run.maskByte) return {};
        run.maskBits |= static_cast<std::uint8_t>(1u << column->number % 8);
        run.lastNumber = std::max<std::size_t>(run.lastNumber, column->number);
        ++run.count;
    }
    return run;
}

} // namespace

void LastKey::start(const Table &table, bool jet3, const std::vector<Condition> &conditions) {
    m_run = jet3 ? ColumnRun() : runOf(table, conditions);
    m_cells.clear();
}

void LastKey::take(const Row &row) {
    if (m_run.count == 0 || !row.isWhole(m_run)) return m_cells.clear();
    const std::uint8_t *const offsets = row.offsets(m_run);
    m_offsets.assign(offsets, offsets + m_run.offsetsSize());
    const CellBytes cells = row.cells(m_run);
    m_cells.assign(cells.data, cells.data + cells.size);
}
