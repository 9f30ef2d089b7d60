// Whatever a file holds, opening and reading it ends: with rows, or with an error of a damaged file.
#include <gtest/gtest.h>

#include <random>

#include <QElapsedTimer>
#include <QtEndian>

#include "tests/dao/mdb_pages.h"
#include "tests/dao/source_support.h"
#include "tests/dao/sqlite_file.h"

namespace {

constexpr int CutOff = 3049;
constexpr int LongestWait = FileSource::Patience + 1000;

/// The error of reading the whole file, table by table and by a key. No step of it may take too long.
int errorOfReading(const QString &path) {
    QElapsedTimer clock;
    clock.start();
    int worst = 0;
    const auto step = [&](const std::function<void()> &action) {
        const int error = errorOf(action);
        EXPECT_TRUE(error == 0 || error == 3343 || error == CutOff) << error;
        EXPECT_LT(clock.restart(), LongestWait);
        worst = std::max(worst, error);
    };
    std::unique_ptr<SampleSource> source;
    step([&] { source = std::make_unique<SampleSource>(path); });
    if (!source) return worst;
    for (const QString &table : source->tableNames()) {
        step([&] { allRows(*source, table); });
        for (const FieldDefinition &field : source->fields(table)) {
            if (field.type != FieldType::Integer) continue;
            step([&] { matchingRows(*source, table, {{field.name, 1}}); });
            break;
        }
    }
    return worst;
}

/// Bytes changed here and there, half of the time in the pages that the others are found by; or a stretch
/// lost, or the end.
QByteArray damaged(const QByteArray &good, std::mt19937 &random) {
    const auto below = [&](qsizetype limit) { return static_cast<qsizetype>(random() % std::size_t(limit)); };
    QByteArray bad = good;
    const qsizetype pages = good.size() / mdbPages::Size;
    switch (below(10)) {
    case 0:
        return bad.left(below(bad.size()));
    case 1: {
        const qsizetype page = below(pages) * mdbPages::Size;
        for (qsizetype i = 0; i < 512; ++i)
            bad[page + i] = static_cast<char>(random());
        return bad;
    }
    case 2:
        return bad.replace(below(pages) * mdbPages::Size, mdbPages::Size,
                           good.mid(below(pages) * mdbPages::Size, mdbPages::Size));
    default:
        break;
    }
    const bool structural = below(2) == 0;
    for (qsizetype changes = 1 + below(60); changes > 0;) {
        const qsizetype page = below(pages) * mdbPages::Size;
        if (structural && page != 0 && good[page] == 1) continue;
        const qsizetype at = structural ? page + below(160) : page + below(mdbPages::Size);
        bad[at] = static_cast<char>(random());
        --changes;
    }
    return bad;
}

} // namespace

TEST(DamagedFiles, WhatIsNoDatabaseIsRefused) {
    const QTemporaryDir folder;
    const QByteArray good = fileBytes(samplePath("PMA_Index.mdb"));
    const QString paths[] = {
        folder.path(),
        folder.filePath("missing"),
        "/dev/zero",
        writeFile(folder, "empty", ""),
        writeFile(folder, "text", "matID;name\n1;P235GH\n"),
        writeFile(folder, "header", good.left(mdbPages::Size)),
        writeFile(folder, "half", good.left(good.size() / 2)),
        writeFile(folder, "zeros", good.left(mdbPages::Size) + QByteArray(good.size(), '\0')),
    };
    for (const QString &path : paths)
        EXPECT_EQ(errorOfReading(path), 3343) << path.toStdString();
}

TEST(DamagedFiles, RandomDamageEndsInRowsOrAnError) {
    std::mt19937 random(20260131);
    const QTemporaryDir folder;
    const QByteArray good[] = {fileBytes(samplePath("Velmar_PED.mdb")),
                               fileBytes(samplePath("PMA_Index.mdb"))};
    int refused = 0;
    for (int i = 0; i < 300; ++i) {
        const QString path = writeFile(folder, "damaged.mdb", damaged(good[i % 2], random));
        const int error = errorOfReading(path);
        EXPECT_TRUE(error == 0 || error == 3343) << error << " in round " << i;
        refused += error != 0;
    }
    EXPECT_GT(refused, 30);  // the damage does reach what matters,
    EXPECT_LT(refused, 270); // and is not always the end
}

TEST(DamagedFiles, DamagedSqliteFileEndsInRowsOrAnError) {
    std::mt19937 random(7);
    const QTemporaryDir folder;
    const QString path =
        makeSqliteFile(folder, "good.db",
                       "create table T (id Integer, name Text); create index I on T (id);"
                       "with recursive n (i) as (select 1 union all select i + 1 from n where i < 2000)"
                       " insert into T select i, printf('name %d', i) from n;");
    const QByteArray good = fileBytes(path);
    int refused = 0;
    for (int i = 0; i < 200; ++i)
        refused += errorOfReading(writeFile(folder, "damaged.db", damaged(good, random))) != 0;
    EXPECT_GT(refused, 20);
}

TEST(DamagedFiles, RowsOfAnSqliteFileThatComeTwiceAreRefused) {
    constexpr qsizetype Page = 4096;
    constexpr qsizetype Cells =
        12; // where an inner page says where its cells are, which begin with a page's number
    const QTemporaryDir folder;
    const QByteArray good = fileBytes(
        makeSqliteFile(folder, "good.db",
                       "create table T (id Integer, name Text);"
                       "with recursive n (i) as (select 1 union all select i + 1 from n where i < 2000)"
                       " insert into T select i, printf('name %d', i) from n;"));
    const qsizetype root = Page; // of the first table
    ASSERT_EQ(good[root], 5);
    const auto cell = [&](qsizetype index) {
        return root + qFromBigEndian<quint16>(good.constData() + root + Cells + 2 * index);
    };
    QByteArray twice = good;
    twice.replace(cell(1), 4, good.mid(cell(0), 4));
    FileSource source(writeFile(folder, "twice.db", twice), helperPath());
    EXPECT_EQ(errorOf([&] { allRows(source, "T"); }), 3343);
    EXPECT_EQ(errorOf([&] { matchingRows(source, "T", {{"id", 1}}); }), 3343);
}
