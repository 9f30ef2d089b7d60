#include "values/grade_rows.h"

#include <algorithm>
#include <cmath>

#include "data/unbound_columns.h"
#include "platform/runtime/conversions.h"
#include "platform/runtime/runtime_error.h"

namespace {

using Id = CellTexts::Id;

/// What `thickness` holds in a table without bands.
constexpr qint16 NoBands = -1;

/// Null comes first.
double temperatureOf(const TemperatureRow &row, const CellTexts &texts) {
    const double celsius = texts[row.temperature].exactCelsius;
    return std::isnan(celsius) ? -std::numeric_limits<double>::infinity() : celsius;
}

qint16 thicknessOf(const TemperatureRow &row) {
    if (row.thickness == TemperatureRow::NullThickness) throw RuntimeError(94);
    return CInt(row.thickness);
}

ThicknessBands bandsOf(std::span<const TemperatureRow> rows) {
    ThicknessBands bands{{0}};
    for (const TemperatureRow &row : rows) {
        const qint16 thickness = thicknessOf(row);
        if (bands.limits.size() == 1 || bands.limits.last() != thickness) bands.limits << thickness;
    }
    return bands;
}

Id greater(Id left, Id right, bool areNumbers, const CellTexts &texts) {
    if (left == right || right == CellTexts::Empty) return left;
    if (left == CellTexts::Empty) return right;
    const bool isGreater = areNumbers ? texts[right].exactCelsius > texts[left].exactCelsius
                                      : texts[right].text.toUtf8() > texts[left].text.toUtf8();
    return isGreater ? right : left;
}

/// A row a temperature, in the order of `ordering`, a column a band. Of two cells in one place the greater
/// stands.
std::vector<Id> crosstab(std::span<TemperatureRow> rows, const ThicknessBands &bands, bool areNumbers,
                         const CellTexts &texts) {
    const auto key = [&texts](const TemperatureRow &row) {
        return std::pair(row.ordering, temperatureOf(row, texts));
    };
    std::stable_sort(rows.begin(), rows.end(), [&](const TemperatureRow &left, const TemperatureRow &right) {
        return key(left) < key(right);
    });
    const std::size_t width = static_cast<std::size_t>(bands.count()) + 1;
    std::vector<Id> table;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (i == 0 || key(rows[i]) != key(rows[i - 1])) {
            table.push_back(rows[i].temperature);
            table.resize(table.size() + width - 1, CellTexts::Empty);
        }
        const auto band = static_cast<std::size_t>(bands.limits.indexOf(CInt(rows[i].thickness), 1));
        Id &cell = table[table.size() - width + band];
        cell = greater(cell, rows[i].cells[0], areNumbers, texts);
    }
    return table;
}

std::vector<Id> asTheyStand(std::span<const TemperatureRow> rows, std::size_t cells) {
    std::vector<Id> table;
    for (const TemperatureRow &row : rows) {
        table.push_back(row.temperature);
        table.insert(table.end(), row.cells, row.cells + cells);
    }
    return table;
}

} // namespace

GradeRows::Table GradeRows::physical(std::span<TemperatureRow> rows, const QStringList &columns,
                                     const CellTexts &texts) {
    std::stable_sort(rows.begin(), rows.end(), [&](const TemperatureRow &left, const TemperatureRow &right) {
        return temperatureOf(left, texts) < temperatureOf(right, texts);
    });
    return {{{}, columns}, asTheyStand(rows, static_cast<std::size_t>(columns.size()))};
}

GradeRows::Table GradeRows::elevated(std::span<TemperatureRow> rows, const QString &key, bool areNumbers,
                                     const CellTexts &texts) {
    std::stable_sort(rows.begin(), rows.end(), [](const TemperatureRow &left, const TemperatureRow &right) {
        return std::pair(left.thickness, left.ordering) < std::pair(right.thickness, right.ordering);
    });
    if (thicknessOf(rows.front()) == NoBands) return {{{}, {key}}, asTheyStand(rows, 1)};
    const ThicknessBands bands = bandsOf(rows);
    return {{bands, QStringList(bands.count(), key)}, crosstab(rows, bands, areNumbers, texts)};
}

GradeRows::Table GradeRows::creep(std::span<CreepCell> cells, const QStringList &columns,
                                  const CellTexts &texts) {
    std::stable_sort(cells.begin(), cells.end(), [](const CreepCell &left, const CreepCell &right) {
        return std::pair(left.rowNo, left.ordering) < std::pair(right.rowNo, right.ordering);
    });
    const auto width = static_cast<std::size_t>(columns.size());
    const auto rows = static_cast<std::size_t>(
        unboundRowCount(static_cast<int>(cells.size()), static_cast<int>(columns.size())));
    const auto cell = [&](std::size_t row, std::size_t column) {
        const std::size_t place = row * width + column;
        return place < cells.size() ? cells[place].cell : CellTexts::Empty;
    };
    std::vector<std::size_t> kept;
    for (std::size_t column = 0; column < width; ++column)
        for (std::size_t row = 0; row < rows; ++row)
            if (!texts[cell(row, column)].isEmptyCreep) {
                kept.push_back(column);
                break;
            }
    Table table;
    if (kept.size() < 2) return table; // no value column
    for (auto column = kept.begin() + 1; column != kept.end(); ++column)
        table.heads.columns << columns[static_cast<qsizetype>(*column)];
    for (std::size_t row = 0; row < rows; ++row)
        for (const std::size_t column : kept)
            table.rows.push_back(cell(row, column));
    return table;
}
