#include "material/UnboundGrid.h"

#include "material/grid_columns.h"
#include "material/material_layout.h"
#include "platform/forms/tdb_grid.h"
#include "platform/runtime/x_array_db.h"

UnboundGrid::UnboundGrid(TDBGrid &tdbTable)
    : mTableArray(std::make_shared<XArrayDB>())
    , m_grid(tdbTable) {}

void UnboundGrid::ClearUnboundGrid() {
    while (m_grid.ColumnCount() > 1)
        m_grid.RemoveColumn(m_grid.ColumnCount() - 1);
    GridColumn &first = m_grid.Columns(0);
    first.setCaption({});
    first.setWidth(MaterialLayout::UnboundColumnWidth);
    first.setVisible(true); // an empty creep column may have been the first one
    mTableArray->Clear();
    mTableArray->ReDim(1, 1, 0, 0);
    Show();
}

void UnboundGrid::AddColumn(const QString &heading, double width) {
    AddGridColumn(m_grid, heading, width);
}

void UnboundGrid::Show() {
    m_grid.setArray(mTableArray);
    m_grid.Rebind();
}
