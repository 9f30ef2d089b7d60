// The tables whose columns are rows of the database: headings, and cells by their position.
#pragma once

#include <QString>

#include "platform/runtime/x_array_db.h"

class Recordset;

/// Four lines, each of which may be empty.
QString unboundHeading(const QString &text, const QString &marker, const QString &unit, const QString &limit);

/// The unit as a heading shows it: one that says that there is none is empty.
QString shownUnit(const QString &unitText);

/// Rounds a half to the even neighbour. Raises 11 without columns.
int unboundRowCount(int cells, int columns);

/// Rows from 1, columns from 0, filled row by row in the order of `cells`: only a cell's position counts.
/// A place behind the last cell is empty.
XArrayDB readUnboundCells(Recordset &cells, int rows, int columns);

/// One row, and nothing in it.
bool isSingleEmptyRow(const XArrayDB &table);
