// One property of several grades over temperature, a curve a grade.
#pragma once

#include "platform/runtime/x_array_db.h"
#include "values/comparison.h"

struct ComparisonChart {
    /// As ChartTables::temperatureChart has it: rows from 1; pairs of columns from 0, temperature in °C and
    /// value of one curve each. A shorter table has empty points at its end.
    XArrayDB points;
    /// One a curve: the grade, and where its table has bands the band's heading.
    QStringList legends;
    /// Which of the grades a curve is of.
    QVector<int> grades;
    /// A sentence for each grade without a curve.
    QStringList missing;

    /// A grade that does not have the property, or no band of the thickness, has no curve; without a
    /// thickness the first band is drawn.
    static ComparisonChart of(const ComparedGrades &grades, const Property &property,
                              std::optional<double> thickness, const NumberFlags &flags);
};
