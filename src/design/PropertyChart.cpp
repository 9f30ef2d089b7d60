#include "design/PropertyChart.h"

#include "data/Material.h"
#include "data/queries.h"
#include "data/table_vocabulary.h"
#include "design/chart_tables.h"
#include "design/SourceArrays.h"
#include "material/MaterialControls.h"
#include "material/UnboundTables.h"
#include "platform/dao/recordset.h"
#include "platform/forms/data_control.h"
#include "shell/mdiVelmar.h"

namespace {

constexpr int XAxis = 0;
constexpr int YAxis = 1;

void setLegends(MSChart &chart, const ChartTables::SeriesTable &table) {
    chart.setShowLegend(table.ShowLegend);
    if (!table.ShowLegend) return;
    for (int i = 0; i < table.series.size(); ++i) {
        chart.setColumn(2 * i + 1);
        chart.setColumnLabel(table.series[i].legend);
    }
}

} // namespace

PropertyChart::PropertyChart(MaterialControls &controls, DataControl &dtaTable, SourceArrays &sources,
                             UnboundColumns &columns)
    : m_controls(controls)
    , m_dtaTable(dtaTable)
    , m_sources(sources)
    , m_columns(columns) {}

bool PropertyChart::showChart(const Material &material, const QString &key) {
    const bool hasData = material.TableHasData(key);
    m_controls.MSChart1->setVisible(hasData);
    for (int index : {0, 1, 2})
        m_controls.cmdPrintSave(index)->setEnabled(hasData);
    return hasData;
}

void PropertyChart::BuildChart(const Material &material, const QString &key, Recordset &rows,
                               const QVector<qint16> &aThickness) {
    if (!showChart(material, key)) return;
    const ChartTables::SeriesTable table = ChartTables::seriesOf(key, aThickness);
    MSChart &chart = *m_controls.MSChart1;
    chart.setTitleText(TableVocabulary::GetTableName(TableVocabulary::GetTableIndex(key)));
    chart.setAxisTitle(XAxis, QStringLiteral("Temperature [°C]"));
    chart.setAxisTitle(YAxis, table.yAxisTitle);
    if (rows.RecordCount() == 0) return;
    const auto arrays =
        ChartTables::temperatureArrays(rows, table.series, mdiVelmar::instance().bDecimalPoint);
    chart.setChartData(arrays.chart);
    chart.setUniformAxis(false);
    setLegends(chart, table);
    m_sources.of(key) = arrays.text;
}

void PropertyChart::BuildColumnChart(const Material &material, const QString &key) {
    if (!showChart(material, key)) return;
    MSChart &chart = *m_controls.MSChart1;
    chart.setShowLegend(false);
    chart.setChartType(MSChart::VtChChartType2dXY);

    const qint16 x = m_columns.iChartColX;
    const qint16 y = m_columns.iChartColY;
    m_dtaTable.setRecordSource(Queries::sqlGraphColumnRows(Queries::cellTable(key), material.ID(), x, y));
    m_dtaTable.Refresh();
    m_columns.aChartXY =
        ChartTables::columnPair(*m_dtaTable.recordset()->Clone(), m_columns.aChartXY.UpperBound(1), x == y,
                                mdiVelmar::instance().bDecimalPoint);

    // Also over mechanical properties: meant so.
    chart.setTitleText(TableVocabulary::GetTableName(TableVocabulary::GetTableIndex("CreepProp")));
    chart.setAxisTitle(XAxis, m_controls.lblXAxis->text());
    chart.setAxisTitle(YAxis, m_controls.cboColumnList->currentText());
    chart.setChartData(m_columns.aChartXY);
}

bool PropertyChart::pickColumns() {
    const int picked = m_controls.cboColumnList->currentIndex();
    if (picked < 0) return false;
    m_columns.iChartColX = m_columns.mColIDs.value(0);
    m_columns.iChartColY = m_columns.creep.aCreepColIDs.value(picked);
    return true;
}
