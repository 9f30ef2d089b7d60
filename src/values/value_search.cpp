#include "values/value_search.h"

#include <algorithm>

#include "platform/runtime/conversions.h"
#include "platform/runtime/runtime_error.h"

namespace {

ValueTable::Question questionOf(const ValueTable &table, const ValueCondition &condition) {
    return table.question(condition.property.column, condition.temperature, condition.thickness,
                          condition.limits);
}

/// "1 table ends below", "31 tables end below", and without the noun for all but the first.
struct Part {
    int count;
    const char *one;
    const char *many;
};

QString counted(const Absences &absences, const QString &thickness) {
    const QString band = " no band of " + thickness + " mm";
    const QByteArray hasNoBand = ("has" + band).toUtf8();
    const QByteArray haveNoBand = ("have" + band).toUtf8();
    const Part tables[] = {{absences.endBelow, "ends below", "end below"},
                           {absences.beginAbove, "begins above", "begin above"},
                           {absences.noValue, "has no value", "have no value"},
                           {absences.noBand, hasNoBand.constData(), haveNoBand.constData()},
                           {absences.faults, "cannot be computed", "cannot be computed"}};
    QStringList parts;
    for (const Part &part : tables) {
        if (part.count == 0) continue;
        const QString noun = !parts.isEmpty() ? "" : part.count == 1 ? " table" : " tables";
        parts << TypedTexts::grouped(part.count) + noun + " " +
                     QString::fromUtf8(part.count == 1 ? part.one : part.many);
    }
    if (absences.noTable > 0)
        parts << TypedTexts::grouped(absences.noTable) +
                     (absences.noTable == 1 ? " grade has no such table" : " grades have no such table");
    return parts.join(QStringLiteral(", "));
}

QString thicknessText(const ValueCondition &condition) {
    return condition.thickness ? CStr(*condition.thickness) : QString();
}

} // namespace

void Absences::count(Absence absence) {
    switch (absence) {
    case Absence::None:
        return;
    case Absence::BeginsAbove:
        ++beginAbove;
        return;
    case Absence::EndsBelow:
        ++endBelow;
        return;
    case Absence::NoValue:
        ++noValue;
        return;
    case Absence::NoTable:
        ++noTable;
        return;
    case Absence::NoBand:
        ++noBand;
        return;
    case Absence::Fault:
        ++faults;
    }
}

ValueSearch::ValueSearch(Database &database, const NumberFlags &flags)
    : m_database(database)
    , m_flags(flags)
    , m_grades(database) {}

bool ValueSearch::read(const QString &key, const Progress &progress) {
    if (isRead(key)) return true;
    auto table = ValueTables::read(m_database, m_grades, key, m_flags, progress);
    if (!table) return false;
    m_tables[key] = std::move(table);
    return true;
}

const ValueTable &ValueSearch::table(const Property &property) const {
    const auto found = m_tables.find(property.key);
    if (found == m_tables.end()) throw RuntimeError(9);
    return *found->second;
}

std::shared_ptr<const ValueSearch::Answer> ValueSearch::answer(const ValueCondition &condition) const {
    for (qsizetype i = 0; i < m_answers.size(); ++i) {
        if (m_answers[i].first != condition) continue;
        m_answers.move(i, m_answers.size() - 1);
        return m_answers.last().second;
    }
    const bool leastOnly = condition.limits.least && !condition.limits.greatest;
    const auto answer = std::make_shared<const Answer>(leastOnly ? atLeast(condition) : computed(condition));
    if (m_answers.size() == MostAnswers) m_answers.removeFirst();
    m_answers << std::pair(condition, answer);
    return answer;
}

ValueSearch::Answer ValueSearch::computed(const ValueCondition &condition) const {
    const ValueTable &values = table(condition.property);
    const ValueTable::Question question = questionOf(values, condition);
    Answer answer;
    answer.reserve(static_cast<std::size_t>(m_grades.count()));
    for (int grade = 0; grade < m_grades.count(); ++grade)
        answer.push_back(values.best(grade, question));
    return answer;
}

/// The greatest value of all is also the best one from the limit on, or there is none.
ValueSearch::Answer ValueSearch::atLeast(const ValueCondition &condition) const {
    ValueCondition any = condition;
    any.limits = {};
    Answer answer = *this->answer(any);
    for (ValueTable::Best &best : answer)
        if (best.column != 0 && !condition.limits.hold(best.number)) best = {Absence::None};
    return answer;
}

ValueResult ValueSearch::find(const ValueQuery &query) const {
    const std::vector<bool> alike = m_grades.matching(query.texts);
    ValueResult result;
    std::vector<int> &left = result.grades;
    for (int i = 0; i < m_grades.count(); ++i)
        if (alike[static_cast<std::size_t>(i)]) left.push_back(i);
    result.left << static_cast<int>(left.size());
    std::vector<std::shared_ptr<const Answer>> answers;
    const auto best = [&answers](std::size_t condition, int grade) -> const ValueTable::Best & {
        return (*answers[condition])[static_cast<std::size_t>(grade)];
    };
    for (const ValueCondition &condition : query.conditions) {
        const std::size_t last = answers.size();
        answers.push_back(answer(condition));
        Absences absences;
        std::erase_if(left, [&](int grade) {
            absences.count(best(last, grade).absence);
            return best(last, grade).column == 0;
        });
        result.absences << absences;
        result.left << static_cast<int>(left.size());
    }
    if (answers.empty()) return result;
    const ValueLimits &limits = query.conditions.first().limits;
    std::stable_sort(left.begin(), left.end(), [&](int one, int other) {
        return limits.isBetter(best(0, one).number, best(0, other).number);
    });
    for (const int grade : left)
        for (std::size_t i = 0; i < answers.size(); ++i)
            result.hits.push_back(best(i, grade));
    return result;
}

const ValueTable::Best &ValueSearch::hit(const ValueQuery &query, const ValueResult &result, int place,
                                         int condition) {
    return result.hits[static_cast<std::size_t>(place * query.conditions.size() + condition)];
}

std::optional<FoundValue> ValueSearch::at(const ValueCondition &condition, int grade) const {
    const ValueTable &values = table(condition.property);
    const ValueTable::Question question = questionOf(values, condition);
    const ValueTable::Best best = values.best(grade, question);
    if (best.column == 0) return std::nullopt;
    return FoundValue{values.band(grade, best.column), values.text(grade, best.column, question),
                      best.number};
}

int ValueSearch::bandLimit(const ValueQuery &query, const ValueResult &result, int place,
                           int condition) const {
    return table(query.conditions[condition].property)
        .bandLimit(result.grades[static_cast<std::size_t>(place)],
                   hit(query, result, place, condition).column);
}

FoundValue ValueSearch::found(const ValueQuery &query, const ValueResult &result, int place,
                              int condition) const {
    const ValueCondition &asked = query.conditions[condition];
    const ValueTable &values = table(asked.property);
    const int grade = result.grades[static_cast<std::size_t>(place)];
    const ValueTable::Best &best = hit(query, result, place, condition);
    return {values.band(grade, best.column), values.text(grade, best.column, questionOf(values, asked)),
            best.number};
}

QString ValueSearch::summary(const ValueQuery &query, const ValueResult &result) const {
    QString text = TypedTexts::grouped(static_cast<qint64>(result.grades.size())) + " of " +
                   TypedTexts::grouped(m_grades.count()) + (m_grades.count() == 1 ? " grade" : " grades");
    for (qsizetype i = 0; i < query.conditions.size(); ++i) {
        const ValueCondition &condition = query.conditions[i];
        const Absences &absences = result.absences[i];
        if (absences.total() == 0) continue;
        text += "; no value" + (query.conditions.size() > 1 ? " of " + condition.property.label : QString()) +
                " at " + condition.temperature + " °C in " + TypedTexts::grouped(absences.total()) + ": " +
                counted(absences, thicknessText(condition));
    }
    return text;
}

std::vector<ValueSearch::Point> ValueSearch::points(const ValueCondition &x, const ValueCondition &y) const {
    ValueCondition xAny = x;
    ValueCondition yAny = y;
    xAny.limits = yAny.limits = {};
    const std::shared_ptr<const Answer> xs = answer(xAny);
    const std::shared_ptr<const Answer> ys = answer(yAny);
    std::vector<Point> points;
    points.reserve(xs->size());
    for (std::size_t grade = 0; grade < xs->size(); ++grade) {
        const ValueTable::Best &xBest = (*xs)[grade];
        const ValueTable::Best &yBest = (*ys)[grade];
        if (xBest.column != 0 && yBest.column != 0)
            points.push_back({xBest.number, yBest.number, static_cast<int>(grade)});
    }
    return points;
}
