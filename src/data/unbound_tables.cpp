#include "data/unbound_tables.h"

#include "data/cell_values.h"
#include "data/column_names.h"
#include "data/loaded_table.h"
#include "data/Material.h"
#include "data/modVelmar.h"
#include "data/queries.h"
#include "data/table_notes.h"
#include "data/unbound_columns.h"
#include "platform/dao/database.h"
#include "platform/dao/recordset.h"

namespace {

const QString CreepKey = QStringLiteral("CreepProp");

constexpr float FirstColumnExtra = 250;
/// Of a column that is defined without a width.
constexpr float DefaultWidth = 780;

/// The columns of creep properties belong to the standard, those of the other table to the grade.
QString definitionsOf(const QString &key, const Material &material) {
    return key == CreepKey ? Queries::sqlColumnDefinitions("CreepPropTable", "stID", material.StandardID())
                           : Queries::sqlColumnDefinitions("MechMatTable", "matID", material.ID());
}

struct Reading {
    Database &database;
    const Recordset &units;
    Material &material;
    LoadedTable &table;
    /// Of creep properties: column text and unit in one line, one element more than there are columns.
    QStringList mColCaptions;

    bool isCreep() const { return table.key == CreepKey; }

    /// The number of columns.
    int readDefinitions(Recordset &definitions) {
        const int count = definitions.RecordCount();
        if (count > 0) {
            table.colIDs = QVector<qint16>(count + 1, 0);
            if (isCreep()) mColCaptions = QStringList(count + 1, QString());
        }
        for (int i = 0; i < count; ++i, definitions.MoveNext())
            readDefinition(definitions, i);
        if (count == 0) table.columns << TableColumn{{}, {}, {}, {}, DefaultWidth};
        return count;
    }

    void readDefinition(const Recordset &definition, int i) {
        const qint16 colID = CInt(definition.Fields("colID"));
        table.colIDs[i] = colID;
        const auto [text, unit] = columnName(database, units, colID);
        const QString marker = table.hasNotes ? cellText(definition.Fields("note")) : QString();
        if (isCreep()) mColCaptions[i] = text + " " + unit;
        const QString limit = cellText(definition.Fields("minMax"));
        const float size = CSng(definition.Fields("colSize"));
        const QString heading = unboundHeading(text, marker, unit, limit);
        const float further = size == 0 ? DefaultWidth : size;
        table.columns << TableColumn{{}, heading, unit, {}, i == 0 ? size + FirstColumnExtra : further};
        // A table without data gets its headings stored again at each loading: the store only grows, and what
        // is read of it stands in its front.
        if (!material.TableHasData(table.key)) material.AddColCaption(table.key, heading);
    }

    QVector<float> widths() const {
        QVector<float> mColWidths;
        for (const TableColumn &column : table.columns)
            mColWidths << column.width;
        return mColWidths;
    }

    void LoadUnboundRows(int count) {
        const auto dtaTable =
            database.OpenRecordset(Queries::sqlCellRows(Queries::cellTable(table.key), material.ID()));
        if (dtaTable->Eof()) {
            material.setTableHasData(table.key, false);
            table.noData = modVelmar::NoDataText(material, table.key, true, true);
        } else {
            table.rowCount = unboundRowCount(dtaTable->RecordCount(), count);
            material.setTableHasData(table.key, true);
        }
        table.cells = readUnboundCells(*dtaTable, table.rowCount, count);
        if (isCreep() && material.TableHasData(table.key)) readCreepColumns();
        const bool singleEmptyRow = isSingleEmptyRow(table.cells);
        if (table.rowCount == 0) table.cells.ReDim(1, 1, 0, qMax(count - 1, 0));
        material.SetUnboundArrayData(table.key, table.cells);
        // The row stays on the screen with no message, and reports and graphs take the table for empty: on
        // paper its captions would announce values that are not there.
        if (singleEmptyRow) material.setTableHasData(table.key, false);
    }

    void readCreepColumns() {
        const auto caption = [this](int column) { return material.ColCaption(CreepKey, column); };
        table.creep = BuildCreepColumns({table.cells, caption, widths(), table.colIDs, mColCaptions});
        material.setMaxDesignCols(table.creep->maxDesignCols(material.MaxDesignCols()));
        for (int i = 0; i < table.creep->EmptyCreepCols.size(); ++i)
            table.columns[i].hidden = table.creep->EmptyCreepCols[i];
    }
};

} // namespace

void loadUnboundTable(Database &database, const Recordset &units, Material &material, LoadedTable &table) {
    const auto dtaOther = database.OpenRecordset(definitionsOf(table.key, material));
    readNotes(database, material, table);
    Reading reading{database, units, material, table, {}};
    const int count = reading.readDefinitions(*dtaOther);
    material.setMechCreepColSize(table.key, reading.widths());
    reading.LoadUnboundRows(count);
}
