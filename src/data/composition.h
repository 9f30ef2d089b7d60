// The chemical composition, turned from rows of limits into columns of elements.
#pragma once

#include <QStringList>

#include "platform/runtime/x_array_db.h"

class Database;
class Material;
class Recordset;
struct LoadedTable;

struct Composition {
    /// Rows 1 (minima) and 2 (maxima); column 0 holds the row labels, column i the i-th element.
    XArrayDB cells;
    /// Element i - 1 is the heading of column i, in three lines.
    QStringList headings;
};

/// `limits` holds two rows an element, first the minimum and then the maximum; it stands on its first row.
/// The markers are left out of the headings unless `withMarkers`.
///
/// The number of pairs is rounded, a half to the even neighbour: of five rows the last is ignored, and three
/// rows are taken for two pairs, which raises 3021.
Composition readComposition(Recordset &limits, bool withMarkers);

/// Reads the table "ChemComp", the further elements that the standard promises among it. Raises 3021 where
/// there is no row of these.
void loadComposition(Database &database, Material &material, LoadedTable &table);
