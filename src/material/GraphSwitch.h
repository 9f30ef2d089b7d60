// Table or graph: the two share one place on the window.
#pragma once

struct MaterialControls;

class GraphSwitch {
public:
    explicit GraphSwitch(MaterialControls &controls);

    /// The user has chosen the graph of the bound tables. It holds across changes of table.
    bool bGraphShown = false;

    /// One of CommandShowGraph and CommandShowTable.
    void SetShowButtons(bool offerGraph);
    /// Of a bound table.
    void ShowChartFrames(bool graph);
    /// Of an unbound table.
    void ShowUnboundGraph(bool graph);
    /// framBlank in the place of framOptions.
    void ResetBlank();

private:
    MaterialControls &m_controls;
};
