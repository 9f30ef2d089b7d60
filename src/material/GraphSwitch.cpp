#include "material/GraphSwitch.h"

#include "material/material_layout.h"
#include "material/MaterialControls.h"

using namespace MaterialLayout;

GraphSwitch::GraphSwitch(MaterialControls &controls)
    : m_controls(controls) {}

void GraphSwitch::Choose(bool graph) {
    bGraphShown = graph;
    const QPushButton *pressed = graph ? m_controls.CommandShowGraph : m_controls.CommandShowTable;
    QPushButton *counterpart = graph ? m_controls.CommandShowTable : m_controls.CommandShowGraph;
    // A control that is hidden gives the focus away, to whatever comes next.
    const bool hadFocus = pressed->window()->focusWidget() == pressed;
    ShowChartFrames(graph);
    SetShowButtons(!graph);
    if (hadFocus) counterpart->setFocus();
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
    m_controls.CommandShowGraph->setVisible(offerGraph);
    m_controls.CommandShowTable->setVisible(!offerGraph);
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
    const QPushButton *pressed = graph ? m_controls.cmdUnBoundGraph : m_controls.cmdUnBoundTable;
    QPushButton *counterpart = graph ? m_controls.cmdUnBoundTable : m_controls.cmdUnBoundGraph;
    const bool hadFocus = pressed->window()->focusWidget() == pressed;
    for (QWidget *part : QList<QWidget *>{m_controls.framBlank, m_controls.framChart, m_controls.framAxisCols,
                                          m_controls.ImgPic(2)})
        part->setVisible(graph);
    m_controls.framNotes->setVisible(!graph);
    m_controls.tdbTable->setVisible(!graph);
    if (hadFocus) counterpart->setFocus();
}

void GraphSwitch::ResetBlank() {
    place(m_controls.framBlank, placeOf(m_controls.framOptions));
}
