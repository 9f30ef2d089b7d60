// SQLite files as databases.
#include <gtest/gtest.h>

#include <memory>

#include <sqlite3.h>

#include "platform/dao/sqlite_source.h"
#include "tests/dao/source_support.h"

namespace {

QString makeFile(const QTemporaryDir &folder, const QString &name, const char *sql) {
    const QString path = folder.filePath(name);
    sqlite3 *database = nullptr;
    sqlite3_open(path.toUtf8().constData(), &database);
    char *message = nullptr;
    EXPECT_EQ(sqlite3_exec(database, sql, nullptr, nullptr, &message), SQLITE_OK) << (message ? message : "");
    sqlite3_close(database);
    return path;
}

} // namespace

TEST(SqliteSource, DeclaredTypesUnderTheirUsualNames) {
    const struct {
        const char *declared;
        FieldType type;
        int size;
    } cases[] = {
        {"Yes/No", FieldType::Boolean, 0},
        {"boolean", FieldType::Boolean, 0},
        {"Byte", FieldType::Byte, 0},
        {"INT", FieldType::Integer, 0},
        {"Integer", FieldType::Integer, 0},
        {"Long", FieldType::Long, 0},
        {"long  integer", FieldType::Long, 0},
        {"Currency", FieldType::Currency, 0},
        {"Single", FieldType::Single, 0},
        {"Double", FieldType::Double, 0},
        {"REAL", FieldType::Double, 0},
        {"Decimal(10,2)", FieldType::Double, 0},
        {"Date", FieldType::Date, 0},
        {"DateTime", FieldType::Date, 0},
        {"Memo", FieldType::Memo, 0},
        {"TEXT(80)", FieldType::Text, 80},
        {"VarChar ( 20 )", FieldType::Text, 20},
        {"Text", FieldType::Text, 255},
        {"", FieldType::Text, 255},
        {"anything", FieldType::Text, 255},
    };
    for (const auto &each : cases) {
        const FieldDefinition field = SqliteSource::declaredField(each.declared);
        EXPECT_EQ(field.type, each.type) << each.declared;
        EXPECT_EQ(field.size, each.size) << each.declared;
    }
}

TEST(SqliteSource, CellsComeAsTheirDeclaredTypes) {
    const QTemporaryDir folder;
    const QString path =
        makeFile(folder, "types #1?.db",
                 "create table T (yes Boolean, small Integer, big Long, one Single, two Double,"
                 " day Date, name Text(20), note Memo);"
                 "insert into T values (1, 7, 70000, 0.1, 0.1, '2017-09-30', 'P265GH', 'ä');"
                 "insert into T values ('no', '8', -1, 3, 4, '2017-09-30 14:25:59', '', '');"
                 "insert into T values ('True', '', 0, '', '1.5', 43008.25, 12, null);"
                 "insert into T values (null, null, null, null, null, null, null, null);"
                 "create view V as select * from T;");
    SqliteSource source(path);
    EXPECT_EQ(source.tableNames(), QStringList("T"));
    EXPECT_EQ(source.rowCount("T"), 4);
    const QDateTime day(QDate(2017, 9, 30), QTime(0, 0));
    const Rows expected = {
        {true, 7, 70000, 0.1f, 0.1, day, "P265GH", QString::fromUtf8("ä")},
        {false, 8, -1, 3.0f, 4.0, QDateTime(QDate(2017, 9, 30), QTime(14, 25, 59)), "", ""},
        {true, {}, 0, {}, 1.5, QDateTime(QDate(2017, 9, 30), QTime(6, 0)), "12", {}},
        {{}, {}, {}, {}, {}, {}, {}, {}},
    };
    EXPECT_EQ(rowTexts(allRows(source, "T")), rowTexts(expected));
    EXPECT_EQ(rowTexts(matchingRows(source, "T", {{"small", 8}})), rowTexts({expected[1]}));
    EXPECT_EQ(rowTexts(matchingRows(source, "T", {{"NAME", "p265gh"}, {"big", 70000}})),
              rowTexts({expected[0]}));
    EXPECT_EQ(rowTexts(matchingRows(source, "T", {{"name", "12"}})), rowTexts({expected[2]}));
    EXPECT_TRUE(matchingRows(source, "T", {{"name", QVariant()}}).isEmpty());
}

TEST(SqliteSource, CapitalsOutsideAsciiDoNotCountEither) {
    const QTemporaryDir folder;
    SqliteSource source(
        makeFile(folder, "capitals.db", "create table T (name Text); insert into T values ('STRAẞE Ö');"));
    EXPECT_EQ(matchingRows(source, "T", {{"name", QString::fromUtf8("straße ö")}}).size(), 1);
}

TEST(SqliteSource, ValueThatItsColumnCannotHoldIsADamagedFile) {
    const QTemporaryDir folder;
    const char *const values[] = {
        "(a Integer); insert into T values ('abc')",   "(a Integer); insert into T values (1.5)",
        "(a Long); insert into T values (5000000000)", "(a Date); insert into T values ('soon')",
        "(a Single); insert into T values (1e300)",    "(a Text); insert into T values (x'00ff')"};
    int number = 0;
    for (const char *each : values) {
        SqliteSource source(
            makeFile(folder, QString::number(++number), (std::string("create table T ") + each).c_str()));
        EXPECT_EQ(errorOf([&] { allRows(source, "T"); }), 3343) << each;
    }
}

TEST(SqliteSource, NothingIsWrittenBesideTheFile) {
    const QTemporaryDir folder;
    const QString path =
        makeFile(folder, "plain.db",
                 "pragma journal_mode = wal; create table T (a Integer); insert into T values (1);");
    SqliteSource source(path);
    EXPECT_EQ(allRows(source, "T").size(), 1);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList("plain.db"));
}
