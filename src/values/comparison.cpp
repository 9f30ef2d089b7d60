#include "values/comparison.h"

#include <algorithm>

QVector<Property> Comparison::filtered(const QVector<Property> &properties, const QString &filter) {
    const QStringList words = filter.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QVector<Property> left = properties;
    left.removeIf([&](const Property &property) {
        const QString text = property.name() + '\n' + property.label + '\n' + property.unit;
        return !std::all_of(words.begin(), words.end(),
                            [&](const QString &word) { return text.contains(word, Qt::CaseInsensitive); });
    });
    return left;
}

QVector<Property> Comparison::present(const ComparedGrades &grades, const QVector<Property> &properties) {
    QVector<Property> present = properties;
    present.removeIf([&](const Property &property) {
        return std::all_of(grades.begin(), grades.end(),
                           [&](const auto &grade) { return grade->columns(property).isEmpty(); });
    });
    return present;
}

QVector<ComparisonRow> Comparison::rows(const ComparedGrades &grades, const QVector<Property> &properties,
                                        const QString &temperature, std::optional<double> thickness,
                                        const QString &filter) {
    QVector<ComparisonRow> rows = withoutValues(grades, properties, filter);
    for (ComparisonRow &row : rows)
        for (qsizetype i = 0; i < grades.size(); ++i)
            row.cells[i] = grades[i]->at(row.property, temperature, thickness);
    return rows;
}

QVector<ComparisonRow> Comparison::withoutValues(const ComparedGrades &grades,
                                                 const QVector<Property> &properties, const QString &filter) {
    QVector<ComparisonRow> rows;
    for (const Property &property : present(grades, filtered(properties, filter)))
        rows << ComparisonRow{property, QVector<ValueCells>(grades.size())};
    return rows;
}
