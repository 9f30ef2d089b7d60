#include "data/grades.h"

#include "data/cell_values.h"
#include "data/Material.h"
#include "data/queries.h"
#include "data/search_statements.h"
#include "platform/dao/database.h"
#include "platform/dao/recordset.h"

namespace {

QVector<Grades::Grade> gradesOf(Recordset &rows) {
    QVector<Grades::Grade> grades;
    for (; !rows.Eof(); rows.MoveNext())
        grades << Grades::Grade{CInt(rows.Fields("matID")),
                                cellText(rows.Fields("name")),
                                cellText(rows.Fields("numbr")),
                                cellText(rows.Fields("standard")),
                                cellText(rows.Fields("description")),
                                cellText(rows.Fields("groups")),
                                rows.Fields("revision_date").toDateTime()};
    return grades;
}

bool isSame(const QString &left, const QString &right) {
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

/// None where the text is no number of 16 bits.
QVector<int> identity(const QString &text) {
    bool isNumber = false;
    const short id = text.toShort(&isNumber);
    return isNumber && text == QString::number(id) ? QVector<int>{id} : QVector<int>();
}

/// Of the grades with this name or number. Compared here and not in a statement, since a name may hold what
/// would end a text there; and without a list of all grades, which takes longest of all.
QVector<int> idsOf(Database &database, const QString &text) {
    QVector<int> ids;
    database.ReadRows("materials", {"matID", "name", "numbr"}, [&](const RowCells &cells) {
        if (isSame(cellText(cells[1]), text) || isSame(cellText(cells[2]), text)) ids << CInt(cells[0]);
    });
    return ids;
}

/// Longer conditions are refused as too complex.
constexpr qsizetype MostInOneStatement = 30;

} // namespace

QVector<Grades::Grade> Grades::find(Database &database, const Criteria &criteria) {
    SearchStatements::Criteria search;
    search.standardKind = criteria.system;
    SearchStatements::applyStandardKind(search.fields, criteria.system);
    search.boxes = {criteria.standard,   criteria.name, criteria.number, {}, criteria.group, {},
                    criteria.productForm};
    return gradesOf(
        *database.OpenRecordset(SearchStatements::mainQuery(search, SearchStatements::DefaultOrder).sql));
}

QVector<Grades::Grade> Grades::named(Database &database, const QString &text) {
    const QString wanted = text.section(QLatin1Char('@'), 0, 0).trimmed();
    const QString standard = text.section(QLatin1Char('@'), 1).trimmed();
    const bool byIdentity = wanted.startsWith(QLatin1Char('#'));
    if (wanted.isEmpty()) return {};
    const QVector<int> ids = byIdentity ? identity(wanted.mid(1)) : idsOf(database, wanted);
    QVector<Grade> grades;
    for (qsizetype begin = 0; begin < ids.size(); begin += MostInOneStatement)
        grades << gradesOf(
            *database.OpenRecordset(Queries::sqlSelectedMaterials(ids.mid(begin, MostInOneStatement))));
    grades.removeIf(
        [&](const Grade &grade) { return !standard.isEmpty() && !isSame(grade.standard, standard); });
    return grades;
}

Grades::Grade Grades::of(const Material &material) {
    return {material.ID(),          material.Name(),  material.Number(),      material.Standard(),
            material.Description(), material.Group(), material.RevisionDate()};
}

std::shared_ptr<Material> Grades::material(Database &database, qint16 id) {
    const auto materials = database.OpenRecordset(Queries::sqlSelectedMaterials({id}));
    const auto standards = database.OpenRecordset(Queries::sqlAllStandards());
    const QString standard = cellText(materials->Fields("standard"));
    while (!isSame(cellText(standards->Fields("standard")), standard))
        standards->MoveNext();
    auto material = std::make_shared<Material>();
    material->SetProperties(*materials, *standards);
    return material;
}
