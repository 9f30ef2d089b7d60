// All grades of a database in memory, for searches that read nothing more.
#pragma once

#include <QHash>

#include "data/grades.h"
#include "platform/dao/text_column.h"

class Database;

class GradeList {
public:
    /// In the order of Grades::find. Raises what the database raises.
    explicit GradeList(Database &database);

    int count() const { return static_cast<int>(m_grades.size()); }
    const Grades::Grade &operator[](int index) const { return m_grades[index]; }
    /// -1 for an identity that no grade has.
    int indexOf(int id) const { return m_indexes.value(id, -1); }

    /// Of the grade's standard; -1 where that is missing.
    int standardID(int index) const;

    /// The grades that Grades::find would find, a mark each. A bracket that is still open finds nothing.
    std::vector<bool> matching(const Grades::Criteria &criteria) const;

private:
    void readStandards(Database &database);
    RowMarks marks(const QString &column, const QString &text) const;

    QVector<Grades::Grade> m_grades;
    QHash<int, int> m_indexes;
    /// Those that a criterion may ask for, by their names, in the order of the grades.
    QHash<QString, TextColumn> m_texts;
    /// The key is the standard's folded name.
    QHash<QString, int> m_standardIDs;
    /// Of standards, by their folded names, and product forms: a row each.
    QStringList m_formStandards;
    TextColumn m_forms;
};
