// Table or graph: the two share one place on the window.
#pragma once

struct MaterialControls;

class GraphSwitch {
public:
    explicit GraphSwitch(MaterialControls &controls);

    /// The user has chosen the graph of the bound tables. It holds across changes of table.
    bool bGraphShown = false;

    /// A click on one of the two buttons.
    void Choose(bool graph);
    /// A bound table comes on show, as a graph if that is what the user has chosen.
    void ShowBoundPage(bool hasGraph);
    /// One of CommandShowGraph and CommandShowTable.
    void SetShowButtons(bool offerGraph);
    /// Of a bound table.
    void ShowChartFrames(bool graph);
    /// Of an unbound table.
    void ShowUnboundGraph(bool graph);
    void HideShowButtons();
    /// framBlank in the place of framOptions.
    void ResetBlank();

private:
    MaterialControls &m_controls;
};
