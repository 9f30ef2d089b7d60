#include "workbench/SelectedValues.h"

#include "data/modDBase.h"
#include "platform/forms/busy_pointer.h"
#include "shell/mdiVelmar.h"

std::shared_ptr<const GradeValues> readGradeValues(const Grades::Grade &grade) {
    return std::make_shared<GradeValues>(*modDBase::dbMain(), grade, mdiVelmar::instance().numberFlags());
}

void SelectedValues::read(const QVector<Grades::Grade> &selected) {
    const BusyPointer busy;
    ComparedGrades grades;
    for (const Grades::Grade &grade :
         selected.first(qMin<qsizetype>(selected.size(), Comparison::MostGrades))) {
        const auto known = std::find_if(m_grades.begin(), m_grades.end(),
                                        [&](const auto &each) { return each->grade().id == grade.id; });
        grades << (known != m_grades.end() ? *known : readGradeValues(grade));
    }
    m_grades = grades;
    m_properties = Comparison::present(m_grades, Properties::all(*modDBase::dbMain()));
}
