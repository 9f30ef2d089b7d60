// Design values, comparisons and sheets of values as tables that are taken along.
#pragma once

#include "design/DesignValues.h"
#include "exchange/taken_table.h"
#include "values/comparison.h"
#include "values/comparison_chart.h"
#include "values/composition_comparison.h"
#include "values/value_sheet.h"

namespace ValueTables {

/// Name, number and standard.
QString title(const Grades::Grade &grade);
/// The property's label and, where it has one, the thickness band.
QString title(const ValueColumn &column);

/// A column a grade, a row a property.
TakenTable comparison(const QVector<Grades::Grade> &grades, const QVector<ComparisonRow> &rows);
/// Two columns a grade, a row an element; a * in the last column where one differs from the first grade.
TakenTable composition(const QVector<Grades::Grade> &grades, const QVector<CompositionRow> &rows);
/// Two columns a curve, temperature and value.
TakenTable curves(const ComparisonChart &chart, const Property &property);
/// A * in the second column where a table has a row of the temperature.
TakenTable sheet(const ValueSheet &sheet);

/// As the page of design values has it: three rows a table, captions, values and an empty one. Columns behind
/// the last text are left out.
TakenTable designValues(const DesignValues &values);

/// Thickness in mm, if one was asked for; `temperature` is empty without one.
QVector<TakenFact> atFacts(const QString &temperature, std::optional<double> thickness);

} // namespace ValueTables
