#include "material/NoDataPanel.h"

#include "data/modVelmar.h"
#include "material/GraphSwitch.h"
#include "material/material_layout.h"
#include "material/MaterialControls.h"

using namespace MaterialLayout;

namespace {
bool isUnboundKey(const QString &key) {
    return key == QLatin1String("ChemComp") || key == QLatin1String("MechProp") ||
           key == QLatin1String("CreepProp");
}
} // namespace

NoDataPanel::NoDataPanel(MaterialControls &controls, GraphSwitch &graphs)
    : m_controls(controls)
    , m_graphs(graphs) {}

void NoDataPanel::ShowNoData(const Material &material, const QString &key) {
    TDBGrid *grid = m_controls.tdbTable;
    if (isUnboundKey(key)) {
        m_controls.cmdUnBoundGraph->hide();
    } else {
        grid = m_controls.tdbBoundTable;
        m_graphs.bGraphShown = false;
        m_graphs.ShowChartFrames(false);
        m_graphs.HideShowButtons();
    }
    const QRect where = placeOf(grid);
    place(m_controls.framNoData, where.left(), where.top(), where.width(), where.height());
    grid->hide();
    m_controls.framNoData->show();
    place(m_controls.txtNoData, NoDataMargin, NoDataMargin, where.width() - 2 * NoDataMargin,
          where.height() - 2 * NoDataMargin);
    m_controls.txtNoData->show();
    m_controls.txtNoData->setPlainText(modVelmar::NoDataText(material, key, true, true));
}
