#include "design/chart_copy.h"

#include "platform/forms/ms_chart.h"

/// The data before the columns: it gives every column its plain label.
void copyChart(MSChart &source, MSChart &target) {
    target.setChartType(source.chartType());
    target.setChartData(source.ChartData());
    target.setTitleText(source.TitleText());
    for (int axis : {0, 1})
        target.setAxisTitle(axis, source.AxisTitle(axis));
    target.setShowLegend(source.ShowLegend());
    target.setColumnCount(source.ColumnCount());
    for (int column = 1; column <= source.ColumnCount(); ++column) {
        source.setColumn(column);
        target.setColumn(column);
        target.setColumnLabel(source.ColumnLabel());
    }
}
