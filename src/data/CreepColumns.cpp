#include "data/CreepColumns.h"

#include <algorithm>

#include "data/cell_values.h"

bool isEmptyCreepCell(const QString &text) {
    return isNoValue(text) || text == QLatin1String(" ");
}

qint16 CreepColumns::maxDesignCols(qint16 before) const {
    if (aCreepWidths.isEmpty()) return 0;
    return std::max(before, static_cast<qint16>(aCreepWidths.size() - 1));
}

QVector<bool> emptyCreepColumns(const XArrayDB &cells) {
    QVector<bool> flags(cells.Count(2), true);
    for (int column = 0; column < flags.size(); ++column)
        for (int row = cells.LowerBound(1); row <= cells.UpperBound(1); ++row)
            if (!isEmptyCreepCell(cellText(cells.Get(row, column)))) flags[column] = false;
    return flags;
}

CreepColumns BuildCreepColumns(const CreepTable &table) {
    CreepColumns result;
    result.EmptyCreepCols = emptyCreepColumns(table.cells);
    result.aCreepData = SourceArray(table.cells.UpperBound(1));
    for (int column = 0; column < result.EmptyCreepCols.size(); ++column) {
        if (result.EmptyCreepCols[column]) continue;
        QStringList texts;
        for (int row = 1; row <= table.cells.UpperBound(1); ++row)
            texts << cellText(table.cells.Get(row, column));
        result.aCreepData.appendColumn(texts);
        result.aCreepCaptions << table.caption(column);
        result.aCreepWidths << table.widths[column];
        if (column == 0) {
            result.xAxisName = table.names[0];
        } else {
            result.aCreepColIDs << table.colIDs[column];
            result.columnNames << table.names[column];
        }
    }
    return result;
}
