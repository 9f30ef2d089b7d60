// The chemical compositions of grades beside each other: a row an element.
#pragma once

#include <QStringList>
#include <QVector>

#include "data/grades.h"

class Database;

/// Texts as the composition shows them, both empty for an element that the grade does not name.
struct ElementLimits {
    QString min;
    QString max;

    bool operator==(const ElementLimits &other) const = default;
};

struct GradeComposition {
    Grades::Grade grade;
    QStringList elements;
    /// One an element.
    QVector<ElementLimits> limits;
    /// What the standard tells beside the elements; empty without.
    QString others;

    /// Raises what Grades::material and GradeTables::load raise.
    static GradeComposition load(Database &database, const Grades::Grade &grade);
    /// Empty ones for an element that is not named.
    ElementLimits of(const QString &element) const;
};

struct CompositionRow {
    QString element;
    /// One a grade.
    QVector<ElementLimits> cells;
    /// The cell is not that of the first grade.
    QVector<bool> differs;

    bool anyDiffers() const { return differs.contains(true); }
};

/// Elements in the order of the first grade, behind them those that only further ones name.
QVector<CompositionRow> compareCompositions(const QVector<GradeComposition> &grades);
