// The cells of a sheet of values, each row computed when it is looked at.
#pragma once

#include <memory>

#include "platform/forms/grid_cells.h"
#include "values/value_sheet.h"

namespace SheetCells {

/// The temperature, then a cell a column. Temperatures at which a table has a row of its own are marked, with
/// `ground` and a tip that tells which; its values are bold.
std::shared_ptr<const GridCells> of(std::shared_ptr<const GradeValues> grade,
                                    const QVector<ValueColumn> &columns, const QStringList &temperatures,
                                    const QColor &ground);

} // namespace SheetCells
