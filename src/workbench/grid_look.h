// What the grids of the tools have in common.
#pragma once

#include <QColor>
#include <QStringList>

#include "data/grades.h"

class TDBGrid;

namespace WorkbenchGrid {

/// The program's colours for its rows.
void setLook(TDBGrid &grid);
/// One column each; widths are those of `samples` in the grid's font.
void setColumns(TDBGrid &grid, const QStringList &captions, const QStringList &samples);
/// Name, number and standard, a line each.
QString heading(const Grades::Grade &grade);
/// The ground of a cell that stands out.
QColor markColour(const TDBGrid &grid);

} // namespace WorkbenchGrid
