// What was found by value, in the order in which it is shown.
#pragma once

#include <map>
#include <memory>

#include "exchange/taken_table.h"
#include "values/value_search.h"

/// A question and its answer. Without conditions all values are missing, not their columns.
struct FoundGrades {
    ValueQuery query;
    ValueResult result;

    int count() const { return static_cast<int>(result.grades.size()); }
};

struct FoundColumn {
    enum class Kind { Standard, Name, Number, Group, Band, Value };
    Kind kind = Kind::Standard;
    /// Of a band or a value: from 0.
    int condition = 0;

    bool operator==(const FoundColumn &other) const = default;
};

/// Grades are in the order of the list of grades before they are compared, so that alike ones keep it.
class FoundOrder {
public:
    /// `search` outlives the object.
    explicit FoundOrder(const ValueSearch &search);

    /// The places in the answer by a column: texts ascending, values best first, or the other way round.
    std::vector<int> by(const FoundGrades &found, const FoundColumn &column, bool reversed);

private:
    const std::vector<int> &ranks(FoundColumn::Kind kind);

    const ValueSearch &m_search;
    /// The place of each grade in the order of its text, made when first asked for.
    std::map<FoundColumn::Kind, std::vector<int>> m_ranks;
};

namespace FoundTable {

/// Standard, name, number, group, and for each condition its value; before that the band, where the
/// property's table may have bands.
QVector<FoundColumn> columns(const ValueQuery &query);
/// In one line, with the unit.
TakenColumn heading(const ValueQuery &query, const FoundColumn &column);
/// The texts of a grade, one a column.
QStringList row(const ValueSearch &search, const FoundGrades &found, int place);
/// All of it, in the order of `places`.
TakenTable taken(const ValueSearch &search, const FoundGrades &found, const std::vector<int> &places);
/// What was asked for, and the line that tells the rest.
QVector<TakenFact> facts(const ValueSearch &search, const FoundGrades &found);

} // namespace FoundTable
