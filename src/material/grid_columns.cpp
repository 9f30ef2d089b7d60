#include "material/grid_columns.h"

#include "material/material_layout.h"
#include "platform/forms/tdb_grid.h"

GridColumn &AddGridColumn(TDBGrid &grid, const QString &caption, double width) {
    GridColumn &column = grid.AddColumn(caption);
    column.setVisible(true);
    column.setAlignment(Qt::AlignHCenter);
    column.setHeadAlignment(Qt::AlignHCenter);
    column.setWordWrap(true);
    column.setWidth(width == 0 ? MaterialLayout::UnboundColumnWidth : width);
    return column;
}
