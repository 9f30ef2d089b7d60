#include "values/value_table.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "data/source_array.h"
#include "design/value_text.h"
#include "values/rounded_value.h"

namespace {

constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();
/// No line between two such numbers leaves the range of a double.
constexpr double LeastExponential = 1e100;

} // namespace

bool ValueLimits::hold(double number) const {
    if (least && !(least->inclusive ? number >= least->number : number > least->number)) return false;
    return !greatest || (greatest->inclusive ? number <= greatest->number : number < greatest->number);
}

ValueTable::ValueTable(int grades, const NumberFlags &flags)
    : m_flags(flags)
    , m_texts(flags)
    , m_grades(static_cast<std::size_t>(grades)) {}

void ValueTable::set(int grade, const ValueHeads &heads, const std::vector<CellTexts::Id> &rows) {
    Grade &set = m_grades[static_cast<std::size_t>(grade)];
    const std::size_t width = static_cast<std::size_t>(heads.columns.size()) + 1;
    set.heads = headsId(heads);
    set.firstRow = static_cast<quint32>(m_temperatures.size());
    set.firstCell = static_cast<quint32>(m_cells.size());
    set.rows = static_cast<quint32>(rows.size() / width);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (i % width != 0) {
            m_cells.push_back(rows[i]);
        } else {
            m_temperatures.push_back(rows[i]);
            m_celsius.push_back(m_texts[rows[i]].celsius);
        }
    }
    set.state = isPlain(set) ? State::Plain : State::Odd;
}

void ValueTable::setFault(int grade) {
    m_grades[static_cast<std::size_t>(grade)].state = State::Fault;
}

void ValueTable::finish() {
    m_headIds.clear();
    m_temperatures.shrink_to_fit();
    m_celsius.shrink_to_fit();
    m_cells.shrink_to_fit();
}

quint32 ValueTable::headsId(const ValueHeads &heads) {
    const auto [known, isNew] =
        m_headIds.try_emplace({heads.bands.limits, heads.columns}, static_cast<quint32>(m_heads.size()));
    if (isNew) m_heads.push_back(heads);
    return known->second;
}

bool ValueTable::isPlain(const Grade &grade) const {
    for (quint32 row = grade.firstRow; row < grade.firstRow + grade.rows; ++row) {
        const CellText &temperature = m_texts[m_temperatures[row]];
        if (std::isnan(temperature.celsius) || std::isnan(temperature.exactCelsius)) return false;
        if (row > grade.firstRow && m_texts[m_temperatures[row - 1]].exactCelsius == temperature.exactCelsius)
            return false;
    }
    return std::all_of(m_cells.begin() + grade.firstCell, m_cells.end(), [this](CellTexts::Id id) {
        const CellText &cell = m_texts[id];
        return !cell.hasNumber || std::abs(cell.converted) < LeastExponential;
    });
}

ValueTable::Question ValueTable::question(const QString &column, const QString &temperature,
                                          std::optional<double> thickness, const ValueLimits &limits) const {
    Question question;
    question.temperature = Interpolation::typedTemperature(temperature, m_flags.bCommaGroup);
    question.temperatureText = m_texts.known(temperature);
    question.limits = limits;
    for (const ValueHeads &heads : m_heads) {
        Question::Choice choice;
        const int only = thickness && !heads.bands.isEmpty() ? heads.bands.of(*thickness) : -1;
        if (only == 0) choice.absence = Absence::NoBand;
        for (int i = 1; i <= heads.columns.size() && only != 0; ++i)
            if (heads.columns[i - 1] == column && (only < 0 || only == i)) choice.columns.push_back(i);
        question.choices.push_back(std::move(choice));
    }
    return question;
}

ValueTable::Best ValueTable::best(int number, const Question &question) const {
    const Grade &grade = at(number);
    if (grade.state == State::NoTable) return {Absence::NoTable};
    if (grade.state == State::Fault) return {Absence::Fault};
    const Question::Choice &choice = question.choices[grade.heads];
    if (choice.columns.empty()) return {choice.absence};
    Best best;
    if (grade.state == State::Plain)
        findBest(grade, question, best);
    else
        findBestOfOdd(grade, question, best);
    return best;
}

void ValueTable::findBest(const Grade &grade, const Question &question, Best &best) const {
    best.absence = rangeOf(grade, question);
    if (best.absence != Absence::None) return;
    best.absence = Absence::NoValue;
    const Bracket rows = bracketOf(grade, question);
    for (const int column : question.choices[grade.heads].columns) {
        const double number = valueAt(grade, rows, column, static_cast<double>(question.temperature.value));
        if (!std::isnan(number)) take(question, column, number, best);
    }
}

void ValueTable::take(const Question &question, int column, double number, Best &best) {
    best.absence = Absence::None;
    if (!question.limits.hold(number)) return;
    if (best.column == 0 || question.limits.isBetter(number, best.number))
        best = {Absence::None, column, number};
}

/// Whether the temperature is within the table.
Absence ValueTable::rangeOf(const Grade &grade, const Question &question) const {
    const float *celsius = m_celsius.data() + grade.firstRow;
    if (celsius[0] > question.temperature.value) return Absence::BeginsAbove;
    if (celsius[grade.rows - 1] < question.temperature.value) return Absence::EndsBelow;
    return Absence::None;
}

/// The rows as Interpolation::designValues finds them.
ValueTable::Bracket ValueTable::bracketOf(const Grade &grade, const Question &question) const {
    const float *celsius = m_celsius.data() + grade.firstRow;
    const float wanted = question.temperature.value;
    quint32 upper = 1;
    while (upper + 1 < grade.rows && celsius[upper] <= wanted)
        ++upper;
    Bracket bracket;
    bracket.lower = upper - 1;
    bracket.atLower = celsius[bracket.lower] == wanted;
    // A table of one row has no upper one.
    bracket.upper = std::min(upper, grade.rows - 1);
    bracket.atUpper =
        !bracket.atLower && m_temperatures[grade.firstRow + bracket.upper] == question.temperatureText;
    return bracket;
}

/// The number of the cell's text; NaN without one.
double ValueTable::valueAt(const Grade &grade, const Bracket &rows, int column, double temperature) const {
    const auto cell = [&](quint32 row) -> const CellText & {
        return m_texts[m_cells[grade.firstCell + row * static_cast<quint32>(columnCount(grade)) +
                               static_cast<quint32>(column - 1)]];
    };
    const CellText &low = cell(rows.lower);
    if (rows.atLower) return low.shown;
    const CellText &high = cell(rows.upper);
    if (rows.atUpper) return high.shown;
    if (!low.hasNumber || !high.hasNumber) return NoNumber;
    const double from = m_texts[m_temperatures[grade.firstRow + rows.lower]].exactCelsius;
    const double to = m_texts[m_temperatures[grade.firstRow + rows.upper]].exactCelsius;
    return roundedValue(Interpolation::onTheLine(temperature, from, to, low.converted, high.converted));
}

void ValueTable::findBestOfOdd(const Grade &grade, const Question &question, Best &best) const {
    const DesignRow row = DesignRow::of(source(grade), question.temperature, m_flags.bDecimalPoint);
    best.absence = rangeOf(grade, question);
    if (best.absence != Absence::None) return;
    best.absence = row.failure.isEmpty() ? Absence::NoValue : Absence::Fault;
    for (const int column : question.choices[grade.heads].columns)
        if (const std::optional<double> number = ValueText::numberIn(row.texts.value(column - 1)))
            take(question, column, *number, best);
}

QString ValueTable::text(int grade, int column, const Question &question) const {
    return DesignRow::of(source(at(grade)), question.temperature, m_flags.bDecimalPoint)
        .texts.value(column - 1);
}

QString ValueTable::band(int grade, int column) const {
    return m_heads[at(grade).heads].bands.heading(column);
}

int ValueTable::bandLimit(int grade, int column) const {
    return m_heads[at(grade).heads].bands.limits.value(column);
}

SourceArray ValueTable::source(const Grade &grade) const {
    const int last = columnCount(grade);
    SourceArray source(static_cast<int>(grade.rows), last);
    std::size_t cell = grade.firstCell;
    for (quint32 row = 0; row < grade.rows; ++row) {
        const int at = static_cast<int>(row) + 1;
        source.setText(at, 0, m_texts[m_temperatures[grade.firstRow + row]].text);
        for (int column = 1; column <= last; ++column)
            source.setText(at, column, m_texts[m_cells[cell++]].text);
    }
    return source;
}
