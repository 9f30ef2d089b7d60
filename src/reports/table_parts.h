// How a table goes on paper: the width of its columns, and which of them stand beside each other.
#pragma once

#include <QVector>

struct TakenTable;

/// Columns of a table by their place, with their widths in twips.
struct TablePart {
    QVector<int> columns;
    QVector<int> widths;
};

/// Each begins with the key columns, which take half of the `room` in twips at most, and holds as many of the
/// others as there is room for, at least one.
QVector<TablePart> partsOf(const TakenTable &table, int room);
