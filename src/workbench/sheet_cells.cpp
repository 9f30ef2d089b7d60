#include "workbench/sheet_cells.h"

#include <map>

namespace {

class Rows {
public:
    Rows(std::shared_ptr<const GradeValues> grade, const QVector<ValueColumn> &columns,
         const QStringList &temperatures)
        : m_grade(std::move(grade))
        , m_columns(columns)
        , m_temperatures(temperatures) {}

    int count() const { return static_cast<int>(m_temperatures.size()); }

    const SheetRow &row(int index) {
        const auto made = m_made.find(index);
        if (made != m_made.end()) return made->second;
        return m_made[index] = ValueSheets::row(*m_grade, m_columns, m_temperatures[index]);
    }

    GridCellMark mark(int index, int column, const QColor &ground) {
        const SheetRow &at = row(index);
        GridCellMark mark;
        if (column > 0) {
            mark.bold = at.own[column - 1];
        } else if (at.anyOwn()) {
            mark.bold = true;
            mark.BackColor = ground;
            mark.tip = "A row of the table of " + ownTables(at).join(", ") + ".";
        }
        return mark;
    }

private:
    QStringList ownTables(const SheetRow &at) const {
        QStringList labels;
        for (qsizetype i = 0; i < m_columns.size(); ++i)
            if (at.own[i]) labels << m_columns[i].property.label;
        labels.removeDuplicates();
        return labels;
    }

    std::shared_ptr<const GradeValues> m_grade;
    QVector<ValueColumn> m_columns;
    QStringList m_temperatures;
    std::map<int, SheetRow> m_made;
};

} // namespace

std::shared_ptr<const GridCells> SheetCells::of(std::shared_ptr<const GradeValues> grade,
                                                const QVector<ValueColumn> &columns,
                                                const QStringList &temperatures, const QColor &ground) {
    const auto rows = std::make_shared<Rows>(std::move(grade), columns, temperatures);
    auto cells = std::make_shared<GridCells>();
    cells->rows = rows->count();
    cells->text = [rows](int row, int column) {
        return column == 0 ? rows->row(row).temperature : rows->row(row).cells[column - 1].text;
    };
    cells->mark = [rows, ground](int row, int column) { return rows->mark(row, column, ground); };
    return cells;
}
