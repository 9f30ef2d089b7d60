// The graph of the table on show.
#pragma once

class Material;
class QString;
class WindowTables;
struct LoadedTable;
struct MaterialControls;
struct UnboundColumns;

class PropertyChart {
public:
    /// `columns` belong to the table on show.
    PropertyChart(MaterialControls &controls, WindowTables &tables, UnboundColumns &columns);

    /// Of a table over temperature. Without rows the graph stays as it was.
    void BuildChart(const LoadedTable &table);
    /// Of column iChartColY over column iChartColX of "MechProp" or "CreepProp".
    void BuildColumnChart(const Material &material, const QString &key);

    /// The columns that are picked in cboColumnList; False with none picked.
    bool pickColumns();

private:
    /// False where the table has nothing to draw.
    bool showChart(bool hasData);

    MaterialControls &m_controls;
    WindowTables &m_tables;
    UnboundColumns &m_columns;
};
