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
    /// What a standard tells in words, though there be a number in it.
    bool isText = false;

    /// The limit is not that of the first grade.
    bool minDiffers(qsizetype grade) const { return cells[grade].min != cells.first().min; }
    bool maxDiffers(qsizetype grade) const { return cells[grade].max != cells.first().max; }
    bool anyDiffers() const { return cells.count(cells.first()) != cells.size(); }
};

/// Elements in the order of the first grade, behind them those that only further ones name, and last what
/// the standards tell beside the elements, as maxima.
QVector<CompositionRow> compareCompositions(const QVector<GradeComposition> &grades);
