#include "material/UnboundGrid.h"

#include "data/loaded_table.h"
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
    showArray();
}

void UnboundGrid::Show(const LoadedTable &table) {
    m_grid.setCaption(table.caption);
    for (int i = 0; i < table.columns.size(); ++i) {
        const TableColumn &column = table.columns[i];
        if (i == 0 && column.width > 0) {
            m_grid.Columns(0).setCaption(column.heading);
            m_grid.Columns(0).setWidth(column.width);
        } else if (i > 0) {
            AddGridColumn(m_grid, column.heading, column.width);
        }
        m_grid.Columns(i).setVisible(!column.hidden);
    }
    mTableArray = std::make_shared<XArrayDB>(table.cells);
    showArray();
}

void UnboundGrid::showArray() {
    m_grid.setArray(mTableArray);
    m_grid.Rebind();
}
