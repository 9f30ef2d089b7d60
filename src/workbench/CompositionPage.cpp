#include "workbench/CompositionPage.h"

#include <QLabel>
#include <QVBoxLayout>

#include "data/modDBase.h"
#include "exchange/value_tables.h"
#include "platform/forms/busy_pointer.h"
#include "platform/forms/grid_cells.h"
#include "platform/forms/placement.h"
#include "platform/forms/tdb_grid.h"
#include "workbench/grid_look.h"

namespace {

/// Columns from 1 on are the minimum and the maximum of one grade after the other.
int gradeOf(int column) {
    return (column - 1) / 2;
}

bool isMinimum(int column) {
    return column % 2 == 1;
}

} // namespace

CompositionPage::CompositionPage(QWidget *parent)
    : QWidget(parent)
    , tdbComposition(named(new TDBGrid(this), "tdbComposition", "Compositions of the selected grades"))
    , lblMarked(named(new QLabel(this), "lblMarked"))
    , m_rows(std::make_shared<QVector<CompositionRow>>()) {
    lblMarked->setWordWrap(true);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(lblMarked);
    layout->addWidget(tdbComposition, 1);
    WorkbenchGrid::setLook(*tdbComposition);
}

void CompositionPage::setColumns() {
    QStringList captions{"Element"};
    QStringList samples{"Other elements"};
    for (const Grades::Grade &grade : m_grades)
        for (const char *limit : {"\r\nmin", "\r\nmax"}) {
            captions << WorkbenchGrid::heading(grade) + QLatin1String(limit);
            samples << "X5CrNiMo17-12-2";
        }
    tdbComposition->setCells(nullptr);
    WorkbenchGrid::setColumns(*tdbComposition, captions, samples);
    for (int column = 1; column < tdbComposition->ColumnCount(); ++column)
        tdbComposition->Columns(column).setWordWrap(!isMinimum(column));
}

void CompositionPage::show(const QVector<Grades::Grade> &grades) {
    const BusyPointer busy;
    m_grades = grades;
    QVector<GradeComposition> compositions;
    for (const Grades::Grade &grade : grades) {
        if (!m_read.contains(grade.id)) m_read[grade.id] = GradeComposition::load(*modDBase::dbMain(), grade);
        compositions << m_read[grade.id];
    }
    const auto rows = std::make_shared<const QVector<CompositionRow>>(compareCompositions(compositions));
    m_rows = rows;
    lblMarked->setText(rows->isEmpty()     ? "None of the grades has a composition."
                       : grades.size() > 1 ? "Limits that are not those of " +
                                                 ValueTables::title(grades.first()) + " are marked."
                                           : QString());
    setColumns();
    GridCells cells;
    cells.rows = static_cast<int>(rows->size());
    cells.rowsGrow = true;
    cells.text = [rows](int row, int column) {
        const CompositionRow &shown = (*rows)[row];
        if (column == 0) return shown.element;
        const ElementLimits &limits = shown.cells[gradeOf(column)];
        return isMinimum(column) ? limits.min : limits.max;
    };
    cells.mark = [rows, colour = WorkbenchGrid::markColour(*tdbComposition)](int row, int column) {
        GridCellMark mark;
        if (column == 0) return mark;
        const CompositionRow &shown = (*rows)[row];
        const int grade = gradeOf(column);
        if (!(isMinimum(column) ? shown.minDiffers(grade) : shown.maxDiffers(grade))) return mark;
        const ElementLimits &first = shown.cells.first();
        const QString &other = isMinimum(column) ? first.min : first.max;
        mark.bold = true;
        mark.BackColor = colour;
        mark.tip = other.isEmpty() ? QStringLiteral("The first grade has no such limit.")
                                   : "The first grade has " + other + ".";
        return mark;
    };
    tdbComposition->setCells(std::make_shared<const GridCells>(std::move(cells)));
}

TakenTable CompositionPage::taken() const {
    return ValueTables::composition(m_grades, *m_rows);
}
