#include "material/BoundTables.h"

#include "data/cell_values.h"
#include "data/loaded_table.h"
#include "data/table_vocabulary.h"
#include "material/grid_columns.h"
#include "material/material_layout.h"
#include "material/MaterialControls.h"
#include "material/NoDataPanel.h"
#include "material/NotesPanel.h"
#include "material/PropertyChart.h"
#include "material/WindowTables.h"

namespace {

constexpr int DesignedColumns = 4;
constexpr int DesignedTemperatureWidth = 1500;

} // namespace

BoundTables::BoundTables(MaterialControls &controls, WindowTables &tables, NotesPanel &notes,
                         NoDataPanel &noData, PropertyChart &chart)
    : m_controls(controls)
    , m_tables(tables)
    , m_notes(notes)
    , m_noData(noData)
    , m_chart(chart) {}

void BoundTables::InitColumns() {
    TDBGrid &grid = *m_controls.tdbBoundTable;
    GridColumn &temperature = grid.Columns(0);
    temperature.setCaption("Temperature " + LineEnd + LineEnd + "[°C]");
    temperature.setDataField("temp");
    temperature.setWidth(DesignedTemperatureWidth);
    grid.Rebind();
}

/// The temperature keeps the width of 1200 from the first reset on: a wider one takes the room of the last
/// band.
void BoundTables::ResetColumns() {
    TDBGrid &grid = *m_controls.tdbBoundTable;
    while (grid.ColumnCount() > DesignedColumns)
        grid.RemoveColumn(grid.ColumnCount() - 1);
    for (int i = 0; i < DesignedColumns; ++i)
        grid.Columns(i).setWidth(MaterialLayout::BoundColumnWidth);
    grid.Columns(2).setVisible(false);
    grid.Columns(3).setVisible(false);
    grid.Rebind();
}

void BoundTables::LoadBoundTable(Material &material, const QString &key) {
    const LoadedTable table = m_tables.load(material, key);
    m_notes.LoadNotes(table);
    if (!table.noData.isEmpty()) m_noData.ShowNoData(table);
    setColumns(table);
    TDBGrid &grid = *m_controls.tdbBoundTable;
    grid.setArray(std::make_shared<XArrayDB>(table.cells));
    const TableVocabulary::Table *known = TableVocabulary::find(key);
    if (known && known->yAxisTitle) m_chart.BuildChart(table);
    grid.Rebind();
    grid.setCaption(table.caption);
}

void BoundTables::setColumns(const LoadedTable &table) {
    TDBGrid &grid = *m_controls.tdbBoundTable;
    while (grid.ColumnCount() < table.columns.size())
        AddGridColumn(grid, {}, table.columns.last().width);
    for (int i = 1; i < grid.ColumnCount(); ++i) {
        GridColumn &column = grid.Columns(i);
        column.setVisible(i < table.columns.size() && !table.columns[i].hidden);
        if (i >= table.columns.size()) continue;
        column.setDataField(table.columns[i].field);
        column.setCaption(table.columns[i].heading);
        column.setWidth(table.columns[i].width);
    }
    for (const int i : {1, 2})
        setHeadPicture(i, i < table.columns.size() ? table.columns[i].picture : QString());
}

/// The heading's text then serves the reports alone.
void BoundTables::setHeadPicture(int column, const QString &formula) {
    GridColumn &heading = m_controls.tdbBoundTable->Columns(column);
    heading.setPicturePosition(formula.isEmpty() ? HeadPicturePosition::TextOnly
                                                 : HeadPicturePosition::PictureOnly);
    for (const auto *store : {&m_controls.imgPhys, &m_controls.imgTherm})
        for (const auto &[index, picture] : *store)
            if (!formula.isEmpty() && picture->Picture().endsWith('/' + formula + ".svg"))
                heading.setHeadPicture(picture->Picture());
}
