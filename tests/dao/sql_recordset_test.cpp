// Finding and reading rows through a recordset.
#include <gtest/gtest.h>

#include "tests/dao/sql_support.h"

namespace {

std::unique_ptr<TableSource> notes() {
    auto source = std::make_unique<ListSource>();
    source->add("Notes", "notID:LONG,tableName:TEXT(40),notTxt:MEMO",
                {"1|A|first", "2|A|second", "3|B|third", "1|B|fourth", "3|A|fifth", "4|A|It's"});
    return source;
}

class Finding : public testing::Test {
protected:
    // The row that a find stands on, or -1.
    static int row(Recordset &recordset) { return recordset.NoMatch() ? -1 : recordset.AbsolutePosition(); }

    Database m_database = databaseOver(notes());
};

TEST_F(Finding, EveryDirection) {
    const auto rows = m_database.OpenRecordset("Notes");
    rows->FindFirst("notID=3 AND tableName='a'");
    EXPECT_EQ(row(*rows), 4);
    rows->FindFirst("notID=1");
    EXPECT_EQ(row(*rows), 0);
    rows->FindNext("notID=1");
    EXPECT_EQ(row(*rows), 3);
    rows->FindNext("notID=1");
    EXPECT_TRUE(rows->NoMatch());
    EXPECT_EQ(rows->AbsolutePosition(), 3) << "the current record stays";
    rows->FindPrevious("notTxt like '*s*'");
    EXPECT_EQ(row(*rows), 1);
    rows->FindLast("tableName='B'");
    EXPECT_EQ(row(*rows), 3);
    rows->FindFirst("notTxt = 'It''s'");
    EXPECT_EQ(row(*rows), 5);
}

TEST_F(Finding, KnowsTheRecordsetsOwnRowsAndNames) {
    const auto sorted = m_database.OpenRecordset("select notTxt as t, notID from Notes where tableName = 'A' "
                                                 "order by notID desc");
    sorted->FindFirst("notID=1");
    EXPECT_EQ(row(*sorted), 3);
    sorted->FindFirst("T like 'f*'");
    EXPECT_EQ(row(*sorted), 1);
    EXPECT_EQ(sorted->Fields("t").toString(), "fifth");

    const auto distinct = m_database.OpenRecordset("select distinct tableName from Notes order by tableName");
    distinct->FindFirst("tableName LIKE '*b*'");
    EXPECT_EQ(row(*distinct), 1);
}

TEST_F(Finding, Errors) {
    const auto rows = m_database.OpenRecordset("select notID from Notes");
    const std::vector<std::pair<QString, std::string>> cases = {
        {"notID='It's'", "3077: Syntax error (missing operator) in expression."},
        {"notID='", "3077: Syntax error in string in expression."},
        {"", "3077: Syntax error (missing operator) in expression."},
        {"notID in (select notID from Notes)", "3077: Syntax error (missing operator) in expression."},
        {"notID=1 order by notID", "3077: Syntax error (missing operator) in expression."},
        {"tableName='A'",
         "3070: The database engine does not recognize 'tableName' as a valid field name or expression."},
    };
    for (const auto &[criterion, expected] : cases)
        EXPECT_EQ(errorText([&] { rows->FindFirst(criterion); }), expected) << criterion.toStdString();
    EXPECT_EQ(rows->AbsolutePosition(), 0);
    const auto empty = m_database.OpenRecordset("select * from Notes where notID = 0");
    empty->FindFirst("notID=1");
    EXPECT_TRUE(empty->NoMatch());
}

TEST_F(Finding, ReadsMoreRowsThanItKeeps) {
    QStringList lines;
    for (int i = 0; i < 5000; ++i)
        lines += QString("%1|name %2").arg(i).arg(4999 - i, 4, 10, QChar('0'));
    auto source = std::make_unique<ListSource>();
    source->add("Many", "id:LONG,name:TEXT(80)", lines);
    Database database = databaseOver(std::move(source));
    const auto rows = database.OpenRecordset("select * from many order by name");
    ASSERT_EQ(rows->RecordCount(), 5000);
    for (int round = 0; round < 2; ++round)
        for (int i = 0; i < 5000; ++i)
            ASSERT_EQ(rows->value(i, 0), QVariant(4999 - i));
    rows->FindFirst("name like '*0042*'");
    EXPECT_EQ(row(*rows), 42);
}

} // namespace
