// What the dialect means: wildcards, capitals, order, types, and the errors of a statement that is refused.
#include <gtest/gtest.h>

#include <QDateTime>

#include "platform/dao/like_pattern.h"
#include "platform/dao/text_folding.h"
#include "tests/dao/sql_support.h"
#include "tests/support/pinned_settings.h"

namespace {

using RowTexts = std::vector<std::string>;

class Dialect : public testing::Test {
protected:
    static std::unique_ptr<TableSource> tables() {
        auto source = std::make_unique<ListSource>();
        source->add("Part",
                    "id:INT,Label:TEXT(80),made:DATE,mass:SINGLE,price:DOUBLE,inStock:BOOLEAN,note:MEMO",
                    {"1|Bolt M8|2017-09-30|0.1|2.5|1|steel", "2|bolt m8|2018-02-01T13:45:00|12.25|0.1|0|\\N",
                     "3|Écrou|\\N|\\N|\\N|0|Zinc", "4|ecrou|2016-01-05|3|1000|1|it's 100 % [new]",
                     "5|\\N|2017-10-02|0.1|2.5|0|zinc"});
        source->add("Select", "order:INT", {"1", "2"});
        source->add("two words", "a b:INT", {"7"});
        return source;
    }

    RowTexts rows(const QString &sql) { return shownRows(m_database, sql); }
    RowTexts ids(const QString &where) { return rows("select id from part where " + where + " order by id"); }
    std::string error(const QString &sql) {
        return errorText([&] { m_database.OpenRecordset(sql); });
    }

    PinnedSettings m_settings{RegionalSettings{',', '.', "dd.MM.yyyy", "HH:mm:ss"}};
    Database m_database = databaseOver(tables());
};

TEST(Wildcards, Table) {
    struct Case {
        const char *pattern;
        QStringList fits;
        QStringList fails;
    };
    const std::vector<Case> cases = {
        {"*", {"", "x"}, {}},
        {"", {""}, {"x"}},
        {"abc", {"abc", "ABC"}, {"abcd", "xabc"}},
        {"*b*", {"b", "abc", "ABC"}, {"", "ac"}},
        {"a*", {"a", "Abc"}, {"ba"}},
        {"*c", {"c", "abc", "cac"}, {"ca"}},
        {"a*b*c", {"abc", "aXbbXc"}, {"acb"}},
        {"*ab*ab*", {"abab", "xabyabz"}, {"aba"}},
        {"a?c", {"abc", "aÄc", "a\U0001F600c"}, {"ac", "abbc"}},
        {"#.##", {"1.04", "9.99"}, {"x.04", "1.0"}},
        {"P#*[GN]H", {"p265gh", "P1NH"}, {"P265QH", "PxGH"}},
        {"[!a-c]*", {"d", "Dab"}, {"a", "B", ""}},
        {"[*]", {"*"}, {"x", ""}},
        {"*[[]x]", {"a[x]"}, {"ax"}},
        {"[a-]z", {"az", "-z"}, {"bz"}},
        {"x[]y", {"xy"}, {"x[]y"}},
        {"*ÉCROU*", {"un écrou", "Écrou"}, {"ecrou"}},
        {"*≤ 1#*", {"≤ 16 mm"}, {"≤ x"}},
    };
    for (const Case &each : cases) {
        const LikePattern pattern(each.pattern);
        const auto matches = [&](const QString &text) {
            const QByteArray utf8 = text.toUtf8();
            QByteArray folded;
            foldText(utf8.constData(), utf8.size(), folded);
            return pattern.matches(folded.constData(), folded.size());
        };
        for (const QString &text : each.fits)
            EXPECT_TRUE(matches(text)) << each.pattern << " on " << text.toStdString();
        for (const QString &text : each.fails)
            EXPECT_FALSE(matches(text)) << each.pattern << " on " << text.toStdString();
    }
}

// The same patterns must mean the same over a whole column, in a condition row by row, and in a find.
TEST_F(Dialect, LikeIsTheSameOnEveryRoad) {
    const std::vector<std::pair<QString, RowTexts>> cases = {
        {"label like '*BOLT*'", {"1", "2"}},   {"label like '**'", {"1", "2", "3", "4"}},
        {"label like '?crou'", {"3", "4"}},    {"label LIKE \"*m#\"", {"1", "2"}},
        {"note like '*''s*'", {"4"}},          {"note like '*[[]new]'", {"4"}},
        {"made like '*2017'", {"1", "5"}},     {"made like '*13:45*'", {"2"}},
        {"mass like '0,1'", {"1", "5"}},       {"mass like '12,25'", {"2"}},
        {"price like '*,*'", {"1", "2", "5"}}, {"id like '[2-4]'", {"2", "3", "4"}},
        {"label like '*x*' and id = 1", {}},   {"note like '*zinc*' and made like '*2017'", {"5"}},
    };
    for (const auto &[where, expected] : cases) {
        EXPECT_EQ(ids(where), expected) << where.toStdString();
        EXPECT_EQ(ids("(" + where + ") or id = 0"), expected) << where.toStdString();
        const auto all = m_database.OpenRecordset("part");
        RowTexts found;
        for (all->FindFirst(where); !all->NoMatch(); all->FindNext(where))
            found.push_back(shownCell(all->Fields("id")));
        EXPECT_EQ(found, expected) << where.toStdString();
    }
}

TEST_F(Dialect, Conditions) {
    const std::vector<std::pair<QString, RowTexts>> cases = {
        {"LABEL = 'BOLT m8'", {"1", "2"}},
        {"label = 'écrou'", {"3"}},
        {"[Part].[label] <> \"Bolt M8\"", {"3", "4"}},
        {"part.id >= 2 and not id > 3", {"2", "3"}},
        {"id = 1 or id = 2 and label like '*x*'", {"1"}},
        {"label is null", {"5"}},
        {"mass is not null and mass < 1", {"1", "5"}},
        {"label in ('ECROU', 'nut')", {"4"}},
        {"id not in (1, 2, 3)", {"4", "5"}},
        {"label not like '*bolt*'", {"3", "4"}},
        {"id between 2 and 3", {"2", "3"}},
        {"made = '30.09.2017'", {"1"}},
        {"made >= #2017-10-01#", {"2", "5"}},
        {"made < #9/30/2017#", {"4"}},
        {"made = #2018-02-01 13:45:00#", {"2"}},
        {"mass = '12,25'", {"2"}},
        {"id = '3'", {"3"}},
        {"price = 0.1", {"2"}},
        {"price = 1e-1 and id < 2.5E+0", {"2"}},
        {"id > 1e0 and id < .3E1", {"2"}},
        {"id = -1", {}},
        {"inStock", {"1", "4"}},
        {"inStock = true", {"1", "4"}},
        {"instock = -1", {"1", "4"}},
        {"label in (select label from part as p where p.inStock = false)", {"1", "2", "3"}},
        {"label in (select label from part where id = 3)", {"3"}},
        {"id in (select max(id) from part)", {"5"}},
    };
    for (const auto &[where, expected] : cases)
        EXPECT_EQ(ids(where), expected) << where.toStdString();
}

TEST_F(Dialect, OrderAndSummaries) {
    // Null comes first; an accent counts only between texts that are alike without it.
    EXPECT_EQ(rows("select id from part order by label, id desc"), (RowTexts{"5", "2", "1", "4", "3"}));
    EXPECT_EQ(rows("select id from part order by label desc"), (RowTexts{"3", "4", "1", "2", "5"}));
    EXPECT_EQ(rows("select id from part order by mass, 1"), (RowTexts{"3", "1", "5", "4", "2"}));
    EXPECT_EQ(rows("select distinct note from part order by note"),
              (RowTexts{"-", "it's 100 % [new]", "steel", "Zinc"}));
    EXPECT_EQ(rows("select label, count(*), min(made) from part group by label"),
              (RowTexts{"-|1|02.10.2017", "Bolt M8|2|30.09.2017", "ecrou|1|05.01.2016", "Écrou|1|-"}));
    EXPECT_EQ(
        rows("select inStock, count(label) from part group by inStock having count(label) < 3 order by 1"),
        (RowTexts{"True|2", "False|2"}));
    EXPECT_EQ(rows("transform count(id) select inStock from part group by inStock pivot label"),
              (RowTexts{"True|-|1|1|-", "False|1|1|-|1"}));
}

TEST_F(Dialect, Names) {
    EXPECT_EQ(
        fieldNames(*m_database.OpenRecordset("select LABEL, id as Number, max(id) as Top, min(id) from part "
                                             "group by label, id")),
        "LABEL|Number|Top|Expr1000");
    EXPECT_EQ(fieldNames(*m_database.OpenRecordset("select p.*, P.id from PART as p")),
              "id|Label|made|mass|price|inStock|note|id");
    EXPECT_EQ(fieldNames(*m_database.OpenRecordset(
                  "transform max(mass) select id from part where id < 3 group by id pivot mass")),
              "id|0,1|12,25");
    EXPECT_EQ(fieldNames(
                  *m_database.OpenRecordset("transform max(id) select id from part group by id pivot label")),
              "id|<>|Bolt M8|ecrou|Écrou");
    EXPECT_EQ(rows("select [order] from [select] where [order] > 1"), RowTexts{"2"});
    EXPECT_EQ(rows("two words"), RowTexts{"7"});
    EXPECT_EQ(rows(" [TWO WORDS] "), RowTexts{"7"});
}

TEST_F(Dialect, TypesSurvive) {
    const auto all = m_database.OpenRecordset("select * from part");
    EXPECT_EQ(all->Fields("id"), QVariant(1));
    EXPECT_EQ(all->Fields("label"), QVariant("Bolt M8"));
    EXPECT_EQ(all->Fields("made"), QVariant(QDate(2017, 9, 30).startOfDay()));
    EXPECT_EQ(all->Fields("mass"), QVariant(0.1f));
    EXPECT_EQ(all->Fields("mass").typeId(), QMetaType::Float);
    EXPECT_EQ(all->Fields("price"), QVariant(2.5));
    EXPECT_EQ(all->Fields("inStock"), QVariant(true));
    all->MoveNext();
    EXPECT_EQ(all->Fields("made"), QVariant(QDateTime(QDate(2018, 2, 1), QTime(13, 45))));
    EXPECT_FALSE(all->Fields("note").isValid());

    const auto summary = m_database.OpenRecordset(
        "select max(label), min(made), sum(mass), max(mass), avg(price), max(inStock), count(*) from part");
    const std::vector<int> types = {QMetaType::QString, QMetaType::QDateTime, QMetaType::Float,
                                    QMetaType::Float,   QMetaType::Double,    QMetaType::Bool,
                                    QMetaType::Int};
    for (std::size_t i = 0; i < types.size(); ++i)
        EXPECT_EQ(summary->Fields(static_cast<int>(i)).typeId(), types[i]) << i;
    EXPECT_EQ(shownRows(*summary), RowTexts{"Écrou|05.01.2016|15,45|12,25|251,275|False|5"});
}

TEST_F(Dialect, Errors) {
    const std::vector<std::pair<QString, std::string>> cases = {
        {"select * from part where label = 'O'Brien' and id = 1 order by id",
         "3075: Syntax error (missing operator) in query expression 'label = 'O'Brien' and id = 1 order by "
         "id'."},
        {"select * from part where label like '*O'B*' and note = 'a'b' order by id",
         "3075: Syntax error (missing operator) in query expression 'label like '*O'B*' and note = 'a'b''."},
        {"select * from part where label = 'x",
         "3075: Syntax error in string in query expression 'label = 'x'."},
        {"select * from part where made > #2017-13-45#",
         "3075: Syntax error in date in query expression 'made > #2017-13-45#'."},
        {"select * from part where (id = 1 or id = 2",
         "3075: Missing ), ], or Item in query expression '(id = 1 or id = 2'."},
        {"select * from part where id = 1) order by id", "3075: Extra ) in query expression 'id = 1)'."},
        {"select * from part where id in (select id from part where label = 'a' 'b') order by id",
         "3075: Syntax error (missing operator) in query expression 'label = 'a' 'b''."},
        {"select * from part order by label note",
         "3075: Syntax error (missing operator) in query expression 'label note'."},
        // Of a list, only the item.
        {"select id, label note, id from part",
         "3075: Syntax error (missing operator) in query expression 'label note'."},
        {"select max(id, 2) from part",
         "3075: Wrong number of arguments used with function in query expression 'max(id, 2)'."},
        {"select * from nothing where x = 1", "3078: The database engine cannot find the input table or "
                                              "query 'nothing'.  Make sure it exists and that "
                                              "its name is spelled correctly."},
        {"Nothing", "3078: The database engine cannot find the input table or query 'Nothing'.  Make sure it "
                    "exists and that "
                    "its name is spelled correctly."},
        {"select * from part order by colour ASC", "3061: Too few parameters. Expected 1."},
        {"select hue, part.hue from part where Colour = 1 and COLOUR = 2 and other.id = 3",
         "3061: Too few parameters. Expected 4."},
        {"select id from part where label in (select colour from [two words])",
         "3061: Too few parameters. Expected 1."},
        {"select ucase(label) from part", "3085: Undefined function 'ucase' in expression."},
        {"select distinct label from part order by id",
         "3093: ORDER BY clause (id) conflicts with DISTINCT."},
        {"select id from part where max(id) = 3",
         "3096: Cannot have aggregate function in WHERE clause (max(id))."},
        {"select label, id from part group by label", "3122: You tried to execute a query that does not "
                                                      "include the specified expression 'id' as part of an "
                                                      "aggregate function."},
        {"select id from part where id in (select id from part having label = 'x')",
         "3122: You tried to execute a query that does not include the specified expression 'id' as part of "
         "an "
         "aggregate function."},
        {"select id from", "3131: Syntax error in FROM clause."},
        {"select id from part, part", "3131: Syntax error in FROM clause."},
        {"select id from part order by", "3138: Syntax error in ORDER BY clause."},
        {"select label from part group by", "3132: Syntax error in GROUP BY clause."},
        {"select from part", "3141: The SELECT statement includes a reserved word or an argument name that "
                             "is misspelled or missing, or "
                             "the punctuation is incorrect."},
        {"select id from part; x", "3142: Characters found after end of SQL statement."},
        {"transform max(id) select label from part group by label",
         "3143: Syntax error in TRANSFORM statement."},
        {"select id from part where id in (select * from part)",
         "3306: You have written a subquery that can return more than one field without using the EXISTS "
         "reserved "
         "word in the main query's FROM clause.  Revise the SELECT statement of the subquery to request only "
         "one "
         "field."},
        {"select sum(label) from part", "3464: Data type mismatch in criteria expression."},
        {"select id from part where label", "3464: Data type mismatch in criteria expression."},
        {"select id from part where label like '*[*'", "93: Invalid pattern string"},
        {"select id from part where " + QString("(").repeated(100000) + "id", "3360: Query is too complex."},
        {"select id from part where id" + QString(" = id").repeated(30000), "3360: Query is too complex."},
        {"select id from part where id" + QString(" is null").repeated(30000), "3360: Query is too complex."},
        {"select id from part where id = 1" + QString(" or id = 1").repeated(10000),
         "3360: Query is too complex."},
    };
    for (const auto &[sql, expected] : cases)
        EXPECT_EQ(error(sql), expected) << sql.left(200).toStdString();
}

TEST(TextOrder, IsTotalAndKnowsNoCapitals) {
    const QStringList sorted = {"",   "#",   "1", "10", "9",  "a", "A\u0308", "ä", "ab",
                                "Äb", "abc", "é", "e1", "ef", "z", "µ",       "Ω", "ω1"};
    const auto compare = [](const QString &left, const QString &right) {
        const QByteArray l = left.toUtf8();
        const QByteArray r = right.toUtf8();
        return compareTexts(l.constData(), l.size(), r.constData(), r.size());
    };
    for (int i = 0; i < sorted.size(); ++i) {
        EXPECT_EQ(compare(sorted[i].toUpper(), sorted[i].toLower()), 0) << sorted[i].toStdString();
        for (int j = 0; j < sorted.size(); ++j) {
            const int order = compare(sorted[i], sorted[j]);
            EXPECT_EQ((order > 0) - (order < 0), (i > j) - (i < j))
                << sorted[i].toStdString() << " and " << sorted[j].toStdString();
        }
    }
}

} // namespace
