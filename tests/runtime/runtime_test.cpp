// Errors, cell arrays and text files.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform/runtime/runtime_error.h"
#include "platform/runtime/text_file.h"
#include "platform/runtime/twips.h"
#include "platform/runtime/x_array_db.h"
#include "tests/support/error_of.h"

namespace {

TEST(RuntimeErrorTest, TakesItsUsualDescriptionUnlessOneIsGiven) {
    EXPECT_EQ(RuntimeError(91).description(),
              QStringLiteral("Object variable or With block variable not set"));
    EXPECT_STREQ(RuntimeError(13).what(), "Type mismatch");
    EXPECT_EQ(RuntimeError(3075, QStringLiteral("near 'x'")).description(), QStringLiteral("near 'x'"));
    EXPECT_EQ(RuntimeError(1).description(), QStringLiteral("Application-defined or object-defined error"));
}

TEST(XArrayDBTest, KeepsCellsWithinBoundsOfAnyStart) {
    XArrayDB cells;
    EXPECT_EQ(cells.UpperBound(1), -1);
    EXPECT_EQ(errorOf([&] { cells.Get(0, 0); }), 9);

    cells.ReDim(1, 3, 0, 2);
    for (int row = 1; row <= 3; ++row)
        for (int column = 0; column <= 2; ++column)
            cells.Set(row, column, row * 10 + column);
    EXPECT_EQ(cells.Get(2, 1), QVariant(21));
    EXPECT_EQ(cells.Get(3, 2), QVariant(32));
    EXPECT_EQ(cells.Count(1), 3);
    EXPECT_EQ(cells.LowerBound(1), 1);
    EXPECT_EQ(cells.UpperBound(2), 2);
    for (const auto &[row, column] : {std::pair(0, 0), {4, 0}, {1, -1}, {1, 3}})
        EXPECT_EQ(errorOf([&, r = row, c = column] { cells.Set(r, c, 1); }), 9);
    EXPECT_EQ(errorOf([&] { cells.UpperBound(3); }), 9);

    cells.ReDim(-1, 0, 5, 5);
    EXPECT_FALSE(cells.Get(-1, 5).isValid());
    cells.ReDim(1, 0, 0, 2);
    EXPECT_EQ(cells.Count(1), 0);
    EXPECT_EQ(errorOf([&] { cells.Get(1, 0); }), 9);
}

TEST(TwipsTest, RoundToTheNearestPixelOnBothSidesOfZero) {
    EXPECT_EQ(toPixels(7), 0);
    EXPECT_EQ(toPixels(8), 1);
    EXPECT_EQ(toPixels(-8), -1);
    EXPECT_EQ(toPixels(toTwips(-37)), -37);
}

class TextFileTest : public ::testing::Test {
protected:
    QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }
    QString fileOf(const QByteArray &bytes) const {
        QFile file(path("text.txt"));
        if (!file.open(QIODevice::WriteOnly)) ADD_FAILURE() << "no temporary file";
        file.write(bytes);
        return file.fileName();
    }

    QTemporaryDir m_folder;
};

TEST_F(TextFileTest, ReadsEveryKindOfLineEndAndEncoding) {
    const struct {
        QByteArray bytes;
        QStringList lines;
    } cases[] = {
        {"", {}},
        {"\r\n", {""}},
        {"a\r\nb\nc\rd", {"a", "b", "c", "d"}},
        {"a\n\nb\n", {"a", "", "b"}},
        {"\xEF\xBB\xBF"
         "a\r\n",
         {"a"}},
        {"gr\xC3\xB6\xC3\x9F"
         "e",
         {QString::fromUtf16(u"größe")}},
        {"gr\xF6\xDF"
         "e \x80 \x96",
         {QString::fromUtf16(u"größe € –")}},
    };
    for (const auto &item : cases)
        EXPECT_EQ(TextFile::readLines(fileOf(item.bytes)), item.lines) << item.bytes.toStdString();
}

TEST_F(TextFileTest, WritesLinesThatReadBack) {
    const QStringList lines = {"one", "", QString::fromUtf16(u"zwölf €")};
    TextFile::writeLines(path("out.txt"), {"longer than what comes after it", "x", "y", "z"});
    TextFile::writeLines(path("out.txt"), lines);
    EXPECT_EQ(TextFile::readLines(path("out.txt")), lines);

    QFile file(path("out.txt"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), QByteArray("one\r\n\r\nzw\xC3\xB6lf \xE2\x82\xAC\r\n"));
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files).size(), 1);
}

TEST_F(TextFileTest, FailuresHaveTheirNumbers) {
    EXPECT_EQ(errorOf([&] { TextFile::readLines(path("missing.txt")); }), 53);
    EXPECT_EQ(errorOf([&] { TextFile::readLines(path("no/missing.txt")); }), 76);
    EXPECT_EQ(errorOf([&] { TextFile::readLines(m_folder.path()); }), 75);
    EXPECT_EQ(errorOf([&] { TextFile::writeLines(path("no/out.txt"), {}); }), 76);
    EXPECT_EQ(errorOf([&] { TextFile::writeLines(m_folder.path(), {}); }), 75);
}

TEST_F(TextFileTest, MissingRightsAreTold) {
    const QString locked = fileOf("x");
    ASSERT_TRUE(QFile::setPermissions(locked, {}));
    if (QFileInfo(locked).isReadable()) GTEST_SKIP() << "the super-user may read everything";
    EXPECT_EQ(errorOf([&] { TextFile::readLines(locked); }), 70);
    EXPECT_EQ(errorOf([&] { TextFile::writeLines(locked, {}); }), 70);
}

} // namespace
