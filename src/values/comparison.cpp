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

QVector<ComparisonRow> Comparison::rows(const ComparedGrades &grades, const QVector<Property> &properties,
                                        const QString &temperature, std::optional<double> thickness,
                                        const QString &filter) {
    QVector<ComparisonRow> rows;
    for (const Property &property : filtered(properties, filter)) {
        const bool isThere = std::any_of(grades.begin(), grades.end(), [&](const auto &grade) {
            return !grade->columns(property).isEmpty();
        });
        if (!isThere) continue;
        ComparisonRow row{property, {}};
        for (const auto &grade : grades)
            row.cells << grade->at(property, temperature, thickness);
        rows << row;
    }
    return rows;
}
