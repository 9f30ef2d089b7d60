#include "values/grade_list.h"

#include <algorithm>
#include <numeric>

#include "data/cell_values.h"
#include "data/queries.h"
#include "data/search_statements.h"
#include "platform/dao/database.h"
#include "platform/dao/like_pattern.h"
#include "platform/dao/recordset.h"
#include "platform/dao/text_folding.h"
#include "platform/runtime/runtime_error.h"

namespace {

const QStringList Searched{"standard", "name", "numbr", "groups", "asmestandard", "asmegrade", "ss"};

struct ReadGrade {
    Grades::Grade grade;
    /// A null array is Null; in the order of Searched.
    QVector<QByteArray> texts;
};

QByteArray searchedText(const QVariant &cell) {
    if (IsNull(cell)) return {};
    const QByteArray text = cellText(cell).toUtf8();
    return text.isNull() ? QByteArray("") : text;
}

/// One text for all grades that have it.
QString shared(QHash<QString, QString> &texts, const QVariant &cell) {
    const QString text = cellText(cell);
    return *texts.insert(text, texts.value(text, text));
}

std::vector<ReadGrade> readGrades(Database &database) {
    std::vector<ReadGrade> grades;
    QHash<QString, QString> texts;
    database.ReadRows("materials", QStringList{"matID", "description", "revision_date"} + Searched,
                      [&](const QVector<QVariant> &row) {
                          if (IsNull(row[0])) return;
                          ReadGrade read;
                          read.grade = {CInt(row[0]),          cellText(row[4]),      cellText(row[5]),
                                        shared(texts, row[3]), shared(texts, row[1]), shared(texts, row[6]),
                                        row[2].toDateTime()};
                          for (qsizetype i = 3; i < row.size(); ++i)
                              read.texts << searchedText(row[i]);
                          grades.push_back(std::move(read));
                      });
    return grades;
}

/// By standard and name as the database engine compares them, and else in the order of the file.
std::vector<std::size_t> ordered(const std::vector<ReadGrade> &grades) {
    std::vector<std::size_t> order(grades.size());
    std::iota(order.begin(), order.end(), 0);
    const auto compared = [&](std::size_t left, std::size_t right, qsizetype column) {
        const QByteArray &first = grades[left].texts[column];
        const QByteArray &second = grades[right].texts[column];
        // Null comes before any text.
        if (first.isNull() || second.isNull()) return int(second.isNull()) - int(first.isNull());
        if (first == second) return 0;
        return compareTexts(first.constData(), first.size(), second.constData(), second.size());
    };
    std::stable_sort(order.begin(), order.end(), [&](std::size_t left, std::size_t right) {
        const int byStandard = compared(left, right, 0);
        return byStandard != 0 ? byStandard < 0 : compared(left, right, 1) < 0;
    });
    return order;
}

} // namespace

GradeList::GradeList(Database &database) {
    const std::vector<ReadGrade> grades = readGrades(database);
    for (const std::size_t place : ordered(grades)) {
        const ReadGrade &read = grades[place];
        if (!m_indexes.contains(read.grade.id)) m_indexes.insert(read.grade.id, count());
        m_grades << read.grade;
        for (qsizetype i = 0; i < Searched.size(); ++i) {
            const QByteArray &text = read.texts[i];
            m_texts[Searched[i]].append(text.isNull() ? nullptr : text.constData(), text.size());
        }
    }
    readStandards(database);
}

void GradeList::readStandards(Database &database) {
    const auto standards = database.OpenRecordset(Queries::sqlAllStandards());
    for (; !standards->Eof(); standards->MoveNext()) {
        const QString name = cellText(standards->Fields("standard")).toCaseFolded();
        if (!m_standardIDs.contains(name)) m_standardIDs.insert(name, CInt(standards->Fields("stID")));
    }
    const auto forms = database.OpenRecordset(QStringLiteral("StandardProdForm"));
    for (; !forms->Eof(); forms->MoveNext()) {
        const QByteArray form = searchedText(forms->Fields("productForm"));
        m_formStandards << cellText(forms->Fields("standard")).toCaseFolded();
        m_forms.append(form.isNull() ? nullptr : form.constData(), form.size());
    }
}

int GradeList::standardID(int index) const {
    return m_standardIDs.value(m_grades[index].standard.toCaseFolded(), -1);
}

std::vector<bool> GradeList::matching(const Grades::Criteria &criteria) const {
    SearchStatements::SearchFields fields = SearchStatements::initialFields();
    SearchStatements::applyStandardKind(fields, criteria.system);
    const std::pair<QString, QString> texts[] = {{fields[0].field, criteria.standard},
                                                 {fields[1].field, criteria.name},
                                                 {fields[2].field, criteria.number},
                                                 {fields[4].field, criteria.group}};
    std::vector<bool> matching(m_grades.size(), true);
    for (const auto &[column, text] : texts) {
        if (text.isEmpty()) continue;
        const RowMarks alike = marks(column, text);
        for (std::size_t i = 0; i < matching.size(); ++i)
            matching[i] = matching[i] && alike[i + 1];
    }
    if (criteria.productForm.isEmpty()) return matching;
    const RowMarks forms = marks({}, criteria.productForm);
    QSet<QString> standards;
    for (qsizetype i = 0; i < m_formStandards.size(); ++i)
        if (forms[static_cast<std::size_t>(i) + 1]) standards.insert(m_formStandards[i]);
    for (std::size_t i = 0; i < matching.size(); ++i)
        matching[i] =
            matching[i] && standards.contains(m_grades[static_cast<qsizetype>(i)].standard.toCaseFolded());
    return matching;
}

/// Of the product forms for an empty column.
RowMarks GradeList::marks(const QString &column, const QString &text) const {
    const TextColumn &texts = column.isEmpty() ? m_forms : *m_texts.constFind(column);
    try {
        return texts.matching(LikePattern('*' + text + '*'));
    } catch (const RuntimeError &) {
        return RowMarks(m_grades.size() + m_formStandards.size() + 1, 0);
    }
}
