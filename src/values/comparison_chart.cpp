#include "values/comparison_chart.h"

#include <algorithm>
#include <cmath>

#include "design/chart_tables.h"

namespace {

QVector<QVariant> temperatures(const ValueSource &table) {
    QVector<QVariant> temperatures;
    for (const float celsius : table.celsius)
        temperatures << (std::isnan(celsius) ? QVariant() : QVariant(celsius));
    return temperatures;
}

} // namespace

ComparisonChart ComparisonChart::of(const ComparedGrades &grades, const Property &property,
                                    std::optional<double> thickness, const NumberFlags &flags) {
    ComparisonChart chart;
    QVector<ValueColumn> columns;
    int rows = 0;
    for (int i = 0; i < grades.size(); ++i) {
        const QVector<ValueColumn> found = grades[i]->columns(property, thickness);
        const Grades::Grade &grade = grades[i]->grade();
        if (found.isEmpty()) {
            chart.missing << grade.name + " " + grade.standard + ": " +
                                 grades[i]->missing(property, thickness);
            continue;
        }
        const QString &band = found.first().band;
        columns << found.first();
        chart.grades << i;
        chart.legends << grade.name + " " + grade.standard + (band.isEmpty() ? band : " " + band);
        rows = std::max(rows, grades[i]->source(property)->source.rowCount());
    }
    chart.points.ReDim(1, rows, 0, 2 * static_cast<int>(columns.size()) - 1);
    for (int curve = 0; curve < columns.size(); ++curve) {
        const ValueSource &table = *grades[chart.grades[curve]]->source(property);
        const XArrayDB drawn =
            ChartTables::temperatureChart(table.source, temperatures(table), flags.bDecimalPoint);
        for (int row = 1; row <= table.source.rowCount(); ++row)
            for (const int part : {0, 1})
                chart.points.Set(row, 2 * curve + part,
                                 drawn.Get(row, 2 * (columns[curve].column - 1) + part));
    }
    return chart;
}
