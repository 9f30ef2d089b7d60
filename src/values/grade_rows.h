// From the rows that the database has of one grade to its table, as GradeTables makes it.
#pragma once

#include <span>

#include "values/value_table.h"

/// Of a table over temperature.
struct TemperatureRow {
    static constexpr std::size_t MostCells = 2;
    static constexpr qint32 NullThickness = std::numeric_limits<qint32>::min();

    CellTexts::Id temperature = CellTexts::Empty;
    CellTexts::Id cells[MostCells] = {};
    /// In mm; beside NullThickness any number that the database may hold.
    qint32 thickness = 0;
    double ordering = 0;
};

struct CreepCell {
    double rowNo = 0;
    double ordering = 0;
    CellTexts::Id cell = CellTexts::Empty;
};

/// The functions sort the rows that they are given; rows that the order leaves alike stay as they come from
/// the file.
namespace GradeRows {

struct Table {
    ValueHeads heads;
    /// As ValueTable::set takes them; none for no table.
    std::vector<CellTexts::Id> rows;
};

/// `columns` are the fields of the cells.
Table physical(std::span<TemperatureRow> rows, const QStringList &columns, const CellTexts &texts);

/// `areNumbers`: the database has its cells as numbers. Raises 94 for a row without a thickness, 6 for one
/// beyond 16 bits.
Table elevated(std::span<TemperatureRow> rows, const QString &key, bool areNumbers, const CellTexts &texts);

/// `columns` are the texts of the standard's columns, that of the temperature first. Raises 11 without any.
Table creep(std::span<CreepCell> cells, const QStringList &columns, const CellTexts &texts);

} // namespace GradeRows
