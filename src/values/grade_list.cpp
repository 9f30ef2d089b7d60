#include "values/grade_list.h"

#include <algorithm>

#include <QSet>

#include "data/cell_values.h"
#include "data/queries.h"
#include "data/search_statements.h"
#include "platform/dao/database.h"
#include "platform/dao/like_pattern.h"
#include "platform/dao/recordset.h"
#include "platform/dao/text_folding.h"
#include "platform/runtime/runtime_error.h"

namespace {

const QString Materials = QStringLiteral("materials");

/// One text for all that are alike.
class SharedTexts {
public:
    QString operator()(const RowCells &row, qsizetype position) {
        const std::optional<std::string_view> utf8 = row.text(position);
        if (!utf8) return cellText(row[position]);
        const auto size = static_cast<qsizetype>(utf8->size());
        const auto known = m_texts.constFind(QByteArray::fromRawData(utf8->data(), size));
        if (known != m_texts.constEnd()) return *known;
        return *m_texts.insert(QByteArray(utf8->data(), size), cellText(row[position]));
    }

private:
    /// The keys are UTF-8.
    QHash<QByteArray, QString> m_texts;
};

int compared(const QByteArray &left, const QByteArray &right) {
    return compareTexts(left.constData(), left.size(), right.constData(), right.size());
}

/// The places of the standards in their order; those that the engine takes for the same share one.
QHash<QString, int> ranks(const QVector<Grades::Grade> &grades) {
    QSet<QString> names;
    for (const Grades::Grade &grade : grades)
        names.insert(grade.standard);
    std::vector<std::pair<QByteArray, QString>> sorted;
    for (const QString &name : std::as_const(names))
        sorted.emplace_back(name.toUtf8(), name);
    std::sort(sorted.begin(), sorted.end(),
              [](const auto &left, const auto &right) { return compared(left.first, right.first) < 0; });
    QHash<QString, int> ranks;
    int rank = 0;
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        if (i > 0 && compared(sorted[i - 1].first, sorted[i].first) != 0) ++rank;
        ranks.insert(sorted[i].second, rank);
    }
    return ranks;
}

/// By standard and name as the database engine compares them, and else as they stand.
QVector<Grades::Grade> ordered(const QVector<Grades::Grade> &grades) {
    struct Key {
        int standard;
        QByteArray name;
        qsizetype place;
    };
    const QHash<QString, int> standards = ranks(grades);
    std::vector<Key> keys;
    for (qsizetype i = 0; i < grades.size(); ++i)
        keys.push_back({standards.value(grades[i].standard), grades[i].name.toUtf8(), i});
    std::stable_sort(keys.begin(), keys.end(), [](const Key &left, const Key &right) {
        return left.standard != right.standard ? left.standard < right.standard
                                               : compared(left.name, right.name) < 0;
    });
    QVector<Grades::Grade> sorted;
    sorted.reserve(grades.size());
    for (const Key &key : keys)
        sorted << grades[key.place];
    return sorted;
}

/// A null text is Null.
void append(TextColumn &column, const QString &text) {
    const QByteArray utf8 = text.toUtf8();
    column.append(text.isNull() ? nullptr : utf8.constData(), utf8.size());
}

RowMarks marks(const TextColumn &texts, const QString &text, std::size_t rows) {
    try {
        return texts.matching(LikePattern('*' + text + '*'));
    } catch (const RuntimeError &) {
        return RowMarks(rows + 1, 0);
    }
}

} // namespace

GradeList::GradeList(Database &database)
    : m_database(database) {
    readGrades(database);
    readStandards(database);
}

void GradeList::readGrades(Database &database) {
    SharedTexts shared;
    database.ReadRows(
        Materials, {"matID", "name", "numbr", "standard", "description", "groups", "revision_date"},
        [&](const RowCells &row) {
            if (IsNull(row[0])) return;
            m_grades << Grades::Grade{CInt(row[0]),   cellText(row[1]), cellText(row[2]),   shared(row, 3),
                                      shared(row, 4), shared(row, 5),   row[6].toDateTime()};
        });
    m_grades = ordered(m_grades);
    for (int i = 0; i < count(); ++i)
        if (!m_indexes.contains(m_grades[i].id)) m_indexes.insert(m_grades[i].id, i);
}

void GradeList::readStandards(Database &database) {
    const auto standards = database.OpenRecordset(Queries::sqlAllStandards());
    for (; !standards->Eof(); standards->MoveNext()) {
        const QString name = cellText(standards->Fields("standard")).toCaseFolded();
        if (!m_standardIDs.contains(name)) m_standardIDs.insert(name, CInt(standards->Fields("stID")));
    }
    const auto forms = database.OpenRecordset(QStringLiteral("StandardProdForm"));
    for (; !forms->Eof(); forms->MoveNext()) {
        m_formStandards << cellText(forms->Fields("standard")).toCaseFolded();
        append(m_forms, cellText(forms->Fields("productForm")));
    }
}

int GradeList::standardID(int index) const {
    return m_standardIDs.value(m_grades[index].standard.toCaseFolded(), -1);
}

std::vector<bool> GradeList::matching(const Grades::Criteria &criteria) const {
    SearchStatements::SearchFields fields = SearchStatements::initialFields();
    SearchStatements::applyStandardKind(fields, criteria.system);
    const std::pair<QString, QString> asked[] = {{fields[0].field, criteria.standard},
                                                 {fields[1].field, criteria.name},
                                                 {fields[2].field, criteria.number},
                                                 {fields[4].field, criteria.group}};
    const auto size = static_cast<std::size_t>(count());
    std::vector<bool> matching(size, true);
    for (const auto &[field, text] : asked) {
        if (text.isEmpty()) continue;
        const RowMarks alike = marks(texts(field), text, size);
        for (std::size_t i = 0; i < size; ++i)
            matching[i] = matching[i] && alike[i + 1];
    }
    if (criteria.productForm.isEmpty()) return matching;
    const RowMarks forms =
        marks(m_forms, criteria.productForm, static_cast<std::size_t>(m_formStandards.size()));
    QSet<QString> standards;
    for (qsizetype i = 0; i < m_formStandards.size(); ++i)
        if (forms[static_cast<std::size_t>(i) + 1]) standards.insert(m_formStandards[i]);
    // The names of standards are few: each is looked up once.
    QHash<QString, bool> known;
    for (std::size_t i = 0; i < size; ++i) {
        if (!matching[i]) continue;
        const QString &standard = m_grades[static_cast<qsizetype>(i)].standard;
        auto has = known.constFind(standard);
        if (has == known.constEnd())
            has = known.insert(standard, standards.contains(standard.toCaseFolded()));
        matching[i] = *has;
    }
    return matching;
}

const TextColumn &GradeList::texts(const QString &field) const {
    if (const auto known = m_texts.constFind(field); known != m_texts.constEnd()) return *known;
    static const QHash<QString, QString Grades::Grade::*> kept{{"standard", &Grades::Grade::standard},
                                                               {"name", &Grades::Grade::name},
                                                               {"numbr", &Grades::Grade::number},
                                                               {"groups", &Grades::Grade::group}};
    QStringList texts(m_grades.size());
    if (kept.contains(field)) {
        for (int i = 0; i < count(); ++i)
            texts[i] = m_grades[i].*kept.value(field);
    } else {
        m_database.ReadRows(Materials, {"matID", field}, [&](const RowCells &row) {
            if (const int place = IsNull(row[0]) ? -1 : indexOf(CLng(row[0])); place >= 0)
                texts[place] = cellText(row[1]);
        });
    }
    TextColumn column;
    for (const QString &text : std::as_const(texts))
        append(column, text);
    return *m_texts.insert(field, column);
}
