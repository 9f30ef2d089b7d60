#include "data/search_statements.h"

#include "data/queries.h"
#include "platform/runtime/runtime_error.h"

namespace {

using SearchStatements::Criteria;
using SearchStatements::ListQuery;

const QString Where = QStringLiteral(" where ");
const QString And = QStringLiteral(" and ");

// The standards that have a product form like the one of box 6; an empty box is like any.
QString standardsWithForm(const Criteria &criteria) {
    return QStringLiteral("(select standard from StandardProdForm where productForm like '*") +
           criteria.boxes[6] + QStringLiteral("*')");
}

ListQuery standardList(const Criteria &criteria, const QString &whereClause, const QString &connector) {
    if (criteria.standardKind != QLatin1String("EN")) {
        return {QStringLiteral("select distinct asmestandard from materials WHERE standard IN ") +
                    standardsWithForm(criteria) + QStringLiteral(" order by asmestandard"),
                false, QStringLiteral("asmestandard"), QStringLiteral("ASME Standard")};
    }
    QString sql = QStringLiteral("select * from standard where standard in (select standard from materials") +
                  whereClause;
    if (!criteria.boxes[6].isEmpty())
        sql += connector + QStringLiteral("standard in ") + standardsWithForm(criteria);
    return {sql + QStringLiteral(") order by standard"), true, {}, {}};
}

ListQuery productFormList(const Criteria &criteria, const QString &whereClause) {
    QString sql = QStringLiteral("select distinct productForm from StandardProdForm where standard in "
                                 "(select standard from materials ") +
                  whereClause + QLatin1Char(')');
    if (!criteria.boxes[6].isEmpty())
        sql += QStringLiteral(" and productForm like '*") + criteria.boxes[6] + QStringLiteral("*'");
    return {sql + QStringLiteral(" order by productForm"), false, QStringLiteral("productForm"),
            QStringLiteral("Product Form")};
}

ListQuery fieldList(const SearchStatements::SearchField &field, const Criteria &criteria,
                    const QString &whereClause, const QString &connector) {
    QString sql =
        QStringLiteral("select distinct ") + field.field + QStringLiteral(" from materials ") + whereClause;
    if (!criteria.boxes[6].isEmpty())
        sql += connector + QStringLiteral(" standard in ") + standardsWithForm(criteria);
    return {sql + QStringLiteral(" order by ") + field.field, false, field.field, field.caption};
}

} // namespace

SearchStatements::SearchFields SearchStatements::initialFields() {
    return {{{QStringLiteral("standard"), QStringLiteral("Standard Name")},
             {QStringLiteral("name"), QStringLiteral("Material Name")},
             {QStringLiteral("numbr"), QStringLiteral("Material Number")},
             {QStringLiteral("description"), QStringLiteral("Material Description")},
             {QStringLiteral("groups"), QStringLiteral("Material Group")},
             {QStringLiteral("revision_date"), QStringLiteral("Revision Date")},
             {QStringLiteral("productForm"), QStringLiteral("Product Form")},
             {QStringLiteral("asmestandard"), QStringLiteral("ASME Standard")},
             {QStringLiteral("asmegrade"), QStringLiteral("ASME Grade")},
             {QStringLiteral("ss"), QStringLiteral("SS")}}};
}

const QStringList &SearchStatements::standardKinds() {
    static const QStringList kinds = {QStringLiteral("EN"), QStringLiteral("SS"), QStringLiteral("ASME")};
    return kinds;
}

void SearchStatements::applyStandardKind(SearchFields &fields, const QString &kind) {
    if (kind == QLatin1String("EN")) {
        fields[0].field = QStringLiteral("standard");
        fields[1].field = QStringLiteral("name");
    } else if (kind == QLatin1String("SS")) {
        fields[1].field = QStringLiteral("ss");
    } else if (kind == QLatin1String("ASME")) {
        fields[0].field = QStringLiteral("asmestandard");
        fields[1].field = QStringLiteral("asmegrade");
    }
}

SearchStatements::MainQuery SearchStatements::mainQuery(const Criteria &criteria, const QString &orderBy) {
    const QString all = QStringLiteral("select * from materials");
    MainQuery query;
    for (std::size_t i = 0; i < 6; ++i) {
        if (criteria.boxes[i].isEmpty()) continue;
        query.mWhereClause += (query.mWhereClause.isEmpty() ? Where : And) + QLatin1Char(' ') +
                              criteria.fields[i].field + QStringLiteral(" like '*") + criteria.boxes[i] +
                              QStringLiteral("*'");
    }
    query.sql = all + query.mWhereClause;
    if (!criteria.boxes[6].isEmpty())
        query.sql += (query.mWhereClause.isEmpty() ? Where : And) +
                     QStringLiteral(" materials.standard in ") + standardsWithForm(criteria);
    query.sql += QStringLiteral(" order by ") + orderBy;
    return query;
}

QString SearchStatements::spread(const QString &text) {
    QString wide;
    for (const QChar character : text)
        wide += character + QStringLiteral("*");
    return wide;
}

QString SearchStatements::standardsStatement(const Criteria &criteria) {
    if (criteria.boxes[0].isEmpty() || criteria.standardKind != QLatin1String("EN"))
        return Queries::sqlAllStandards();
    return QStringLiteral("select * from standard where standard like '*") + spread(criteria.boxes[0]) +
           QStringLiteral("*' order by standard");
}

SearchStatements::ListQuery SearchStatements::listQuery(int box, const Criteria &criteria,
                                                        const QString &whereClause) {
    const QString connector = whereClause.isEmpty() ? Where : And;
    if (box == 0) return standardList(criteria, whereClause, connector);
    if (box == 6) return productFormList(criteria, whereClause);
    if (box < 0 || box > 6) throw RuntimeError(9);
    return fieldList(criteria.fields[static_cast<std::size_t>(box)], criteria, whereClause, connector);
}

std::optional<QChar> SearchStatements::typedCharacter(int box, QChar typed) {
    // Nothing is escaped in the statements: these would end a text or open a list of characters.
    if (typed == QLatin1Char('\'') || typed == QLatin1Char('[') || typed == QLatin1Char(']'))
        return std::nullopt;
    if (box == 2 && typed == QLatin1Char(',')) return QLatin1Char('.');
    return typed;
}
