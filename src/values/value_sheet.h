// The values of one grade over temperature, in even steps.
#pragma once

#include "values/grade_values.h"

struct SheetRow {
    /// In °C, as GradeValues::at takes it.
    QString temperature;
    /// One a column.
    QVector<ValueCell> cells;
    /// One a column: its table has a row of this temperature.
    QVector<bool> own;

    bool anyOwn() const { return own.contains(true); }
};

struct ValueSheet {
    QVector<ValueColumn> columns;
    QVector<SheetRow> rows;
};

namespace ValueSheets {

constexpr int MostRows = 1000;

/// The temperatures from `from` to at most `to`, in steps of `step`, all as they were typed. The error tells
/// which of them is no number, a `from` beyond `to`, a step that is not above 0, or more than MostRows rows.
Typed<QStringList> temperatures(const QString &from, const QString &to, const QString &step);

/// All columns of these properties that the grade has.
QVector<ValueColumn> columns(const GradeValues &grade, const QVector<Property> &properties);

SheetRow row(const GradeValues &grade, const QVector<ValueColumn> &columns, const QString &temperature);

ValueSheet sheet(const GradeValues &grade, const QVector<ValueColumn> &columns,
                 const QStringList &temperatures);

} // namespace ValueSheets
