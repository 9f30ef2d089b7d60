#include "workbench/found_grades.h"

#include <algorithm>
#include <numeric>

#include "data/table_vocabulary.h"
#include "platform/dao/text_folding.h"
#include "values/condition_text.h"
#include "workbench/condition_inputs.h"

namespace {

using Kind = FoundColumn::Kind;

const QString &textOf(const Grades::Grade &grade, Kind kind) {
    switch (kind) {
    case Kind::Name:
        return grade.name;
    case Kind::Number:
        return grade.number;
    case Kind::Group:
        return grade.group;
    default:
        return grade.standard;
    }
}

bool isText(Kind kind) {
    return kind != Kind::Band && kind != Kind::Value;
}

int compared(const QByteArray &left, const QByteArray &right) {
    return compareTexts(left.constData(), left.size(), right.constData(), right.size());
}

template <class Less>
void sort(std::vector<int> &places, bool reversed, Less less) {
    std::stable_sort(places.begin(), places.end(),
                     [&](int one, int other) { return reversed ? less(other, one) : less(one, other); });
}

} // namespace

FoundOrder::FoundOrder(const ValueSearch &search)
    : m_search(search) {}

std::vector<int> FoundOrder::by(const FoundGrades &found, const FoundColumn &column, bool reversed) {
    std::vector<int> places(found.result.grades.size());
    std::iota(places.begin(), places.end(), 0);
    const auto gradeAt = [&](int place) { return found.result.grades[static_cast<std::size_t>(place)]; };
    sort(places, false, [&](int one, int other) { return gradeAt(one) < gradeAt(other); });
    std::vector<double> keys(places.size());
    const std::vector<int> *ranked = isText(column.kind) ? &ranks(column.kind) : nullptr;
    const bool smallestIsBest =
        column.kind != Kind::Value || found.query.conditions[column.condition].limits.smallestIsBest();
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const int place = static_cast<int>(i);
        if (ranked)
            keys[i] = (*ranked)[static_cast<std::size_t>(gradeAt(place))];
        else if (column.kind == Kind::Band)
            keys[i] = m_search.bandLimit(found.query, found.result, place, column.condition);
        else
            keys[i] = found.result
                          .hits[i * static_cast<std::size_t>(found.query.conditions.size()) +
                                static_cast<std::size_t>(column.condition)]
                          .number;
    }
    const bool descending = reversed == smallestIsBest;
    sort(places, descending, [&](int one, int other) {
        return keys[static_cast<std::size_t>(one)] < keys[static_cast<std::size_t>(other)];
    });
    return places;
}

const std::vector<int> &FoundOrder::ranks(Kind kind) {
    std::vector<int> &ranks = m_ranks[kind];
    if (!ranks.empty()) return ranks;
    const GradeList &grades = m_search.grades();
    std::vector<std::pair<QByteArray, int>> texts;
    for (int i = 0; i < grades.count(); ++i)
        texts.emplace_back(textOf(grades[i], kind).toUtf8(), i);
    std::stable_sort(texts.begin(), texts.end(),
                     [](const auto &one, const auto &other) { return compared(one.first, other.first) < 0; });
    ranks.resize(texts.size());
    int rank = 0;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (i > 0 && compared(texts[i - 1].first, texts[i].first) != 0) ++rank;
        ranks[static_cast<std::size_t>(texts[i].second)] = rank;
    }
    return ranks;
}

QVector<FoundColumn> FoundTable::columns(const ValueQuery &query) {
    QVector<FoundColumn> columns{{Kind::Standard}, {Kind::Name}, {Kind::Number}, {Kind::Group}};
    for (int i = 0; i < query.conditions.size(); ++i) {
        if (TableVocabulary::isElevated(query.conditions[i].property.key))
            columns << FoundColumn{Kind::Band, i};
        columns << FoundColumn{Kind::Value, i};
    }
    return columns;
}

TakenColumn FoundTable::heading(const ValueQuery &query, const FoundColumn &column) {
    switch (column.kind) {
    case Kind::Standard:
        return {"Standard", {}, true};
    case Kind::Name:
        return {"Name", {}, true};
    case Kind::Number:
        return {"Number", {}, true};
    case Kind::Group:
        return {"Group", {}, true};
    case Kind::Band:
        return {"Band of " + query.conditions[column.condition].property.label, {}, true};
    default:
        const ValueCondition &condition = query.conditions[column.condition];
        return {ConditionInputs::heading(condition), ConditionInputs::unit(condition.property)};
    }
}

QStringList FoundTable::row(const ValueSearch &search, const FoundGrades &found, int place) {
    const Grades::Grade &grade = search.grades()[found.result.grades[static_cast<std::size_t>(place)]];
    QVector<FoundValue> values;
    for (int i = 0; i < found.query.conditions.size(); ++i)
        values << search.found(found.query, found.result, place, i);
    QStringList row;
    for (const FoundColumn &column : columns(found.query)) {
        if (isText(column.kind))
            row << textOf(grade, column.kind);
        else
            row << (column.kind == Kind::Band ? values[column.condition].band
                                              : values[column.condition].text);
    }
    return row;
}

TakenTable FoundTable::taken(const ValueSearch &search, const FoundGrades &found,
                             const std::vector<int> &places) {
    TakenTable table{"Grades", {}, {}};
    for (const FoundColumn &column : columns(found.query))
        table.columns << heading(found.query, column);
    for (const int place : places)
        table.rows << row(search, found, place);
    return table;
}

QVector<TakenFact> FoundTable::facts(const ValueSearch &search, const FoundGrades &found) {
    QVector<TakenFact> facts;
    const auto add = [&facts](const QString &name, const QString &text) {
        if (!text.isEmpty()) facts << TakenFact{name, {text}};
    };
    add("Standard", found.query.texts.standard);
    add("Group", found.query.texts.group);
    add("Product form", found.query.texts.productForm);
    QStringList conditions;
    for (const ValueCondition &condition : found.query.conditions)
        conditions << ConditionText::of(condition);
    facts << TakenFact{"Conditions", conditions};
    add("Found", search.summary(found.query, found.result));
    return facts;
}
