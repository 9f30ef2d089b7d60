// Grades beside each other: a row a property, a column a grade.
#pragma once

#include "values/grade_values.h"

struct ComparisonRow {
    Property property;
    /// One a grade.
    QVector<ValueCells> cells;
};

using ComparedGrades = QVector<std::shared_ptr<const GradeValues>>;

namespace Comparison {

/// As many as there can be selected materials.
constexpr int MostGrades = 10;

/// Those that at least one grade has, in their order.
QVector<Property> present(const ComparedGrades &grades, const QVector<Property> &properties);

/// A row each of these properties. Of those that contain each word of `filter` in
/// name, label or unit; capitals do not count. Temperature and thickness as in GradeValues::at.
QVector<ComparisonRow> rows(const ComparedGrades &grades, const QVector<Property> &properties,
                            const QString &temperature, std::optional<double> thickness,
                            const QString &filter = {});

/// The same rows with empty cells.
QVector<ComparisonRow> withoutValues(const ComparedGrades &grades, const QVector<Property> &properties,
                                     const QString &filter = {});

/// Those of `properties` that a filter leaves.
QVector<Property> filtered(const QVector<Property> &properties, const QString &filter);

} // namespace Comparison
