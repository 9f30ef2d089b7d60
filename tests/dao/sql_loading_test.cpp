// When which rows come into memory, and that it makes no difference to what a statement gives.
#include <gtest/gtest.h>

#include "tests/dao/sql_support.h"

namespace {

using RowTexts = std::vector<std::string>;

constexpr qint64 Never = 0;
constexpr qint64 Always = 1'000'000;

std::unique_ptr<ListSource> grades() {
    auto source = std::make_unique<ListSource>();
    QStringList cells;
    for (int id = 1; id <= 40; ++id)
        for (int row = 1; row <= 3; ++row)
            for (int column = 10; column <= 12; ++column)
                cells += QString("%1|%2|%3|%4").arg(id).arg(row).arg(column).arg(id * 7 % 11 + row * column);
    source->add("Cells", "ID:INT,rowNo:LONG,colID:INT,val:TEXT(20)", cells);
    source->add("Grades", "Name:TEXT(20),Standard:TEXT(20),text:MEMO",
                {"A|EN 1|x", "a|en 1|y", "B|EN 1|z", "A|EN 2|u", "Ä|EN 2|v", "\\N|EN 2|w"});
    return source;
}

struct KeyedCase {
    const char *sql;
    // What is read of the file; more than one reading is divided by ";".
    const char *reads;
};

class KeyedLoading : public testing::TestWithParam<KeyedCase> {};

TEST_P(KeyedLoading, GivesTheRowsOfTheWholeTable) {
    auto source = grades();
    const auto reads = source->reads();
    Database keyed = databaseOver(std::move(source), Never);
    Database whole = databaseOver(grades(), Always);
    // What other statements have brought in must not shine through.
    keyed.OpenRecordset("select * from Cells where ID = 9");
    keyed.OpenRecordset("select * from Grades where name = 'B' and standard = 'EN 1'");
    reads->clear();
    EXPECT_EQ(shownRows(keyed, GetParam().sql), shownRows(whole, GetParam().sql));
    EXPECT_EQ(reads->join(';').toStdString(), GetParam().reads);
    shownRows(keyed, GetParam().sql);
    EXPECT_EQ(reads->join(';').toStdString(), GetParam().reads) << "nothing is read twice";
}

INSTANTIATE_TEST_SUITE_P(
    Statements, KeyedLoading,
    testing::Values(
        KeyedCase{"select * from cells where id = 3 order by rowNo, colID", "Cells ID=3"},
        KeyedCase{"select * from cells where ID=9 and rowNo = 2", ""},
        KeyedCase{"select * from cells where colID = 11 and id = 3 order by val desc", "Cells colID=11"},
        KeyedCase{"select * from cells where ID = 3 and  colID = 10 or ID = 3 and  colID = 12 order by colID "
                  "DESC, rowNo",
                  "Cells ID=3"},
        KeyedCase{"select * from cells where id = 30 or 7 = cells.id or id = 9", "Cells ID=30;Cells ID=7"},
        KeyedCase{"select * from cells where (id = 5 or id = 6) and val like '*2*'", "Cells ID=5;Cells ID=6"},
        KeyedCase{"select * from cells where id = 5 and (rowNo = 1 or colID = 12)", "Cells ID=5"},
        KeyedCase{"select distinct rowNo from cells where id = 8", "Cells ID=8"},
        KeyedCase{"transform max(val) select rowNo from cells where id = 8 group by rowNo pivot colID",
                  "Cells ID=8"},
        KeyedCase{"select * from grades where standard = 'EN 2' and name = 'a'",
                  "Grades Name=a Standard=EN 2"},
        KeyedCase{"select * from grades where name = 'b' and standard = 'en 1'", ""},
        KeyedCase{
            "select text from grades where name in (select name from grades as g where g.standard = 'EN 2')",
            "Grades;Grades Standard=EN 2"},
        KeyedCase{"select * from cells where id = 3 or colID = 12", "Cells"},
        KeyedCase{"select * from cells where not id = 3", "Cells"},
        KeyedCase{"select * from cells where id > 38", "Cells"},
        KeyedCase{"select * from cells where id = '3'", "Cells"},
        KeyedCase{"select * from cells where id = 3.5", "Cells"},
        KeyedCase{"select * from grades where text = 'x'", "Grades"}, KeyedCase{"cells", "Cells"}));

TEST(Loading, TakesSmallTablesWholeAndOnce) {
    auto source = grades();
    const auto reads = source->reads();
    Database database = databaseOver(std::move(source), 6);
    EXPECT_TRUE(reads->isEmpty());
    EXPECT_EQ(shownRows(database, "select text from grades where name = 'a' and standard = 'EN 1'"),
              (RowTexts{"x", "y"}));
    EXPECT_EQ(shownRows(database, "select text from grades where name = 'B' order by text"), RowTexts{"z"});
    EXPECT_EQ(*reads, QStringList{"Grades"});
    database.OpenRecordset("select * from cells where id = 1");
    const auto some = database.OpenRecordset("select * from cells where id = 2");
    database.OpenRecordset("select * from cells order by id");
    database.OpenRecordset("select * from cells where id = 3");
    EXPECT_EQ(*reads, (QStringList{"Grades", "Cells ID=1", "Cells ID=2", "Cells"})) << "whole at last";
    EXPECT_EQ(some->RecordCount(), 9);
    EXPECT_EQ(some->Fields("ID"), QVariant(2)) << "rows that came by key stay good";
}

TEST(Loading, ReadsNothingForAStatementThatIsRefused) {
    auto source = grades();
    const auto reads = source->reads();
    Database database = databaseOver(std::move(source));
    for (const char *sql : {"select * from grades where nmae = 'A'", "select name from grades order by size",
                            "transform max(x) select name from grades group by name pivot standard",
                            "select * from grades where name in (select val from nothing)"})
        EXPECT_NE(errorText([&] { database.OpenRecordset(sql); }), "no error") << sql;
    EXPECT_TRUE(reads->isEmpty());
}

TEST(Loading, ADamagedTableLeavesNoRowsBehind) {
    for (qint64 limit : {Never, Always}) {
        auto source = grades();
        ListSource *file = source.get();
        Database database = databaseOver(std::move(source), limit);
        const char *sql = "select * from cells where id = 2 order by rowNo";
        file->setDamagedAfter(5);
        EXPECT_EQ(errorText([&] { database.OpenRecordset(sql); }), "3343: Unrecognized database format.");
        file->setDamagedAfter(-1);
        EXPECT_EQ(shownRows(database, sql).size(), 9u);
    }
}

TEST(Loading, RowsOutliveTheDatabase) {
    auto database = std::make_unique<Database>(databaseOver(grades(), Never));
    const auto rows = database->OpenRecordset("select * from cells where id = 4 order by rowNo, colID");
    const auto result = database->OpenRecordset("select distinct standard from grades");
    database->Close();
    EXPECT_EQ(errorText([&] { database->OpenRecordset("cells"); }), "3420: Object invalid or no longer set.");
    database.reset();
    rows->FindFirst("colID = 12");
    EXPECT_EQ(rows->Fields("val").toString(), QString::number(4 * 7 % 11 + 12));
    EXPECT_EQ(shownRows(*result), (RowTexts{"EN 1", "EN 2"}));
}

} // namespace
