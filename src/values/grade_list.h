// All grades of a database in memory, for searches that read nothing more.
#pragma once

#include <QHash>

#include "data/grades.h"
#include "platform/dao/text_column.h"

class Database;

class GradeList {
public:
    /// In the order of Grades::find. `database` outlives the object. Raises what the database raises.
    explicit GradeList(Database &database);

    int count() const { return static_cast<int>(m_grades.size()); }
    const Grades::Grade &operator[](int index) const { return m_grades[index]; }
    /// -1 for an identity that no grade has.
    int indexOf(int id) const { return m_indexes.value(id, -1); }

    /// Of the grade's standard; -1 where that is missing.
    int standardID(int index) const;

    /// The grades that Grades::find would find, a mark each. A bracket that is still open finds nothing.
    /// The first criterion of a standards system other than EN reads its texts from the database.
    std::vector<bool> matching(const Grades::Criteria &criteria) const;

private:
    void readGrades(Database &database);
    void readStandards(Database &database);
    const TextColumn &texts(const QString &field) const;

    Database &m_database;
    QVector<Grades::Grade> m_grades;
    QHash<int, int> m_indexes;
    /// The key is the standard's folded name.
    QHash<QString, int> m_standardIDs;
    /// Product forms, and a row each the folded name of the standard that has it.
    TextColumn m_forms;
    QStringList m_formStandards;
    /// Fields that a criterion has asked for, in the order of the grades.
    mutable QHash<QString, TextColumn> m_texts;
};
