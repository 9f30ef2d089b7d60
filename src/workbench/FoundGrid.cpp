#include "workbench/FoundGrid.h"

#include <numeric>

#include "platform/forms/grid_cells.h"
#include "platform/forms/tdb_grid.h"
#include "platform/runtime/conversions.h"
#include "workbench/condition_inputs.h"

namespace {

using Kind = FoundColumn::Kind;

/// In twips.
int widthOf(Kind kind) {
    switch (kind) {
    case Kind::Name:
        return 2100;
    case Kind::Number:
        return 1050;
    case Kind::Group:
        return 840;
    case Kind::Value:
        return 1650;
    default:
        return 1500;
    }
}

GridCellMark markOf(const ValueSearch &search, const FoundGrades &found, int place,
                    const QSet<qint16> &selected) {
    const int grade = found.result.grades[static_cast<std::size_t>(place)];
    if (!selected.contains(search.grades()[grade].id)) return {};
    return {true, {}, "This material is selected."};
}

} // namespace

FoundGrid::FoundGrid(TDBGrid &grid)
    : QObject(&grid)
    , m_grid(grid)
    , m_found(std::make_shared<FoundGrades>())
    , m_places(std::make_shared<std::vector<int>>()) {
    connect(&grid, &TDBGrid::HeadClick, this, &FoundGrid::orderBy);
}

void FoundGrid::show(const std::shared_ptr<const ValueSearch> &search,
                     const std::shared_ptr<const FoundGrades> &found) {
    if (m_search != search) m_order = std::make_unique<FoundOrder>(*search);
    m_search = search;
    m_found = found;
    showColumns();
    showRows();
}

void FoundGrid::setSelected(const QSet<qint16> &selected) {
    m_selected = selected;
    if (m_search) showRows();
}

int FoundGrid::currentGrade() const {
    const int row = m_grid.Row();
    if (row < 0 || row >= std::ssize(*m_places)) return -1;
    return m_found->result.grades[static_cast<std::size_t>((*m_places)[static_cast<std::size_t>(row)])];
}

/// A second click turns the order round.
void FoundGrid::orderBy(int column) {
    const FoundColumn &chosen = m_columns[column];
    m_reversed = m_by == chosen && !m_reversed;
    m_by = chosen;
    showHeadings();
    showRows();
}

void FoundGrid::showColumns() {
    const QVector<FoundColumn> columns = FoundTable::columns(m_found->query);
    if (columns != m_columns) {
        while (m_grid.ColumnCount() > 0)
            m_grid.RemoveColumn(m_grid.ColumnCount() - 1);
        for (const FoundColumn &column : columns)
            m_grid.AddColumn().setWidth(widthOf(column.kind));
        m_columns = columns;
        if (m_by && !columns.contains(*m_by)) m_by.reset();
    }
    showHeadings();
}

void FoundGrid::showHeadings() {
    for (int i = 0; i < m_columns.size(); ++i)
        if (const QString text = caption(i); m_grid.Columns(i).Caption() != text)
            m_grid.Columns(i).setCaption(text);
    if (m_by)
        m_grid.setRowOrder(static_cast<int>(m_columns.indexOf(*m_by)), order());
    else
        m_grid.setRowOrder(-1, Qt::AscendingOrder);
}

/// Values begin with the best one, which may be the smallest or the largest.
Qt::SortOrder FoundGrid::order() const {
    const bool bestFirst =
        m_by->kind == Kind::Value && !m_found->query.conditions[m_by->condition].limits.smallestIsBest();
    return bestFirst == m_reversed ? Qt::AscendingOrder : Qt::DescendingOrder;
}

QString FoundGrid::caption(int column) const {
    const FoundColumn &shown = m_columns[column];
    QString text = FoundTable::heading(m_found->query, shown).heading;
    if (shown.kind == Kind::Band || shown.kind == Kind::Value) {
        const ValueCondition &condition = m_found->query.conditions[shown.condition];
        const QString unit = ConditionInputs::unit(condition.property);
        QString at = condition.temperature + " °C";
        if (condition.thickness) at += ", " + CStr(*condition.thickness) + " mm";
        text = condition.property.label + "\n" +
               (shown.kind == Kind::Band ? QStringLiteral("Band\n")
                                         : at + (unit.isEmpty() ? "\n" : "\n[" + unit + "]"));
    }
    if (m_by != shown) return text;
    return text + (order() == Qt::AscendingOrder ? QStringLiteral(" ▲") : QStringLiteral(" ▼"));
}

void FoundGrid::showRows() {
    if (m_by) {
        m_places = std::make_shared<std::vector<int>>(m_order->by(*m_found, *m_by, m_reversed));
    } else {
        auto places = std::make_shared<std::vector<int>>(m_found->result.grades.size());
        std::iota(places->begin(), places->end(), 0);
        m_places = places;
    }
    auto cells = std::make_shared<GridCells>();
    cells->rows = m_found->count();
    cells->text = [search = m_search, found = m_found, places = m_places,
                   last = std::make_shared<std::pair<int, QStringList>>(-1, QStringList())](int row,
                                                                                            int column) {
        // A grid asks several times for a cell, and row by row.
        if (last->first != row)
            *last = {row, FoundTable::row(*search, *found, (*places)[static_cast<std::size_t>(row)])};
        return last->second.value(column);
    };
    if (!m_selected.isEmpty())
        cells->mark = [search = m_search, found = m_found, places = m_places, selected = m_selected](int row,
                                                                                                     int) {
            return markOf(*search, *found, (*places)[static_cast<std::size_t>(row)], selected);
        };
    m_grid.setCells(cells);
}
