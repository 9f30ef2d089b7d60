#include "material/UnboundTables.h"

#include <QSignalBlocker>

#include "data/cell_values.h"
#include "data/Material.h"
#include "data/modDBase.h"
#include "data/queries.h"
#include "data/table_vocabulary.h"
#include "design/PropertyChart.h"
#include "material/material_layout.h"
#include "material/MaterialControls.h"
#include "material/MaterialSources.h"
#include "material/NoDataPanel.h"
#include "material/NotesPanel.h"
#include "material/unbound_columns.h"
#include "material/UnboundGrid.h"
#include "platform/dao/recordset.h"

namespace {
constexpr float FirstColumnExtra = 250;
const QString CreepKey = QStringLiteral("CreepProp");
} // namespace

/// Where a table's columns and cells come from.
struct UnboundTables::Table {
    QString key;
    QString definitions;
    QString owner;
    int ownerID;

    bool isCreep() const { return key == CreepKey; }
};

UnboundTables::Table UnboundTables::tableOf(const QString &key, const Material &material) {
    // The columns of creep properties belong to the standard, those of the other table to the grade.
    if (key == CreepKey) return {key, "CreepPropTable", "stID", material.StandardID()};
    return {key, "MechMatTable", "matID", material.ID()};
}

UnboundTables::UnboundTables(MaterialControls &controls, MaterialSources &sources, UnboundGrid &table,
                             NotesPanel &notes, NoDataPanel &noData, PropertyChart &chart)
    : m_controls(controls)
    , m_sources(sources)
    , m_table(table)
    , m_notes(notes)
    , m_noData(noData)
    , m_chart(chart) {}

void UnboundTables::LoadUnboundColumns(Material &material, const QString &key) {
    const Table table = tableOf(key, material);
    m_table.grid().setCaption(TableVocabulary::GetTableName(TableVocabulary::GetTableIndex(key)));
    m_controls.cboColumnList->clear();
    MaterialSources::Run(*m_sources.dtaOther,
                         Queries::sqlColumnDefinitions(table.definitions, table.owner, table.ownerID));
    m_notes.LoadNotes(material, key);
    const int count = loadDefinitions(material, table);
    m_table.grid().Rebind();
    storeWidths(material, key);
    LoadUnboundRows(material, key, count);
    if (table.isCreep() && material.TableHasData(key)) {
        columns.iChartColX = columns.mColIDs.value(0);
        columns.iChartColY = columns.mColIDs.value(1);
        m_controls.cboColumnList->setCurrentIndex(0);
    }
    m_chart.BuildColumnChart(material, key);
}

int UnboundTables::loadDefinitions(Material &material, const Table &table) {
    const auto definitions = m_sources.dtaOther->recordset()->Clone();
    const int count = definitions->RecordCount();
    if (count > 0) {
        columns.mColIDs = QVector<qint16>(count + 1, 0);
        if (table.isCreep()) columns.mColCaptions = QStringList(count + 1, QString());
    }
    for (int i = 0; i < count; ++i, definitions->MoveNext()) {
        const qint16 colID = CInt(definitions->Fields("colID"));
        columns.mColIDs[i] = colID;
        const QString text = GetColumnText(colID);
        const QString marker = m_notes.mHasNotes() ? cellText(definitions->Fields("note")) : QString();
        const QString unit = shownUnit(GetUnitText(GetUnitID(text)));
        if (table.isCreep()) columns.mColCaptions[i] = text + " " + unit;
        const QString limit = cellText(definitions->Fields("minMax"));
        const float size = CSng(definitions->Fields("colSize"));
        const QString heading = unboundHeading(text, marker, unit, limit);
        if (i == 0) {
            m_table.grid().Columns(0).setCaption(heading);
            m_table.grid().Columns(0).setWidth(size + FirstColumnExtra);
        } else {
            m_table.AddColumn(heading, size);
        }
        // meant so: a table without data gets its headings stored again at each showing
        if (!material.TableHasData(table.key)) material.AddColCaption(table.key, heading);
    }
    return count;
}

void UnboundTables::storeWidths(Material &material, const QString &key) {
    columns.mColWidths.clear();
    for (int i = 0; i < m_table.grid().ColumnCount(); ++i)
        columns.mColWidths << static_cast<float>(m_table.grid().Columns(i).Width());
    material.setMechCreepColSize(key, columns.mColWidths);
}

void UnboundTables::LoadUnboundRows(Material &material, const QString &key, int count) {
    const int rows = loadCells(material, key, count);
    if (key == CreepKey && material.TableHasData(key)) showCreepColumns(material);
    XArrayDB &cells = *m_table.mTableArray;
    const bool singleEmptyRow = isSingleEmptyRow(cells);
    if (rows == 0) cells.ReDim(1, 1, 0, qMax(count - 1, 0));
    material.SetUnboundArrayData(key, cells);
    m_table.Show();
    // meant so: the row stays on the screen with no message, and reports and graphs take the table for empty
    if (singleEmptyRow) material.setTableHasData(key, false);
}

int UnboundTables::loadCells(Material &material, const QString &key, int count) {
    MaterialSources::Run(*m_sources.dtaTable, Queries::sqlCellRows(Queries::cellTable(key), material.ID()));
    const auto cells = m_sources.dtaTable->recordset()->Clone();
    int rows = 0;
    if (cells->Eof()) {
        material.setTableHasData(key, false);
        m_noData.ShowNoData(material, key);
    } else {
        rows = unboundRowCount(cells->RecordCount(), count);
        columns.aChartXY.ReDim(1, rows, 0, 1);
        material.setTableHasData(key, true);
    }
    *m_table.mTableArray = readUnboundCells(*cells, rows, count);
    return rows;
}

void UnboundTables::showCreepColumns(Material &material) {
    const auto caption = [&material](int column) { return material.ColCaption(CreepKey, column); };
    columns.creep = BuildCreepColumns(
        {*m_table.mTableArray, caption, columns.mColWidths, columns.mColIDs, columns.mColCaptions});
    const CreepColumns &creep = columns.creep;
    material.setMaxDesignCols(creep.maxDesignCols(material.MaxDesignCols()));
    if (creep.xAxisName) m_controls.lblXAxis->setText(*creep.xAxisName);
    {
        // The list is not chosen from while it is filled.
        const QSignalBlocker filling(m_controls.cboColumnList);
        m_controls.cboColumnList->addItems(creep.columnNames);
        m_controls.cboColumnList->setCurrentIndex(-1);
    }
    for (int i = 0; i < creep.EmptyCreepCols.size(); ++i)
        if (creep.EmptyCreepCols[i]) m_table.grid().Columns(i).setVisible(false);
}

QString UnboundTables::GetColumnText(int colID) {
    m_sources.dtaColumns->Refresh();
    return modDBase::GetText(*m_sources.dtaColumns->recordset(), colID, "colID", "colTxt");
}

/// Meant so: the text finds the unit, and of two columns of the same text the first one's unit serves both.
int UnboundTables::GetUnitID(const QString &colTxt) {
    m_sources.dtaColumns->Refresh();
    return modDBase::GetID(*m_sources.dtaColumns->recordset(), colTxt, "colTxt", "unitID");
}

QString UnboundTables::GetUnitText(int unitID) {
    return modDBase::GetText(*m_sources.dtaUnits->recordset(), unitID, "unitID", "unitTxt");
}
