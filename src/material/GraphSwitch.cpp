#include "material/GraphSwitch.h"

#include "material/material_layout.h"
#include "material/MaterialControls.h"

using namespace MaterialLayout;

namespace {

/// A button that stands in for the one just pressed takes the keyboard over; else it goes wherever.
void passFocus(const QWidget *leaving, QWidget *coming) {
    if (leaving->window()->focusWidget() == leaving) coming->setFocus();
}

} // namespace

GraphSwitch::GraphSwitch(MaterialControls &controls)
    : m_controls(controls) {}

void GraphSwitch::Choose(bool graph) {
    bGraphShown = graph;
    ShowChartFrames(graph);
    SetShowButtons(!graph);
}

void GraphSwitch::ShowBoundPage(bool hasGraph) {
    const bool graph = hasGraph && bGraphShown;
    SetShowButtons(!graph);
    if (!hasGraph) HideShowButtons();
    ShowChartFrames(graph);
}

void GraphSwitch::HideShowButtons() {
    m_controls.CommandShowGraph->hide();
    m_controls.CommandShowTable->hide();
}

void GraphSwitch::SetShowButtons(bool offerGraph) {
    QPushButton *coming = offerGraph ? m_controls.CommandShowGraph : m_controls.CommandShowTable;
    QPushButton *leaving = offerGraph ? m_controls.CommandShowTable : m_controls.CommandShowGraph;
    coming->show();
    passFocus(leaving, coming);
    leaving->hide();
}

void GraphSwitch::ShowChartFrames(bool graph) {
    if (graph)
        place(m_controls.framBlank, OptionsLeft, OpenNotesTop, OptionsWidth, OpenNotesHeight);
    else
        ResetBlank();
    m_controls.framBlank->setVisible(graph);
    m_controls.framChart->setVisible(graph);
    // The symbol in the notes panel is hidden with it.
    m_controls.ImgPic(2)->setVisible(graph);
    m_controls.tdbBoundTable->setVisible(!graph);
    m_controls.framNotes->setVisible(!graph);
    if (!graph) m_controls.lblFullForm->show();
}

void GraphSwitch::ShowUnboundGraph(bool graph) {
    const QList<QWidget *> graphParts{m_controls.framBlank, m_controls.framChart, m_controls.framAxisCols,
                                      m_controls.ImgPic(2)};
    const QList<QWidget *> tableParts{m_controls.framNotes, m_controls.tdbTable};
    for (QWidget *part : graph ? graphParts : tableParts)
        part->show();
    if (graph)
        passFocus(m_controls.cmdUnBoundGraph, m_controls.cmdUnBoundTable);
    else
        passFocus(m_controls.cmdUnBoundTable, m_controls.cmdUnBoundGraph);
    for (QWidget *part : graph ? tableParts : graphParts)
        part->hide();
}

void GraphSwitch::ResetBlank() {
    place(m_controls.framBlank, placeOf(m_controls.framOptions));
}
