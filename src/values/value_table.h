// One table of all grades, in a form that a value of each can be found in within a few milliseconds.
#pragma once

#include <map>
#include <vector>

#include "values/cell_texts.h"
#include "values/design_row.h"
#include "values/thickness_bands.h"

class SourceArray;

/// What the value columns of a grade are. Grades share them.
struct ValueHeads {
    ThicknessBands bands;
    /// As Property::column has it; the first belongs to column 1.
    QStringList columns;
};

struct ValueLimit {
    double number = 0;
    /// The number itself is within.
    bool inclusive = true;

    bool operator==(const ValueLimit &other) const = default;
};

struct ValueLimits {
    std::optional<ValueLimit> least;
    std::optional<ValueLimit> greatest;

    bool hold(double number) const;
    /// Where only a greatest value is given, the smallest is the best.
    bool smallestIsBest() const { return greatest && !least; }
    bool isBetter(double left, double right) const { return smallestIsBest() ? left < right : left > right; }

    bool operator==(const ValueLimits &other) const = default;
};

/// Why a grade has no value.
enum class Absence {
    None,
    /// Its table begins above the temperature, or ends below it.
    BeginsAbove,
    EndsBelow,
    NoValue,
    NoTable,
    /// The thickness is beyond its last band.
    NoBand,
    /// It cannot be computed.
    Fault
};

/// A grade is known by its place in the list of grades.
class ValueTable {
public:
    /// What is asked of all grades.
    class Question {
        friend class ValueTable;
        struct Choice {
            std::vector<int> columns;
            /// Where there are none.
            Absence absence = Absence::NoTable;
        };
        /// For each of the table's heads.
        std::vector<Choice> choices;
        Interpolation::Temperature temperature;
        CellTexts::Id temperatureText = CellTexts::Unknown;
        ValueLimits limits;
    };

    /// The best value of a grade within the limits.
    struct Best {
        /// None also where there are values, and none within the limits.
        Absence absence = Absence::NoTable;
        /// From 1; 0 without a value.
        int column = 0;
        double number = 0;
    };

    ValueTable(int grades, const NumberFlags &flags);

    CellTexts &texts() { return m_texts; }
    /// `rows` are ids of texts: for each row the temperature and then its cells. A grade is set once, in any
    /// order; one that is not set has no table.
    void set(int grade, const ValueHeads &heads, const std::vector<CellTexts::Id> &rows);
    /// Its table cannot be loaded.
    void setFault(int grade);
    /// Gives back what only the filling needed.
    void finish();

    /// `column` as Property::column has it, `temperature` as TypedTexts::temperature gives it.
    Question question(const QString &column, const QString &temperature, std::optional<double> thickness,
                      const ValueLimits &limits) const;
    Best best(int grade, const Question &question) const;

    /// The cell of the design values; empty where it cannot be computed.
    QString text(int grade, int column, const Question &question) const;
    /// The heading of the column's thickness band; empty without bands.
    QString band(int grade, int column) const;
    /// Its upper limit in mm; 0 without bands.
    int bandLimit(int grade, int column) const;

private:
    enum class State : quint8 {
        NoTable,
        Fault,
        /// All temperatures and numbers convert and no two rows meet, so that nothing can raise.
        Plain,
        /// It has to go the way of the design values themselves.
        Odd
    };
    struct Grade {
        quint32 firstRow = 0;
        quint32 firstCell = 0;
        quint32 rows = 0;
        quint32 heads = 0;
        State state = State::NoTable;
    };
    struct Bracket {
        quint32 lower = 0;
        quint32 upper = 0;
        bool atLower = false;
        bool atUpper = false;
    };

    quint32 headsId(const ValueHeads &heads);
    bool isPlain(const Grade &grade) const;
    Absence rangeOf(const Grade &grade, const Question &question) const;
    Bracket bracketOf(const Grade &grade, const Question &question) const;
    double valueAt(const Grade &grade, const Bracket &rows, int column, double temperature) const;
    void findBest(const Grade &grade, const Question &question, Best &best) const;
    void findBestOfOdd(const Grade &grade, const Question &question, Best &best) const;
    static void take(const Question &question, int column, double number, Best &best);
    SourceArray source(const Grade &grade) const;
    const Grade &at(int grade) const { return m_grades[static_cast<std::size_t>(grade)]; }
    int columnCount(const Grade &grade) const {
        return static_cast<int>(m_heads[grade.heads].columns.size());
    }

    NumberFlags m_flags;
    CellTexts m_texts;
    std::vector<ValueHeads> m_heads;
    std::map<std::pair<QVector<qint16>, QStringList>, quint32> m_headIds;
    std::vector<Grade> m_grades;
    std::vector<CellTexts::Id> m_temperatures;
    /// Of m_temperatures: the rows around a temperature are sought here.
    std::vector<float> m_celsius;
    /// Row by row, from column 1.
    std::vector<CellTexts::Id> m_cells;
};
