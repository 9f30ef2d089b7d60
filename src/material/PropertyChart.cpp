#include "material/PropertyChart.h"

#include "data/loaded_table.h"
#include "data/Material.h"
#include "data/table_vocabulary.h"
#include "design/chart_tables.h"
#include "material/MaterialControls.h"
#include "material/UnboundColumns.h"
#include "material/WindowTables.h"
#include "platform/dao/recordset.h"
#include "shell/mdiVelmar.h"

namespace {

constexpr int XAxis = 0;
constexpr int YAxis = 1;

void setLegends(MSChart &chart, const ChartTables::SeriesTable &series) {
    chart.setShowLegend(series.ShowLegend);
    if (!series.ShowLegend) return;
    for (int i = 0; i < series.legends.size(); ++i) {
        chart.setColumn(2 * i + 1);
        chart.setColumnLabel(series.legends[i]);
    }
}

} // namespace

PropertyChart::PropertyChart(MaterialControls &controls, WindowTables &tables, UnboundColumns &columns)
    : m_controls(controls)
    , m_tables(tables)
    , m_columns(columns) {}

bool PropertyChart::showChart(bool hasData) {
    m_controls.MSChart1->setVisible(hasData);
    for (int index : {0, 1, 2})
        m_controls.cmdPrintSave(index)->setEnabled(hasData);
    return hasData;
}

void PropertyChart::BuildChart(const LoadedTable &table) {
    if (!showChart(table.hasData)) return;
    const ChartTables::SeriesTable series = ChartTables::seriesOf(table.key, table.bands);
    MSChart &chart = *m_controls.MSChart1;
    chart.setTitleText(table.caption);
    chart.setAxisTitle(XAxis, QStringLiteral("Temperature [°C]"));
    chart.setAxisTitle(YAxis, series.yAxisTitle);
    if (!table.source) return;
    chart.setChartData(ChartTables::temperatureChart(*table.source, table.temperatures,
                                                     mdiVelmar::instance().numberFlags().bDecimalPoint));
    chart.setUniformAxis(false);
    setLegends(chart, series);
}

void PropertyChart::BuildColumnChart(const Material &material, const QString &key) {
    if (!showChart(material.TableHasData(key))) return;
    MSChart &chart = *m_controls.MSChart1;
    chart.setShowLegend(false);
    chart.setChartType(MSChart::VtChChartType2dXY);

    const qint16 x = m_columns.iChartColX;
    const qint16 y = m_columns.iChartColY;
    m_columns.aChartXY =
        ChartTables::columnPair(*m_tables.graphColumns(material, key, x, y), m_columns.aChartXY.UpperBound(1),
                                x == y, mdiVelmar::instance().numberFlags().bDecimalPoint);

    // Over mechanical properties, too: a graph of theirs never comes on the screen, and the report of one
    // would be filed under a title that no file has had.
    chart.setTitleText(TableVocabulary::GetTableName(TableVocabulary::GetTableIndex("CreepProp")));
    chart.setAxisTitle(XAxis, m_controls.lblXAxis->text());
    chart.setAxisTitle(YAxis, m_controls.cboColumnList->currentText());
    chart.setChartData(m_columns.aChartXY);
}

bool PropertyChart::pickColumns() {
    const int picked = m_controls.cboColumnList->currentIndex();
    if (picked < 0) return false;
    m_columns.iChartColX = m_columns.mColIDs.value(0);
    m_columns.iChartColY = m_tables.values.creep().aCreepColIDs.value(picked);
    return true;
}
