// The search window's statements, with their doubled blanks.
#include <gtest/gtest.h>

#include "data/search_statements.h"
#include "tests/support/error_of.h"

namespace {

using namespace SearchStatements;

Criteria criteria(const QString &kind, std::initializer_list<std::pair<std::size_t, const char *>> boxes) {
    Criteria result;
    result.standardKind = kind;
    applyStandardKind(result.fields, kind);
    for (const auto &[box, text] : boxes)
        result.boxes[box] = QLatin1String(text);
    return result;
}

TEST(SearchStatementsTest, MainQueryJoinsWhatStandsInTheBoxes) {
    const struct {
        Criteria criteria;
        const char *sql, *whereClause;
    } cases[] = {
        {criteria("EN", {}), "select * from materials order by standard,name", ""},
        {criteria("EN", {{1, "P2"}, {2, "1.04"}, {6, "Plate"}}),
         "select * from materials where  name like '*P2*' and  numbr like '*1.04*' and  materials.standard "
         "in "
         "(select standard from StandardProdForm where productForm like '*Plate*') order by standard,name",
         " where  name like '*P2*' and  numbr like '*1.04*'"},
        {criteria("EN", {{6, "Plate"}}),
         "select * from materials where  materials.standard in (select standard from StandardProdForm where "
         "productForm like '*Plate*') order by standard,name",
         ""},
        {criteria("EN", {{0, "EN"}, {3, "a"}, {4, "b"}, {5, "2003"}}),
         "select * from materials where  standard like '*EN*' and  description like '*a*' and  groups like "
         "'*b*' "
         "and  revision_date like '*2003*' order by standard,name",
         " where  standard like '*EN*' and  description like '*a*' and  groups like '*b*' and  revision_date "
         "like "
         "'*2003*'"},
        {criteria("ASME", {{0, "SA"}, {1, "516"}}),
         "select * from materials where  asmestandard like '*SA*' and  asmegrade like '*516*' order by "
         "standard,name",
         " where  asmestandard like '*SA*' and  asmegrade like '*516*'"},
        {criteria("SS", {{1, "14"}}), "select * from materials where  ss like '*14*' order by standard,name",
         " where  ss like '*14*'"},
    };
    for (const auto &item : cases) {
        const MainQuery query = mainQuery(item.criteria, QStringLiteral("standard,name"));
        EXPECT_EQ(query.sql.toStdString(), item.sql);
        EXPECT_EQ(query.mWhereClause.toStdString(), item.whereClause);
    }
}

TEST(SearchStatementsTest, AChangeFromAsmeToSsKeepsTheStandardsColumn) {
    SearchFields fields = initialFields();
    applyStandardKind(fields, QStringLiteral("ASME"));
    applyStandardKind(fields, QStringLiteral("SS"));
    EXPECT_EQ(fields[0].field, QStringLiteral("asmestandard"));
    EXPECT_EQ(fields[0].caption, QStringLiteral("Standard Name"));
    applyStandardKind(fields, QString());
    EXPECT_EQ(fields[1].field, QStringLiteral("ss"));
    applyStandardKind(fields, QStringLiteral("EN"));
    EXPECT_EQ(fields[1].field, QStringLiteral("name"));
}

TEST(SearchStatementsTest, TheStandardsListIsWideOnlyUnderEn) {
    EXPECT_EQ(spread(QStringLiteral("P2")), QStringLiteral("P*2*"));
    EXPECT_EQ(standardsStatement(criteria("EN", {{0, "P2"}})),
              QStringLiteral("select * from standard where standard like '*P*2**' order by standard"));
    for (const Criteria &other : {criteria("ASME", {{0, "P2"}}), criteria("EN", {{1, "P2"}})})
        EXPECT_EQ(standardsStatement(other), QStringLiteral("select * from standard order by standard"));
}

TEST(SearchStatementsTest, ListButtonsNarrowByAllCriteria) {
    const char *const clause = " where  name like '*P2*'";
    const struct {
        int box;
        Criteria criteria;
        const char *whereClause, *sql, *field, *title;
    } cases[] = {
        {0, criteria("SS", {{1, "14"}}), clause,
         "select distinct asmestandard from materials WHERE standard IN (select standard from "
         "StandardProdForm "
         "where productForm like '**') order by asmestandard",
         "asmestandard", "ASME Standard"},
        {0, criteria("EN", {}), "",
         "select * from standard where standard in (select standard from materials) order by standard", "",
         ""},
        {0, criteria("EN", {{1, "P2"}, {6, "Bar"}}), clause,
         "select * from standard where standard in (select standard from materials where  name like '*P2*' "
         "and "
         "standard in (select standard from StandardProdForm where productForm like '*Bar*')) order by "
         "standard",
         "", ""},
        {0, criteria("EN", {{6, "Bar"}}), "",
         "select * from standard where standard in (select standard from materials where standard in (select "
         "standard from StandardProdForm where productForm like '*Bar*')) order by standard",
         "", ""},
        {6, criteria("EN", {{1, "P2"}}), clause,
         "select distinct productForm from StandardProdForm where standard in (select standard from "
         "materials  "
         "where  name like '*P2*') order by productForm",
         "productForm", "Product Form"},
        {6, criteria("EN", {{6, "Bar"}}), "",
         "select distinct productForm from StandardProdForm where standard in (select standard from "
         "materials ) "
         "and productForm like '*Bar*' order by productForm",
         "productForm", "Product Form"},
        {1, criteria("ASME", {}), "", "select distinct asmegrade from materials  order by asmegrade",
         "asmegrade", "Material Name"},
        {5, criteria("EN", {{1, "P2"}}), clause,
         "select distinct revision_date from materials  where  name like '*P2*' order by revision_date",
         "revision_date", "Revision Date"},
        {3, criteria("EN", {{1, "P2"}, {6, "Bar"}}), clause,
         "select distinct description from materials  where  name like '*P2*' and  standard in (select "
         "standard "
         "from StandardProdForm where productForm like '*Bar*') order by description",
         "description", "Material Description"},
        {2, criteria("EN", {{6, "Bar"}}), "",
         "select distinct numbr from materials  where  standard in (select standard from StandardProdForm "
         "where "
         "productForm like '*Bar*') order by numbr",
         "numbr", "Material Number"},
    };
    for (const auto &item : cases) {
        const ListQuery query = listQuery(item.box, item.criteria, QLatin1String(item.whereClause));
        EXPECT_EQ(query.sql.toStdString(), item.sql);
        EXPECT_EQ(query.field.toStdString(), item.field);
        EXPECT_EQ(query.title.toStdString(), item.title);
        EXPECT_EQ(query.picksStandard, query.field.isEmpty());
    }
    EXPECT_EQ(errorOf([] { listQuery(7, {}, {}); }), 9);
}

TEST(SearchStatementsTest, TypedCharactersThatBreakAStatementAreRefused) {
    for (int box = 0; box < 7; ++box) {
        for (const char refused : {'\'', '[', ']'})
            EXPECT_FALSE(typedCharacter(box, QLatin1Char(refused)));
        for (const char passed : {'*', '?', '#', '"', 'a'})
            EXPECT_EQ(typedCharacter(box, QLatin1Char(passed)), QLatin1Char(passed));
        EXPECT_EQ(typedCharacter(box, QLatin1Char(',')), QLatin1Char(box == 2 ? '.' : ','));
    }
}

} // namespace
