// Columns added to the grids of a material window.
#pragma once

#include <QString>

class GridColumn;
class TDBGrid;

/// Behind the last column: visible, centred in cell and heading, with word wrap. A width of 0 gives 780
/// twips.
GridColumn &AddGridColumn(TDBGrid &grid, const QString &caption, double width);
