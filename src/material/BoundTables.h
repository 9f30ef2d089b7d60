// The pages of the tables over temperature.
#pragma once

#include <QString>

class Material;
class NoDataPanel;
class NotesPanel;
class PropertyChart;
class WindowTables;
struct LoadedTable;
struct MaterialControls;

class BoundTables {
public:
    BoundTables(MaterialControls &controls, WindowTables &tables, NotesPanel &notes, NoDataPanel &noData,
                PropertyChart &chart);

    /// As the window is designed.
    void InitColumns();
    /// Four columns, of which the first two show.
    void ResetColumns();
    /// The columns are reset.
    void LoadBoundTable(Material &material, const QString &key);

private:
    void setColumns(const LoadedTable &table);
    void setHeadPicture(int column, const QString &formula);

    MaterialControls &m_controls;
    WindowTables &m_tables;
    NotesPanel &m_notes;
    NoDataPanel &m_noData;
    PropertyChart &m_chart;
};
