// Rows of Access files by their keys: whatever the helper leaves out on the way, it finds what is there.
#include <gtest/gtest.h>

#include <random>

#include "tests/dao/jet_file.h"
#include "tests/dao/source_support.h"

namespace {

using Version = JetFile::Version;

const JetFile::Columns Columns = {{"id", JetFile::Type::Long},
                                  {"a", JetFile::Type::Text},
                                  {"b", JetFile::Type::Text},
                                  {"number", JetFile::Type::Integer},
                                  {"c", JetFile::Type::Text}};

/// Rows of one key follow one another, and others that are hard to tell from them.
JetFile::Rows rowsOfKeys(Version version) {
    const QStringList texts = {"ab", "a",          "AB",         "b",       "ba",
                               "",   "abcdefghij", "abcdefghiJ", "\u00c4b", "\u00e4b"};
    std::mt19937 random(7);
    const auto below = [&](qsizetype limit) { return static_cast<qsizetype>(random() % std::size_t(limit)); };
    const auto cell = [&]() -> QVariant {
        if (below(12) == 0) return {};
        const QString &text = texts[below(texts.size())];
        if (version == Version::Access97 || text.isEmpty() || below(3) == 0) return text;
        return "\xff\xfe" + text.toLatin1(); // compressed
    };
    // The same bytes cut elsewhere, and nothing beside Null.
    JetFile::Rows rows = {{-1, "ab", "a", 1, "b"},
                          {-2, "a", "ba", 1, "b"},
                          {-3, "ab", "", 1, "b"},
                          {-4, "ab", QVariant(), 1, "b"},
                          {-5, "ab", "", 1, "b"}};
    for (int id = 0; id < 60; ++id) {
        const bool again = id > 0 && below(2) == 0;
        rows.append({id, again ? rows.last()[1] : cell(), again ? rows.last()[2] : cell(), int(below(3)),
                     again && below(3) > 0 ? rows.last()[4] : cell()});
    }
    return rows;
}

} // namespace

TEST(AccessSearch, EveryWayFindsTheSameRows) {
    const QTemporaryDir folder;
    for (const Version version : {Version::Access97, Version::Access2000, Version::Access2007}) {
        const QString path = writeFile(folder, QString::number(int(version)),
                                       JetFile(version).make("T", Columns, rowsOfKeys(version)));
        FileSource whole(path, helperPath());
        const Rows rows = allRows(whole, "T");
        ASSERT_EQ(rows.size(), 65);
        for (const QVector<int> &columns :
             {QVector<int>{1}, {1, 2}, {2, 4}, {1, 4}, {4, 2, 1}, {1, 3}, {3}}) {
            // One that has not seen the rows before, and then knows where they are.
            FileSource source(path, helperPath());
            for (const QVector<QVariant> &row : rows) {
                QVector<QVariant> key;
                QVector<ColumnCondition> conditions;
                for (const int column : columns) {
                    key << (row[column].isValid() ? row[column] : QVariant("none"));
                    conditions << ColumnCondition{Columns[column].name, key.last()};
                }
                EXPECT_EQ(rowTexts(matchingRows(source, "T", conditions)), expectedRows(rows, columns, key))
                    << "version " << int(version) << ", row " << row[0].toInt();
            }
        }
    }
}
