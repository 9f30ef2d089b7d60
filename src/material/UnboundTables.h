// The pages of mechanical properties at room temperature and of creep properties.
#pragma once

#include <QString>

#include "material/UnboundColumns.h"

class Material;
class NoDataPanel;
class NotesPanel;
class PropertyChart;
class UnboundGrid;
class WindowTables;
struct LoadedTable;
struct MaterialControls;

class UnboundTables {
public:
    UnboundTables(MaterialControls &controls, WindowTables &tables, UnboundGrid &grid, NotesPanel &notes,
                  NoDataPanel &noData, PropertyChart &chart);

    /// `key` is "MechProp" or "CreepProp". The grid is cleared.
    void LoadUnboundColumns(Material &material, const QString &key);

    UnboundColumns columns;

private:
    void offerCreepColumns(const LoadedTable &table);

    MaterialControls &m_controls;
    WindowTables &m_tables;
    UnboundGrid &m_grid;
    NotesPanel &m_notes;
    NoDataPanel &m_noData;
    PropertyChart &m_chart;
};
