#include "workbench/CompositionPage.h"

#include <QElapsedTimer>
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
    m_later.setSingleShot(true);
    connect(&m_later, &QTimer::timeout, this, [this] {
        if (isVisible()) readOn();
    });
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
    m_grades = grades;
    readOn();
}

/// Whoever turns to another page or closes the window does not wait for the rest.
void CompositionPage::readOn() {
    const BusyPointer busy;
    QElapsedTimer clock;
    clock.start();
    for (const Grades::Grade &grade : m_grades) {
        if (m_read.contains(grade.id)) continue;
        if (clock.elapsed() > patience) {
            showProgress();
            m_later.start();
            return;
        }
        m_read[grade.id] = GradeComposition::load(*modDBase::dbMain(), grade);
    }
    m_later.stop();
    showRows();
}

void CompositionPage::showProgress() {
    const auto read = std::count_if(m_grades.begin(), m_grades.end(),
                                    [this](const auto &grade) { return m_read.contains(grade.id); });
    lblMarked->setText(QStringLiteral("Reading the compositions: %1 of %2.").arg(read).arg(m_grades.size()));
    m_rows = std::make_shared<QVector<CompositionRow>>();
    tdbComposition->setCells(nullptr);
}

void CompositionPage::showRows() {
    QVector<GradeComposition> compositions;
    for (const Grades::Grade &grade : std::as_const(m_grades))
        compositions << m_read[grade.id];
    const auto rows = std::make_shared<const QVector<CompositionRow>>(compareCompositions(compositions));
    m_rows = rows;
    lblMarked->setText(rows->isEmpty()       ? "None of the grades has a composition."
                       : m_grades.size() > 1 ? "Limits that are not those of " +
                                                   ValueTables::title(m_grades.first()) + " are marked."
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
