// Rows of SQLite files by their keys, and what no file can make the program do.
#include <gtest/gtest.h>

#include <random>

#include <QElapsedTimer>

#include "tests/dao/source_support.h"
#include "tests/dao/sqlite_file.h"

namespace {

/// With capitals that are hard to tell, in no order.
QByteArray rowsOfKeys(const QByteArray &table, int count) {
    const QStringList names = {"k",          "K",
                               "\u212a",     "s",
                               "\u017f",     "P265GH",
                               "p265gh",     "P2",
                               "\u00df",     "\u1e9e",
                               "\u00c4b",    "\u00e4B",
                               "",           "long enough for two",
                               "12",         "LONG enough for TWO",
                               "\U00010400", "\U00010428"};
    std::mt19937 random(5);
    const auto below = [&](qsizetype limit) { return static_cast<qsizetype>(random() % std::size_t(limit)); };
    QStringList rows;
    for (int i = 0; i < count; ++i)
        rows << QString("(%1, %2, %3, '%4')")
                    .arg(i * 3 + 1)
                    .arg(below(20) == 0 ? QString("null") : QString::number(below(9) - 4))
                    .arg(below(20) == 0 ? QString("null") : "'" + names[below(names.size())] + "'")
                    .arg(names[below(names.size())]);
    return "insert into " + table + " values " + rows.join(", ").toUtf8() + ";";
}

} // namespace

TEST(SqliteSearch, EveryWayFindsTheSameRows) {
    const QTemporaryDir folder;
    const char *const layouts[] = {
        "create table T (id Long, owner Integer, name Text(20), other Text(20));",
        "create table T (id Long, owner Integer, name Text(20), other Text(20)); create index I on T "
        "(owner);",
        "create table T (id Integer primary key, owner Integer, name Text(20), other Text(20));",
        "create table T (id Long primary key, owner Integer, name Text(20), other Text(20)) without rowid;",
        "create table T (rowid Long, owner Integer, name Text(20) collate nocase, oid Text(20));"
        "create index I on T (name, oid);",
        "create table T (rowid Long, _rowid_ Integer, name Text(20), oid Text(20));",
        "create table S (id Long, owner Integer, name Text(20), other Text(20));"
        "create view T as select * from S;",
        "pragma encoding = 'UTF-16le';"
        "create table T (id Long, owner Integer, name Text(20), other Text(20));",
    };
    for (const QByteArray layout : layouts) {
        const QByteArray filled = layout.contains("table S") ? "S" : "T";
        FileSource source(
            makeSqliteFile(folder, QString::number(qHash(layout)), layout + rowsOfKeys(filled, 400)),
            helperPath());
        const Rows rows = allRows(source, "T");
        ASSERT_EQ(rows.size(), 400);
        const FieldDefinitions fields = source.fields("T");
        for (const QVector<int> &columns : {QVector<int>{0}, {1}, {2}, {1, 2}, {2, 3}})
            for (int i = 0; i < 60; ++i) {
                QVector<QVariant> key;
                QVector<ColumnCondition> conditions;
                for (const int column : columns) {
                    const QVariant cell = rows[i][column];
                    key << (cell.isValid() ? cell : column == 1 ? QVariant(99) : QVariant("none"));
                    conditions << ColumnCondition{fields[column].name, key.last()};
                }
                EXPECT_EQ(rowTexts(matchingRows(source, "T", conditions)), expectedRows(rows, columns, key))
                    << layout.constData() << i;
            }
    }
}

// Large enough that the helper looks which column tells the keys apart.
TEST(SqliteSearch, KeysOfALargeTableAreFoundWhereverTheyLie) {
    const QTemporaryDir folder;
    const QByteArray count =
        "with recursive n (i) as (select 0 union all select i + 1 from n where i < 8999) ";
    const QByteArray names[] = {
        "'Steel K' || (i / 3)", // in runs, and some once more far away, in small letters
        "'Steel ' || (i * 7919 % 4500)",
        "'Steel ' || (i % 40)", // in every part of the table
        "case when i % 5 = 0 then null when i % 11 = 0 then i else '\u017fteel ' || (i / 2) end",
    };
    for (const QByteArray &name : names) {
        FileSource source(
            makeSqliteFile(folder, QString::number(qHash(name)),
                           "create table T (id Integer, standard Text(20), name Text(20), number Text(20));" +
                               count + "insert into T select i, 'EN ' || (i / 1000), " + name +
                               ", '1.' || (i / 4) from n;"
                               "insert into T select id + 9000, standard, lower(name), number from T "
                               "where id % 100 = 7;"),
            helperPath());
        const Rows rows = allRows(source, "T");
        ASSERT_EQ(rows.size(), 9090);
        const FieldDefinitions fields = source.fields("T");
        for (const QVector<int> &columns : {QVector<int>{1, 2, 3}, {2, 3}, {0, 2}, {2, 2}})
            for (int i = 7; i < rows.size(); i += 601) {
                QVector<QVariant> key;
                QVector<ColumnCondition> conditions;
                for (const int column : columns) {
                    key << (rows[i][column].isValid() ? rows[i][column] : QVariant("none"));
                    conditions << ColumnCondition{fields[column].name, key.last()};
                }
                ASSERT_EQ(rowTexts(matchingRows(source, "T", conditions)), expectedRows(rows, columns, key))
                    << name.constData() << i;
            }
    }
}

// What the helper takes for granted when it looks for texts.
TEST(SqliteSearch, TwoCharactersOutsideAsciiHaveASmallLetterInIt) {
    QList<char32_t> found;
    for (char32_t character = 0x80; character <= QChar::LastValidCodePoint; ++character)
        if (QChar::toCaseFolded(character) < 0x80) found << character;
    EXPECT_EQ(found, QList<char32_t>({0x17f, 0x212a}));
}

TEST(SqliteSearch, ATextOfManyMegabytesIsRefusedAndItsRowIsNot) {
    const QTemporaryDir folder;
    FileSource source(makeSqliteFile(folder, "long.db",
                                     "create table T (id Integer, note Memo, name Text(20));"
                                     "insert into T values (1, printf('%.*c', 40000000, 'x'), 'one'),"
                                     " (2, 'short', 'two'), (3, printf('%.*c', 3000000, 'y'), 'three');"),
                      helperPath());
    QElapsedTimer clock;
    clock.start();
    TableColumns read(source.fields("T"));
    source.readAll("T", read, {});
    EXPECT_LT(clock.elapsed(), FileSource::Patience);
    EXPECT_TRUE(read.unreadable(1).endsWith("a value in T.note is too long."))
        << qPrintable(read.unreadable(1));
    const Rows rows = rowsOf(read);
    ASSERT_EQ(rows.size(), 3);
    EXPECT_EQ(rowTexts({{rows[0][0], rows[0][2]}, rows[1]}), rowTexts({{1, "one"}, {2, "short", "two"}}));
    EXPECT_EQ(rows[2][1].toString(), QString(3000000, 'y'));
}

TEST(SqliteSearch, AViewThatNeverEndsIsRefused) {
    const QTemporaryDir folder;
    FileSource source(
        makeSqliteFile(
            folder, "endless.db",
            "create table T (id Integer); insert into T values (1);"
            "create view Endless as with recursive n (i) as (select 1 union all select i + 1 from n)"
            " select (select id from T) as id from n;"
            "create view Other as select id from T;"),
        helperPath());
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(errorOf([&] { allRows(source, "Endless"); }), 3343);
    EXPECT_LT(clock.elapsed(), FileSource::Patience);
    EXPECT_EQ(allRows(source, "Other").size(), 1);
}

TEST(SqliteSearch, AViewOfTimeAndChanceNeedsNoFile) {
    const QTemporaryDir folder;
    FileSource source(
        makeSqliteFile(folder, "time.db",
                       "create table T (id Integer); insert into T values (1), (2);"
                       "create view V as select id, strftime('%s', 'now') as seconds,"
                       " datetime('now', 'localtime') as here, random() as dice from T order by 2, 4;"),
        helperPath());
    const QDateTime before = QDateTime::currentDateTime().addSecs(-2);
    const Rows rows = allRows(source, "V");
    ASSERT_EQ(rows.size(), 2);
    EXPECT_LE(before.toSecsSinceEpoch(), rows[0][1].toString().toLongLong());
    EXPECT_LE(before.toString("yyyy-MM-dd HH:mm:ss"), rows[0][2].toString());
}
