#include "values/composition_comparison.h"

#include "data/cell_values.h"
#include "data/GradeTables.h"
#include "data/Material.h"

GradeComposition GradeComposition::load(Database &database, const Grades::Grade &grade) {
    const auto material = Grades::material(database, grade.id);
    const LoadedTable table = GradeTables::load(database, *material, QStringLiteral("ChemComp"));
    GradeComposition composition{grade, {}, {}, table.others};
    for (int column = 1; column < table.columns.size() && table.hasData; ++column) {
        composition.elements << table.columns[column].heading.section(QLatin1Char('\r'), 0, 0);
        composition.limits << ElementLimits{cellText(table.cells.Get(1, column)),
                                            cellText(table.cells.Get(2, column))};
    }
    return composition;
}

ElementLimits GradeComposition::of(const QString &element) const {
    return limits.value(elements.indexOf(element));
}

QVector<CompositionRow> compareCompositions(const QVector<GradeComposition> &grades) {
    QStringList elements;
    for (const GradeComposition &grade : grades)
        elements += grade.elements;
    elements.removeDuplicates();
    QVector<CompositionRow> rows;
    for (const QString &element : elements) {
        CompositionRow row{element, {}};
        for (const GradeComposition &grade : grades)
            row.cells << grade.of(element);
        rows << row;
    }
    CompositionRow others{QStringLiteral("Other elements"), {}, true};
    bool any = false;
    for (const GradeComposition &grade : grades) {
        others.cells << ElementLimits{{}, grade.others};
        any = any || !grade.others.isEmpty();
    }
    if (any) rows << others;
    return rows;
}
