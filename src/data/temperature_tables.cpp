#include "data/temperature_tables.h"

#include "data/cell_values.h"
#include "data/loaded_table.h"
#include "data/Material.h"
#include "data/modVelmar.h"
#include "data/queries.h"
#include "data/table_notes.h"
#include "data/table_vocabulary.h"
#include "data/temperature_columns.h"
#include "platform/dao/database.h"
#include "platform/dao/recordset.h"

namespace {

constexpr float ColumnWidth = 1200;
constexpr float BandWidth = 900;
/// What `thickness` holds in a table without bands.
constexpr qint16 NoBands = -1;

void growMaxDesignCols(Material &material, int count) {
    if (count > material.MaxDesignCols()) material.setMaxDesignCols(static_cast<qint16>(count));
}

void addFixedColumns(LoadedTable &table) {
    for (const TemperatureColumn &column : temperatureColumns(table.key))
        table.columns << TableColumn{column.field, column.heading, column.unit, column.picture, ColumnWidth};
}

void LoadThicknessColumns(Recordset &rows, Material &material, LoadedTable &table) {
    table.bands = bandLimits(rows);
    material.setElevatedColumns(table.key, table.bands);
    for (int band = 1; band < table.bands.size(); ++band)
        table.columns << TableColumn{QString::number(table.bands[band]),
                                     bandHeading(table.bands, band),
                                     temperatureColumns(table.key)[0].unit,
                                     {},
                                     BandWidth};
    growMaxDesignCols(material, static_cast<int>(table.bands.size()) - 1);
}

void HideEmptyImpactColumns(Recordset &rows, Material &material, LoadedTable &table) {
    if (rows.Eof()) return;
    const EmptyImpactColumns empty = emptyImpactColumns(rows);
    table.columns[1].hidden = empty.kv;
    table.columns[2].hidden = empty.kvLong;
    table.columns[3].hidden = empty.kvTrans;
    material.setImpEnergyCols(empty.columnsWithValues());
}

/// The rows, and not the columns, count as value columns: the design table has always been that wide, and a
/// report laid out for it would break its columns elsewhere.
void CountTemperatureRows(const Recordset &rows, Material &material) {
    growMaxDesignCols(material, rows.RecordCount());
}

void readCells(Recordset &rows, LoadedTable &table) {
    const int last = static_cast<int>(table.columns.size()) - 1;
    table.cells.ReDim(1, rows.RecordCount(), 0, last);
    for (int row = 1; !rows.Eof(); rows.MoveNext(), ++row) {
        table.temperatures << rows.Fields(table.columns[0].field);
        for (int column = 0; column <= last; ++column)
            table.cells.Set(row, column, cellText(rows.Fields(table.columns[column].field)));
    }
}

SourceArray sourceOf(const LoadedTable &table) {
    const int last = table.cells.UpperBound(2);
    SourceArray source(table.cells.Count(1), last);
    for (int row = 1; row <= source.rowCount(); ++row)
        for (int column = 0; column <= last; ++column)
            source.setText(row, column, table.cells.Get(row, column).toString());
    return source;
}

} // namespace

void loadTemperatureTable(Database &database, Material &material, LoadedTable &table) {
    readNotes(database, material, table);
    const QString &key = table.key;
    const bool elevated = TableVocabulary::isElevated(key);
    QString sql = elevated ? Queries::sqlElevatedRows(key, material.ID())
                           : Queries::sqlTemperatureRows(key, material.ID());
    auto dtaTable = database.OpenRecordset(sql);
    const bool hasRows = dtaTable->RecordCount() > 0;
    material.setTableHasData(key, hasRows);
    if (!hasRows) table.noData = modVelmar::NoDataText(material, key, true, true);

    table.columns << TableColumn{
        "temp", "Temperature " + LineEnd + LineEnd + "[°C]", "[°C]", {}, ColumnWidth};
    const bool bMultiCol = elevated && hasRows && CInt(dtaTable->Fields("thickness")) != NoBands;
    if (elevated && hasRows) material.setElevatedMultiCol(key, bMultiCol);
    if (bMultiCol) {
        LoadThicknessColumns(*dtaTable, material, table);
        sql = Queries::sqlElevatedPivot(key, material.ID());
    } else {
        addFixedColumns(table);
    }
    if (key == QLatin1String("ImpEnergy")) HideEmptyImpactColumns(*dtaTable, material, table);
    if (key == QLatin1String("ThermExp") || key == QLatin1String("SpecThermCap"))
        CountTemperatureRows(*dtaTable, material);
    dtaTable = database.OpenRecordset(sql);
    readCells(*dtaTable, table);
    if (hasRows && key != QLatin1String("ImpEnergy")) table.source = sourceOf(table);
}
