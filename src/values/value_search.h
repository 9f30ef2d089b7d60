// Which grades have a value within limits. Tables are read once, each further search is over memory.
#pragma once

#include <map>

#include "values/grade_list.h"
#include "values/property.h"
#include "values/value_table_reader.h"

struct ValueCondition {
    Property property;
    /// As TypedTexts::temperature gives it.
    QString temperature;
    /// In mm; without one, of a table with bands the best band counts.
    std::optional<double> thickness;
    ValueLimits limits;

    bool operator==(const ValueCondition &other) const = default;
};

struct ValueQuery {
    Grades::Criteria texts;
    /// All of them hold.
    QVector<ValueCondition> conditions;
};

/// How many grades have no value, by the reason.
struct Absences {
    int beginAbove = 0;
    int endBelow = 0;
    int noValue = 0;
    int noTable = 0;
    int noBand = 0;
    int faults = 0;

    int total() const { return beginAbove + endBelow + noValue + noTable + noBand + faults; }
    void count(Absence absence);
};

struct FoundValue {
    /// The heading of the thickness band; empty without bands.
    QString band;
    /// As the design values show it.
    QString text;
    double number = 0;
};

/// The grades found, best first: by the first condition the greatest value, or where only a greatest one is
/// given the smallest; alike ones, and all without a condition, in the order of the list.
struct ValueResult {
    /// Their places in the list of grades.
    std::vector<int> grades;
    /// For each grade one a condition.
    std::vector<ValueTable::Best> hits;
    /// How many grades the texts leave, and then each further condition.
    QVector<int> left;
    /// One a condition, of the grades that were left before it.
    QVector<Absences> absences;
};

class ValueSearch {
public:
    static constexpr int MostConditions = 5;

    /// Told now and then how many rows of how many are read; false calls it off. It must not ask the database
    /// for anything.
    using Progress = ValueTables::Progress;

    /// Reads the grades. `database` outlives the object. Raises what the database raises.
    explicit ValueSearch(Database &database, const NumberFlags &flags = NumberFlags::fromSystem());

    const GradeList &grades() const { return m_grades; }
    bool isRead(const QString &key) const { return m_tables.contains(key); }
    /// Reads the table of a property once. False where it was called off: nothing of it is kept then. Raises
    /// what the database raises.
    bool read(const QString &key, const Progress &progress = {});

    /// Raises 9 for a property whose table was not read, 6 for a temperature beyond a single.
    ValueResult find(const ValueQuery &query) const;
    /// A value of the result.
    FoundValue found(const ValueQuery &query, const ValueResult &result, int place, int condition) const;
    /// The value of a grade, known by its place in the list; nothing where it has none within the limits.
    /// Raises as find().
    std::optional<FoundValue> at(const ValueCondition &condition, int grade) const;
    /// The upper limit in mm of the value's thickness band; 0 without bands.
    int bandLimit(const ValueQuery &query, const ValueResult &result, int place, int condition) const;
    /// "212 of 32,767 grades; no value at 300 °C in 87: 31 tables end below, 40 begin above, 16 have no
    /// value"
    QString summary(const ValueQuery &query, const ValueResult &result) const;

    struct Point {
        double x = 0;
        double y = 0;
        /// Its place in the list of grades.
        int grade = 0;
    };
    /// The values of two properties, of each grade that has both. Limits count for nothing, so that without a
    /// thickness the greatest value of all bands stands. Raises as find().
    std::vector<Point> points(const ValueCondition &x, const ValueCondition &y) const;

private:
    using Answer = std::vector<ValueTable::Best>;
    /// With and without its limits one for each condition, and one for each axis of a diagram.
    static constexpr int MostAnswers = 2 * MostConditions + 2;

    const ValueTable &table(const Property &property) const;
    static const ValueTable::Best &hit(const ValueQuery &query, const ValueResult &result, int place,
                                       int condition);
    std::shared_ptr<const Answer> answer(const ValueCondition &condition) const;
    Answer computed(const ValueCondition &condition) const;
    Answer atLeast(const ValueCondition &condition) const;

    Database &m_database;
    NumberFlags m_flags;
    GradeList m_grades;
    std::map<QString, std::unique_ptr<ValueTable>> m_tables;
    /// Of the last conditions asked, the one asked last behind the others: at a key one of them changes.
    mutable QVector<std::pair<ValueCondition, std::shared_ptr<const Answer>>> m_answers;
};
