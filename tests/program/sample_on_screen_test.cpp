// Every value of every grade of the sample, as it stands on the screen, against the texts it was made from.
#include <gtest/gtest.h>

#include "data/cell_values.h"
#include "data/table_vocabulary.h"
#include "material/frmMaterial2.h"
#include "tests/support/csv_table.h"
#include "tests/support/gui.h"
#include "tests/support/program.h"

namespace {

constexpr int Grades = 38;

/// Place and value of each cell that says something, in an order of their own.
QStringList sorted(QStringList cells) {
    cells.sort();
    return cells;
}

void addCell(QStringList &cells, const QString &row, const QString &column, const QString &value) {
    if (!isNoValue(value)) cells << row + " / " + column + ": " + value;
}

/// A table over temperature: its other columns are values, or one of them is and `thickness` names its place.
QMap<int, QStringList> valuesOverTemperature(const CsvTable &text) {
    QMap<int, QStringList> cells;
    for (const QVector<QVariant> &row : text.rows) {
        QString band;
        for (qsizetype i = 2; i < row.size(); ++i) {
            const QString &name = text.fields[i].name;
            if (name == "thickness" && row[i].toInt() != -1) band = row[i].toString();
            if (name == "thickness" || name == "ordering") continue;
            addCell(cells[row[0].toInt()], cellText(row[1]), band.isEmpty() ? name : band, cellText(row[i]));
        }
    }
    return cells;
}

/// The rows of the text stand in their order, and so do the cells of a row.
QMap<int, QStringList> valuesByPlace(const CsvTable &text) {
    QMap<int, QStringList> cells;
    int grade = 0, rowNo = 0, row = 0, column = 0;
    for (const QVector<QVariant> &cell : text.rows) {
        const bool newGrade = cell[0].toInt() != grade;
        const bool newRow = newGrade || cell[1].toInt() != rowNo;
        row = newGrade ? 0 : newRow ? row + 1 : row;
        column = newRow ? 0 : column + 1;
        grade = cell[0].toInt();
        rowNo = cell[1].toInt();
        addCell(cells[grade], QString::number(row), QString::number(column), cellText(cell[4]));
    }
    return cells;
}

QStringList shown(TDBGrid &grid, bool overTemperature) {
    QStringList cells;
    for (int row = 0; row < grid.RowCount(); ++row) {
        for (int column = overTemperature ? 1 : 0; column < grid.ColumnCount(); ++column) {
            if (!grid.Columns(column).Visible()) continue;
            addCell(cells, overTemperature ? grid.CellText(row, 0) : QString::number(row),
                    overTemperature ? grid.Columns(column).DataField() : QString::number(column),
                    grid.CellText(row, column));
        }
    }
    return cells;
}

} // namespace

TEST(SampleOnScreen, EveryPropertyValueStandsInItsPlace) {
    const TestProgram program;
    const auto text = [](const QString &table) {
        return CsvTable::read(SOURCE_FOLDER "/sample/csv/" + table + ".csv");
    };
    QMap<QString, QMap<int, QStringList>> expected{{"MechProp", valuesByPlace(text("MechPropData"))},
                                                   {"CreepProp", valuesByPlace(text("CreepProperties"))}};
    for (const char *key : {"ImpEnergy", "Rp02", "Rp10", "Rm", "ModElast", "ThermExp", "ThermCond",
                            "SpecThermCap", "SpecElecRes"})
        expected[key] = valuesOverTemperature(text(key));

    for (int matID = 1; matID <= Grades; ++matID) {
        frmMaterial2 &window = program.open(program.material(matID));
        for (auto table = expected.cbegin(); table != expected.cend(); ++table) {
            window.ShowTable(table.key());
            const bool unbound = TableVocabulary::isUnbound(table.key());
            TDBGrid &grid = unbound ? *window.tdbTable : *window.tdbBoundTable;
            EXPECT_EQ(sorted(grid.isHidden() ? QStringList() : shown(grid, !unbound)),
                      sorted(table->value(matID)))
                << matID << ' ' << table.key().toStdString();
        }
        window.Unload();
        deleteUnloaded();
    }
}
