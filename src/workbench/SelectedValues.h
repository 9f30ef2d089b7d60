// The values of the selected grades, each read once.
#pragma once

#include <map>

#include "values/comparison.h"

class SelectedValues {
public:
    /// Of the first Comparison::MostGrades; grades that are no longer among them are forgotten. Raises what
    /// GradeValues raises.
    void read(const QVector<Grades::Grade> &selected);

    const ComparedGrades &grades() const { return m_grades; }
    /// Those that at least one of the grades has.
    const QVector<Property> &properties() const { return m_properties; }

private:
    ComparedGrades m_grades;
    QVector<Property> m_properties;
};

/// The values of one grade from the open database.
std::shared_ptr<const GradeValues> readGradeValues(const Grades::Grade &grade);
