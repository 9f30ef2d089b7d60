// SQLite files as databases.
#include <gtest/gtest.h>

#include <memory>

#include <ctime>

#include <sqlite3.h>

#include "platform/dao/database.h"
#include "platform/dao/db_engine.h"
#include "platform/dao/recordset.h"
#include "tests/dao/source_support.h"
#include "tests/dao/sqlite_file.h"

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
    QStringList columns;
    for (const auto &each : cases)
        columns << QString(strchr(each.declared, '/') ? "c%1 [%2]" : "c%1 %2")
                       .arg(columns.size())
                       .arg(each.declared);
    const QTemporaryDir folder;
    FileSource source(
        makeSqliteFile(folder, "types.db", "create table T (" + columns.join(", ").toUtf8() + ")"));
    const FieldDefinitions fields = source.fields("T");
    ASSERT_EQ(fields.size(), std::ssize(cases));
    for (int i = 0; i < fields.size(); ++i) {
        EXPECT_EQ(fields[i].type, cases[i].type) << cases[i].declared;
        EXPECT_EQ(fields[i].size, cases[i].size) << cases[i].declared;
    }
}

TEST(SqliteSource, CellsComeAsTheirDeclaredTypes) {
    const QTemporaryDir folder;
    const QString path =
        makeSqliteFile(folder, "types #1?.db",
                       "create table T (yes Boolean, small Integer, big Long, one Single, two Double,"
                       " day Date, name Text(20), note Memo);"
                       "insert into T values (1, 7, 70000, 0.1, 0.1, '2017-09-30', 'P265GH', 'ä');"
                       "insert into T values ('no', '8', -1, 3, 4, '2017-09-30 14:25:59', '', '');"
                       "insert into T values ('True', '', 0, '', '1.5', 43008.25, 12, null);"
                       "insert into T values (null, null, null, null, null, null, null, null);"
                       "create view V as select * from T;");
    FileSource source(path);
    EXPECT_EQ(source.tableNames(), QStringList({"T", "V"}));
    EXPECT_EQ(source.rowCount("T"), 4);
    const QDateTime day(QDate(2017, 9, 30), QTime(0, 0));
    const Rows expected = {
        {true, 7, 70000, 0.1f, 0.1, day, "P265GH", QString::fromUtf8("ä")},
        {false, 8, -1, 3.0f, 4.0, QDateTime(QDate(2017, 9, 30), QTime(14, 25, 59)), "", ""},
        {true, {}, 0, {}, 1.5, QDateTime(QDate(2017, 9, 30), QTime(6, 0)), "12", {}},
        {{}, {}, {}, {}, {}, {}, {}, {}},
    };
    EXPECT_EQ(rowTexts(allRows(source, "T")), rowTexts(expected));
    EXPECT_EQ(rowTexts(allRows(source, "V")), rowTexts(expected));
    EXPECT_EQ(rowTexts(matchingRows(source, "T", {{"small", 8}})), rowTexts({expected[1]}));
    EXPECT_EQ(rowTexts(matchingRows(source, "T", {{"NAME", "p265gh"}, {"big", 70000}})),
              rowTexts({expected[0]}));
    EXPECT_EQ(rowTexts(matchingRows(source, "T", {{"name", "12"}})), rowTexts({expected[2]}));
    EXPECT_TRUE(matchingRows(source, "T", {{"name", QVariant()}}).isEmpty());
}

TEST(SqliteSource, CapitalsOutsideAsciiDoNotCountEither) {
    const QTemporaryDir folder;
    FileSource source(makeSqliteFile(folder, "capitals.db",
                                     "create table T (name Text); insert into T values ('STRAẞE Ö');"));
    EXPECT_EQ(matchingRows(source, "T", {{"name", QString::fromUtf8("straße ö")}}).size(), 1);
}

TEST(SqliteSource, ViewsAndGeneratedColumnsAreReadLikeOthers) {
    const QTemporaryDir folder;
    FileSource source(makeSqliteFile(
        folder, "views.db",
        "create table T (id Integer, temp Single, twice Double as (temp * 2) stored, mark Text(9) "
        "as (id || '*'));"
        "insert into T values (1, 100), (2, 20.5);"
        "create view V as select id, mark, cast(temp as integer) as whole, temp + 0 as calculated,"
        " id || '' as text, null as none from T;"
        "create view Broken as select * from Nowhere;"
        "create view Endless as with recursive n (i) as (select 1 union all select i from n) select "
        "i from n;"));
    EXPECT_EQ(rowTexts(allRows(source, "T")), rowTexts({{1, 100.0f, 200.0, "1*"}, {2, 20.5f, 41.0, "2*"}}));
    EXPECT_EQ(rowTexts(allRows(source, "V")),
              rowTexts({{1, "1*", 100, 100.0, "1", {}}, {2, "2*", 20, 20.5, "2", {}}}));
    EXPECT_EQ(rowTexts(matchingRows(source, "V", {{"whole", 20}})).size(), 1U);
    EXPECT_EQ(errorOf([&] { allRows(source, "Broken"); }), 3343);
    EXPECT_EQ(errorOf([&] { source.rowCount("Endless"); }), 3343);
    EXPECT_EQ(source.rowCount("T"), 2);
}

TEST(SqliteSource, ValueThatItsColumnCannotHoldIsAnErrorWhereItIsAskedFor) {
    const QTemporaryDir folder;
    const char *const values[] = {
        "Integer, b); insert into T values ('abc', 1)",   "Integer, b); insert into T values (1.5, 1)",
        "Long, b); insert into T values (5000000000, 1)", "Date, b); insert into T values ('soon', 1)",
        "Single, b); insert into T values (1e300, 1)",    "Text, b); insert into T values (x'00ff', 1)",
        "Blob, b); insert into T values (x'00ff', 1)"};
    int number = 0;
    for (const char *each : values) {
        const QString path =
            makeSqliteFile(folder, QString::number(++number), QByteArray("create table T (a ") + each);
        const auto database = DBEngine::instance().OpenDatabase(path, false, true, {});
        const auto rows = database->OpenRecordset("select * from T");
        EXPECT_EQ(rows->Fields("b").toString(), "1") << each;
        rows->FindFirst("b = '1'");
        EXPECT_FALSE(rows->NoMatch());
        EXPECT_EQ(errorOf([&] { rows->FindFirst("a is null"); }), 3343) << each;
        for (const char *asking : {"select a from T", "select b from T where a is null",
                                   "select b from T where a like '*'", "select b from T order by a",
                                   "select count(a) from T", "select b from T where b in (select a from T)"})
            EXPECT_EQ(errorOf([&] { database->OpenRecordset(asking)->Fields(0); }), 3343) << each << asking;
        try {
            rows->Fields("a");
        } catch (const RuntimeError &error) {
            EXPECT_TRUE(error.description().contains("a value in T.a is not"))
                << qPrintable(error.description());
        }
    }
}

TEST(SqliteSource, ADayOfWhichTheClocksSkipMidnightHasNoTime) {
    const QByteArray zone = qgetenv("TZ");
    qputenv("TZ", "America/Sao_Paulo");
    tzset();
    const QTemporaryDir folder;
    FileSource source(makeSqliteFile(folder, "days.db",
                                     "create table T (day Date); insert into T values ('1985-11-02'),"
                                     " ('1985-11-02 00:30'), ('1985-11-02T10:30:00+01:00'), (31353);"));
    QStringList days;
    for (const QVector<QVariant> &row : allRows(source, "T"))
        days << row[0].toDateTime().toString("yyyy-MM-dd hh:mm");
    zone.isNull() ? qunsetenv("TZ") : qputenv("TZ", zone);
    tzset();
    EXPECT_EQ(days,
              QStringList({"1985-11-02 00:00", "1985-11-02 00:30", "1985-11-02 10:30", "1985-11-02 00:00"}));
}

TEST(SqliteSource, AFileThatIsNotSettledOrNotWholeIsRefused) {
    const QTemporaryDir folder;
    const QString rows = "with recursive n (i) as (select 1 union all select i + 1 from n where i < 3000)"
                         " insert into T select i, printf('row %d', i) from n;";
    const QString path =
        makeSqliteFile(folder, "good.db", ("create table T (id Integer, name Text);" + rows).toUtf8());
    const QByteArray good = fileBytes(path);
    EXPECT_EQ(errorOf([&] { FileSource source(path); }), 0);

    // Of a transaction that has begun to write into the file, and of one that is told by the other file only.
    sqlite3 *writer = nullptr;
    sqlite3_open(path.toUtf8().constData(), &writer);
    sqlite3_exec(writer, qPrintable("pragma cache_size = 1; begin; update T set name = 'new'; " + rows),
                 nullptr, nullptr, nullptr);
    const QByteArray journal = fileBytes(path + "-journal");
    EXPECT_NE(fileBytes(path), good);
    EXPECT_EQ(errorOf([&] { FileSource source(path); }), 3045);
    sqlite3_exec(writer, "rollback; pragma journal_mode = wal; update T set name = 'newer'", nullptr, nullptr,
                 nullptr);
    const QByteArray wal = fileBytes(path + "-wal");
    QFile::link(path, folder.filePath("link.db"));
    EXPECT_EQ(errorOf([&] { FileSource source(folder.filePath("link.db")); }), 3045);
    sqlite3_close(writer);
    EXPECT_EQ(errorOf([&] { FileSource source(path); }), 0);

    const auto zeroed = [&] { return QByteArray(journal).replace(0, 28, QByteArray(28, '\0')); };
    const struct {
        QByteArray file, wal, journal;
        int error;
    } cases[] = {{good, "", "", 0},
                 {good, wal, "", 3045},
                 {good, "", journal, 3045},
                 {good, "", zeroed(), 0},
                 {good, "", journal.left(500), 0},
                 {good.chopped(1), "", "", 3049},
                 {good.left(good.size() / 2), "", "", 3049},
                 {good + "more", "", "", 0}};
    int number = 0;
    for (const auto &each : cases) {
        const QString copy = writeFile(folder, QString::number(++number), each.file);
        writeFile(folder, QString::number(number) + "-wal", each.wal);
        writeFile(folder, QString::number(number) + "-journal", each.journal);
        EXPECT_EQ(errorOf([&] { FileSource source(copy); }), each.error) << number;
    }
}

TEST(SqliteSource, NothingIsWrittenBesideTheFile) {
    const QTemporaryDir folder;
    const QString path =
        makeSqliteFile(folder, "plain.db",
                       "pragma journal_mode = wal; create table T (a Integer); insert into T values (1);");
    FileSource source(path);
    EXPECT_EQ(allRows(source, "T").size(), 1);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList("plain.db"));
}
