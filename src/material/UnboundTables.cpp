#include "material/UnboundTables.h"

#include <QSignalBlocker>

#include "data/loaded_table.h"
#include "material/MaterialControls.h"
#include "material/NoDataPanel.h"
#include "material/NotesPanel.h"
#include "material/PropertyChart.h"
#include "material/UnboundGrid.h"
#include "material/WindowTables.h"

UnboundTables::UnboundTables(MaterialControls &controls, WindowTables &tables, UnboundGrid &grid,
                             NotesPanel &notes, NoDataPanel &noData, PropertyChart &chart)
    : m_controls(controls)
    , m_tables(tables)
    , m_grid(grid)
    , m_notes(notes)
    , m_noData(noData)
    , m_chart(chart) {}

void UnboundTables::LoadUnboundColumns(Material &material, const QString &key) {
    m_controls.cboColumnList->clear();
    const LoadedTable table = m_tables.load(material, key);
    m_notes.LoadNotes(table);
    m_grid.Show(table);
    if (!table.noData.isEmpty()) m_noData.ShowNoData(table);
    if (!table.colIDs.isEmpty()) columns.mColIDs = table.colIDs;
    if (table.noData.isEmpty()) columns.aChartXY.ReDim(1, table.rowCount, 0, 1);
    if (table.creep) offerCreepColumns(table);
    m_chart.BuildColumnChart(material, key);
}

void UnboundTables::offerCreepColumns(const LoadedTable &table) {
    if (table.creep->xAxisName) m_controls.lblXAxis->setText(*table.creep->xAxisName);
    {
        // The list is not chosen from while it is filled.
        const QSignalBlocker filling(m_controls.cboColumnList);
        m_controls.cboColumnList->addItems(table.creep->columnNames);
        m_controls.cboColumnList->setCurrentIndex(-1);
    }
    if (!table.hasData) return;
    columns.iChartColX = columns.mColIDs.value(0);
    columns.iChartColY = columns.mColIDs.value(1);
    m_controls.cboColumnList->setCurrentIndex(0);
}
