// What real files have in them and the samples do not: deleted and moved rows, long memos, a cipher, Jet 3.
#include <gtest/gtest.h>

#include "tests/dao/jet3_file.h"
#include "tests/dao/mdb_pages.h"
#include "tests/dao/source_support.h"

namespace {

const QString Main = samplePath("Velmar_PED.mdb");

/// 6,000 characters, not all of one byte.
QString longText() {
    QString text;
    for (int i = 0; i < 1000; ++i)
        text += QString::fromUtf8("Äb≤") + QString::number(100 + i);
    return text;
}

/// The bytes of the text as an uncompressed value.
QByteArray stored(const QString &text) {
    return QByteArray(reinterpret_cast<const char *>(text.utf16()), text.size() * 2);
}

/// Where the first note of TableNotes begins. It lies in its row; first rows lie last in their page.
qsizetype memoHead(const QByteArray &file) {
    return file.lastIndexOf("\xff\xfeSample value for trying") - 12;
}

} // namespace

TEST(AccessLayout, DeletedRowsAreGoneAndMovedOnesAreReadWhereTheyAre) {
    AccessSource original(Main, helperPath());
    Rows expected = allRows(original, "Units");
    ASSERT_EQ(expected.size(), 7);

    QByteArray file = fileBytes(Main);
    const qsizetype page = mdbPages::pageWith(file, "[NoUnit]");
    mdbPages::flagSlot(file, page, 0, 0xc000);
    mdbPages::put(file, mdbPages::rowStart(file, page, 2),
                  static_cast<quint32>(page / mdbPages::Size << 8 | 5));
    mdbPages::flagSlot(file, page, 2, 0x4000);
    mdbPages::flagSlot(file, page, 5, 0x8000);
    expected[2] = expected[5];
    expected.remove(5);
    expected.remove(0);
    mdbPages::setRowCount(file, mdbPages::definitionOf(file, page), expected.size());

    const QTemporaryDir folder;
    AccessSource source(writeFile(folder, "moved.mdb", file), helperPath());
    EXPECT_EQ(rowTexts(allRows(source, "Units")), rowTexts(expected));
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(rowTexts(matchingRows(source, "Units", {{"unitID", 6}})), rowTexts({expected[1]}));

    mdbPages::put(file, mdbPages::rowStart(file, page, 2),
                  static_cast<quint32>(page / mdbPages::Size << 8 | 2));
    AccessSource circle(writeFile(folder, "circle.mdb", file), helperPath());
    EXPECT_EQ(errorOf([&] { allRows(circle, "Units"); }), 3343);
}

TEST(AccessLayout, RowsThatAreLostOrWouldBeMisreadAreAnError) {
    const QByteArray good = fileBytes(Main);
    const qsizetype rows = mdbPages::pageWith(good, "[NoUnit]");
    const qsizetype units = mdbPages::definitionOf(good, rows);
    const auto column = [&](int number) { return mdbPages::columnEntry(good, units, number); };
    ASSERT_EQ(good[column(0)], '\3'); // unitID, a number of two bytes
    ASSERT_EQ(good[column(1)], '\n'); // a text
    const struct {
        const char *damage;
        qsizetype at;
        QByteArray bytes;
    } cases[] = {
        {"fewer rows than were counted", rows + 14, QByteArray("\0\xc0", 2)},
        {"an unknown type", column(1), "\x77"},
        {"a number of another size", column(0), "\4"},
        {"two columns in one bit", column(1) + 5, QByteArray("\0\0", 2)},
        {"a column beyond all", column(0) + 5, QByteArray("\x7f\0", 2)},
        {"a text beyond all", column(1) + 7, QByteArray("\x7f\0", 2)},
    };
    const QTemporaryDir folder;
    for (const auto &[damage, at, bytes] : cases) {
        QByteArray bad = good;
        bad.replace(at, bytes.size(), bytes);
        const QString path = writeFile(folder, "bad.mdb", bad);
        EXPECT_EQ(errorOf([&] { allRows(*std::make_unique<AccessSource>(path, helperPath()), "Units"); }),
                  3343)
            << damage;
    }
}

TEST(AccessLayout, MemosOfAnyLengthAreWhole) {
    const QTemporaryDir folder;
    QByteArray file = fileBytes(Main);
    const qsizetype head = memoHead(file);
    ASSERT_GT(head, 0);
    const auto memoWith = [&](const QByteArray &bytes) {
        AccessSource source(writeFile(folder, "memo.mdb", bytes), helperPath());
        return allRows(source, "TableNotes")[0][2].toString();
    };
    const auto point = [&](QByteArray &bytes, qsizetype size, quint32 flags, quint32 place) {
        mdbPages::put(bytes, head, static_cast<quint32>(size) | flags);
        mdbPages::put(bytes, head + 4, place);
    };

    QByteArray single = file;
    const QString page = longText().left(2000);
    const quint32 place = mdbPages::addLongValuePage(single, stored(page));
    point(single, page.size() * 2, 0x40000000, place);
    EXPECT_EQ(memoWith(single), page);

    QByteArray chained = file;
    const QByteArray value = stored(longText());
    constexpr qsizetype Piece = 4000;
    QByteArray next(4, '\0');
    for (qsizetype at = (value.size() - 1) / Piece * Piece; at >= 0; at -= Piece)
        mdbPages::put(next, 0, mdbPages::addLongValuePage(chained, next + value.mid(at, Piece)));
    point(chained, value.size(), 0, qFromLittleEndian<quint32>(next.constData()));
    EXPECT_EQ(memoWith(chained), longText());

    QByteArray endless = file; // a chain that bites its tail, under a length beyond the file's
    const auto own = static_cast<quint32>(endless.size() / mdbPages::Size) << 8;
    QByteArray piece(Piece, 'x');
    mdbPages::put(piece, 0, own);
    mdbPages::addLongValuePage(endless, piece);
    point(endless, 100 << 20, 0, own);
    EXPECT_EQ(errorOf([&] { memoWith(endless); }), 3343);
}

TEST(AccessLayout, EmptyTextIsNotNull) {
    QByteArray file = fileBytes(Main);
    mdbPages::put(file, memoHead(file), quint32(0x80000000));
    const QTemporaryDir folder;
    AccessSource source(writeFile(folder, "empty.mdb", file), helperPath());
    EXPECT_EQ(cellText(allRows(source, "TableNotes")[0][2]), "QString:");
}

TEST(AccessLayout, CipheredFileIsRead) {
    constexpr quint32 Key = 0x1234abcd;
    QByteArray file = fileBytes(Main);
    for (qsizetype page = 1; page < file.size() / mdbPages::Size; ++page)
        mdbPages::cipher(file, page * mdbPages::Size, mdbPages::Size, Key ^ static_cast<quint32>(page));
    // The header's own cipher covers the key as well; the sample's key is zero.
    for (int i = 0; i < 4; ++i)
        file[0x3e + i] = static_cast<char>(file[0x3e + i] ^ static_cast<char>(Key >> 8 * i));

    const QTemporaryDir folder;
    AccessSource source(writeFile(folder, "ciphered.mdb", file), helperPath());
    AccessSource original(Main, helperPath());
    for (const QString &table : original.tableNames())
        EXPECT_EQ(rowTexts(allRows(source, table)), rowTexts(allRows(original, table)))
            << table.toStdString();
    EXPECT_EQ(rowTexts(matchingRows(source, "Rp02", {{"matID", 2}})),
              rowTexts(matchingRows(original, "Rp02", {{"matID", 2}})));
}

TEST(AccessLayout, FilesOfLaterVersionsAreRead) {
    const QTemporaryDir folder;
    QByteArray file = fileBytes(Main);
    file.replace(4, 15, "Standard ACE DB");
    for (const char version : {'\2', '\3', '\5'}) {
        file[0x14] = version;
        AccessSource source(writeFile(folder, "later.accdb", file), helperPath());
        EXPECT_EQ(source.tableNames().size(), 27);
        EXPECT_EQ(allRows(source, "Rp02").size(), 706);
    }
}

TEST(AccessLayout, Jet3IsReadWithItsCodePageAndLongRows) {
    using Type = Jet3File::Type;
    const QString wide = QString(200, 'w') + QString::fromUtf8("é€");
    const QVector<QPair<QByteArray, Type>> columns = {
        {"flag", Type::Boolean}, {"byte", Type::Byte},     {"small", Type::Integer}, {"large", Type::Long},
        {"money", Type::Money},  {"single", Type::Single}, {"double", Type::Double}, {"day", Type::Date},
        {"a", Type::Text},       {"b", Type::Text},        {"c", Type::Text},        {"memo", Type::Memo}};
    const auto moment = QDateTime(QDate(1997, 3, 30), QTime(14, 25, 59));
    const Rows rows = {
        {true, 200, -5, 70000, 12.3456, 1.5f, 1e100, moment, wide, "", wide, "note"},
        {false, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}},
        {true, 0, 32767, -1, -0.5, -2.5f, 0.1, QDateTime(QDate(1899, 12, 29), QTime(6, 0)), "x", wide, "z",
         wide},
        {false, 1, 2, 3, 4.0, 5.0f, 6.0, moment, QString(230, 'p'), QString(230, 'q'), QString(230, 'r'), ""},
    };
    const QTemporaryDir folder;
    AccessSource source(writeFile(folder, "jet3.mdb", Jet3File::make("Old", columns, rows)), helperPath());
    ASSERT_EQ(source.tableNames(), QStringList("Old"));
    const FieldType types[] = {FieldType::Boolean,  FieldType::Byte,   FieldType::Integer, FieldType::Long,
                               FieldType::Currency, FieldType::Single, FieldType::Double,  FieldType::Date,
                               FieldType::Text,     FieldType::Text,   FieldType::Text,    FieldType::Memo};
    const FieldDefinitions fields = source.fields("Old");
    ASSERT_EQ(fields.size(), columns.size());
    for (qsizetype i = 0; i < fields.size(); ++i)
        EXPECT_EQ(fields[i],
                  (FieldDefinition{columns[i].first, types[i], types[i] == FieldType::Text ? 255 : 0}));
    EXPECT_EQ(rowTexts(allRows(source, "Old")), rowTexts(rows));
    EXPECT_EQ(rowTexts(matchingRows(source, "Old", {{"small", 32767}})), rowTexts({rows[2]}));
    EXPECT_EQ(rowTexts(matchingRows(source, "Old", {{"a", wide.toUpper()}})), rowTexts({rows[0]}));
}
