// Tables and design values of grades, as texts and as JSON.
#pragma once

#include <QJsonObject>
#include <QVector>

#include "data/grades.h"
#include "data/loaded_table.h"
#include "design/DesignValues.h"
#include "exchange/records.h"

/// The tables of one grade.
struct ShownGrade {
    Grades::Grade grade;
    QVector<LoadedTable> tables;
};

/// The design values of one grade at one temperature.
struct ValuedGrade {
    Grades::Grade grade;
    /// As it was asked for, with a decimal comma.
    QString at;
    QVector<DesignTable> tables;
};

namespace GradeTexts {

QJsonObject json(const Grades::Grade &grade);
/// With all that is told of a grade that was found.
QJsonObject fullJson(const Grades::Grade &grade);
QJsonObject json(const ShownGrade &shown);
QJsonObject json(const ValuedGrade &valued);

Records::Sheet sheet(const QVector<Grades::Grade> &grades);
/// A cell a row.
Records::Sheet sheet(const ShownGrade &shown);
Records::Sheet sheet(const QVector<ValuedGrade> &values);

/// As the windows show them, for reading.
QString text(const ShownGrade &shown);
QString text(const QVector<ValuedGrade> &values);

} // namespace GradeTexts
