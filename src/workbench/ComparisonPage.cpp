#include "workbench/ComparisonPage.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

#include "exchange/value_tables.h"
#include "platform/forms/grid_cells.h"
#include "platform/forms/placement.h"
#include "platform/forms/tdb_grid.h"
#include "workbench/grid_look.h"
#include "workbench/SelectedValues.h"

namespace {

constexpr int LabelColumn = 0;
constexpr int UnitColumn = 1;
constexpr int FirstGrade = 2;

QVector<Grades::Grade> gradesOf(const ComparedGrades &values) {
    QVector<Grades::Grade> grades;
    for (const auto &each : values)
        grades << each->grade();
    return grades;
}

} // namespace

ComparisonPage::ComparisonPage(const SelectedValues &values, QWidget *parent)
    : QWidget(parent)
    , txtFilter(named(new QLineEdit(this), "txtFilter", "Filter"))
    , tdbValues(named(new TDBGrid(this), "tdbValues", "Values of the selected grades"))
    , lblNoRow(named(new QLabel("No property has these words in its name or unit.", this), "lblNoRow"))
    , m_values(values)
    , m_rows(std::make_shared<QVector<ComparisonRow>>()) {
    auto *lblFilter = new QLabel("&Filter", this);
    lblFilter->setBuddy(txtFilter);
    txtFilter->setPlaceholderText("Words of a property");
    txtFilter->setClearButtonEnabled(true);
    txtFilter->setMaxLength(80);
    auto *top = new QHBoxLayout;
    top->addWidget(lblFilter);
    top->addWidget(txtFilter);
    top->addWidget(lblNoRow, 1);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(tdbValues, 1);
    WorkbenchGrid::setLook(*tdbValues);
    connect(txtFilter, &QLineEdit::textChanged, this, &ComparisonPage::filterChanged);
}

void ComparisonPage::gradesChanged() {
    QStringList captions{"Property", "Unit"};
    QStringList samples{"Thermal conductivity, mean", "Ohm x mm² / m"};
    for (const auto &grade : m_values.grades()) {
        captions << WorkbenchGrid::heading(grade->grade());
        samples << "(100) - 150mm: 200,00";
    }
    tdbValues->setCells(nullptr);
    WorkbenchGrid::setColumns(*tdbValues, captions, samples);
    tdbValues->Columns(LabelColumn).setWordWrap(true);
}

void ComparisonPage::show(const CompareInput &input) {
    const auto rows = std::make_shared<const QVector<ComparisonRow>>(
        input.isWhole()
            ? Comparison::rows(m_values.grades(), m_values.properties(), *input.temperature, *input.thickness,
                               txtFilter->text())
            : Comparison::withoutValues(m_values.grades(), m_values.properties(), txtFilter->text()));
    m_rows = rows;
    lblNoRow->setVisible(rows->isEmpty() && !m_values.properties().isEmpty());
    GridCells cells;
    cells.rows = static_cast<int>(rows->size());
    cells.rowsGrow = true;
    cells.text = [rows](int row, int column) {
        const ComparisonRow &shown = (*rows)[row];
        if (column == LabelColumn) return shown.property.label;
        if (column == UnitColumn) return TakenTables::bareUnit(shown.property.unit);
        return shown.cells[column - FirstGrade].text();
    };
    cells.mark = [rows](int row, int column) {
        GridCellMark mark;
        if (column < FirstGrade) return mark;
        const ValueCells &shown = (*rows)[row].cells[column - FirstGrade];
        mark.tip = shown.reason;
        if (mark.tip.isEmpty() && shown.cells.size() == 1) mark.tip = shown.cells.first().band;
        return mark;
    };
    tdbValues->setCells(std::make_shared<const GridCells>(std::move(cells)));
}

TakenTable ComparisonPage::taken() const {
    return ValueTables::comparison(gradesOf(m_values.grades()), *m_rows);
}
