#include "material/NoDataPanel.h"

#include "data/loaded_table.h"
#include "data/table_vocabulary.h"
#include "material/GraphSwitch.h"
#include "material/material_layout.h"
#include "material/MaterialControls.h"

using namespace MaterialLayout;

NoDataPanel::NoDataPanel(MaterialControls &controls, GraphSwitch &graphs)
    : m_controls(controls)
    , m_graphs(graphs) {}

void NoDataPanel::ShowNoData(const LoadedTable &table) {
    TDBGrid *grid = m_controls.tdbTable;
    if (TableVocabulary::isUnbound(table.key)) {
        m_controls.cmdUnBoundGraph->hide();
    } else {
        grid = m_controls.tdbBoundTable;
        m_graphs.bGraphShown = false;
        m_graphs.ShowChartFrames(false);
        m_graphs.HideShowButtons();
    }
    const QRect where = placeOf(grid);
    place(m_controls.framNoData, where);
    grid->hide();
    m_controls.framNoData->show();
    place(m_controls.txtNoData, NoDataMargin, NoDataMargin, where.width() - 2 * NoDataMargin,
          where.height() - 2 * NoDataMargin);
    m_controls.txtNoData->show();
    m_controls.txtNoData->setPlainText(table.noData);
}
