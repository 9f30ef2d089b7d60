// The message in the place of a table without data.
#pragma once

class GraphSwitch;
struct LoadedTable;
struct MaterialControls;

class NoDataPanel {
public:
    NoDataPanel(MaterialControls &controls, GraphSwitch &graphs);

    void ShowNoData(const LoadedTable &table);

private:
    MaterialControls &m_controls;
    GraphSwitch &m_graphs;
};
