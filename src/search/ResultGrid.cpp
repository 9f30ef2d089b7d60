#include "search/ResultGrid.h"

#include "data/cell_values.h"
#include "data/modDBase.h"
#include "platform/dao/recordset.h"
#include "platform/forms/colours.h"
#include "platform/runtime/runtime_error.h"
#include "search/frmSearch.h"
#include "search/search_tips.h"
#include "search/SearchCriteria.h"
#include "shell/mdiVelmar.h"

namespace {

/// The columns that both grids have and whose layout is remembered.
constexpr int SharedColumns = 6;

} // namespace

ResultGrid::ResultGrid(frmSearch &window, SearchCriteria &criteria)
    : m_search(window)
    , m_criteria(criteria) {
    connectGrids();
    for (const auto &[index, box] : m_search.chkSearch)
        connect(box, &QCheckBox::toggled, this, [this, i = index](bool shown) { columnToggled(i, shown); });
    for (const auto &[index, button] : m_search.cmdTabNav)
        connect(button, &QPushButton::clicked, this, [this, i = index] { navigate(i); });
    connect(m_search.dtaMaterials, &DataControl::Reposition, this, &ResultGrid::followStandard);
}

void ResultGrid::connectGrids() {
    TDBGrid *found = m_search.tdbMaterials;
    connect(found, &TDBGrid::ColResize, this, &ResultGrid::foundResized);
    connect(found, &TDBGrid::HeadClick, this, [this](int column) { orderBy(column, " ASC"); });
    connect(found, &TDBGrid::FootClick, this, [this](int column) { orderBy(column, " DESC"); });
    found->setCellTipFetcher([this](GridArea area, int column) { return cellTip(area, column); });
    connect(m_search.tdbSelected, &TDBGrid::ColResize, this, &ResultGrid::selectedResized);
}

void ResultGrid::applySavedLayout() {
    mdiVelmar &main = mdiVelmar::instance();
    for (int i = 0; i < SharedColumns; ++i) {
        GridColumn &found = m_search.tdbMaterials->Columns(i);
        if (main.ColumnSize(i) != 0)
            found.setWidth(static_cast<double>(main.ColumnSize(i)));
        else
            main.setColumnSize(i, static_cast<float>(found.Width()));
        m_search.tdbSelected->Columns(i).setWidth(found.Width());
        if (!main.ColumnVisible(i)) {
            found.setVisible(false);
            m_search.chkSearch(i)->setChecked(false);
        }
    }
}

void ResultGrid::columnToggled(int index, bool shown) {
    mdiVelmar::instance().setColumnVisible(index, shown);
    m_search.tdbMaterials->Columns(index).setVisible(shown);
    m_search.tdbSelected->Columns(index).setVisible(shown);
    m_search.txtSearch(index)->setEnabled(shown);
    m_search.cmdSelect(index)->setEnabled(shown);
    setBackColor(m_search.txtSearch(index), shown ? vbInfoBackground : vbButtonFace);
    m_search.chkSearch(index)->setToolTip(SearchTips::columnTip(*m_search.chkSearch(index)));
    m_search.tdbMaterials->HoldFields();
    m_search.tdbSelected->HoldFields();
    try {
        // Every standards system has its own columns and boxes, which come back here: what lasts of this
        // click is the state of the box.
        m_criteria.chooseStandard();
    } catch (const RuntimeError &) {
        return; // this handler goes on after any error, and nothing is left to do
    }
}

void ResultGrid::foundResized(int column) {
    if (column >= SharedColumns) return;
    const double width = m_search.tdbMaterials->Columns(column).Width();
    m_search.tdbSelected->Columns(column).setWidth(width);
    mdiVelmar::instance().setColumnSize(column, static_cast<float>(width));
}

/// Only a resize in the upper grid is remembered: the widths are kept once for both grids, and the lower
/// one's would undo what was set above.
void ResultGrid::selectedResized(int column) {
    m_search.tdbMaterials->Columns(column).setWidth(m_search.tdbSelected->Columns(column).Width());
}

void ResultGrid::orderBy(int column, const QString &direction) {
    m_criteria.SearchMaterials(m_search.mSearchFields[static_cast<std::size_t>(column)].field + direction);
}

std::optional<QString> ResultGrid::cellTip(GridArea area, int column) const {
    TDBGrid &grid = *m_search.tdbMaterials;
    if (grid.RowCount() == 0) return std::nullopt; // the grid's own tip tells how to select what is not there
    if (column < 0 || column >= grid.ColumnCount() || area == GridArea::Cell) return QString();
    const QString direction = area == GridArea::Header ? "Ascending" : "Descending";
    return " Order by '" + grid.Columns(column).Caption() + "' - " + direction + ' ';
}

void ResultGrid::navigate(int index) {
    const DataControl &source = index < 4 ? *m_search.dtaMaterials : *m_search.dtaSelected;
    modDBase::RecordNavigate(*source.recordset(), index % 4);
}

/// The standard goes with its material into the selection, so dtaStandard always stands on it.
void ResultGrid::followStandard() {
    const auto materials = m_search.dtaMaterials->recordset();
    if (materials->Eof() || materials->Bof()) return;
    Recordset &standards = *m_search.dtaStandard->recordset();
    standards.FindFirst("standard='" + cellText(materials->Fields("standard")) + '\'');
    if (!standards.NoMatch() || standards.Eof()) return;
    // A material whose standard is not in the database must not be selected with another one's.
    standards.MoveLast();
    standards.MoveNext();
}
