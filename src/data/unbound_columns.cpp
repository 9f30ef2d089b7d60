#include "data/unbound_columns.h"

#include "data/cell_values.h"
#include "platform/dao/recordset.h"
#include "platform/runtime/runtime_error.h"

QString unboundHeading(const QString &text, const QString &marker, const QString &unit,
                       const QString &limit) {
    return text + LineEnd + marker + LineEnd + unit + LineEnd + limit;
}

QString shownUnit(const QString &unitText) {
    return unitText == QLatin1String("[NoUnit]") ? QString() : unitText;
}

int unboundRowCount(int cells, int columns) {
    if (columns == 0) throw RuntimeError(11);
    return CLng(static_cast<double>(cells) / columns);
}

XArrayDB readUnboundCells(Recordset &cells, int rows, int columns) {
    XArrayDB table;
    table.ReDim(1, rows, 0, columns - 1);
    for (int row = 1; row <= rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const bool isThere = !cells.Eof();
            table.Set(row, column, isThere ? cellValue(cells.Fields("val")) : QVariant(QString()));
            if (isThere) cells.MoveNext();
        }
    }
    return table;
}

bool isSingleEmptyRow(const XArrayDB &table) {
    if (table.Count(1) != 1) return false;
    for (int column = table.LowerBound(2); column <= table.UpperBound(2); ++column)
        if (!cellText(table.Get(table.LowerBound(1), column)).isEmpty()) return false;
    return true;
}
