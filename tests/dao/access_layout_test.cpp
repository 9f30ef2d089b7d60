// What real files have in them and the samples do not: deleted and moved rows, long memos, a cipher, Jet 3.
#include <gtest/gtest.h>

#include <cmath>

#include "tests/dao/jet_file.h"
#include "tests/dao/mdb_pages.h"
#include "tests/dao/source_support.h"
#include "tests/dao/sql_support.h"

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
    SampleSource original(Main);
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
    SampleSource source(writeFile(folder, "moved.mdb", file));
    EXPECT_EQ(rowTexts(allRows(source, "Units")), rowTexts(expected));
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(rowTexts(matchingRows(source, "Units", {{"unitID", 6}})), rowTexts({expected[1]}));

    mdbPages::put(file, mdbPages::rowStart(file, page, 2),
                  static_cast<quint32>(page / mdbPages::Size << 8 | 2));
    SampleSource circle(writeFile(folder, "circle.mdb", file));
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
        EXPECT_EQ(errorOf([&] { allRows(*std::make_unique<SampleSource>(path), "Units"); }), 3343) << damage;
    }
}

TEST(AccessLayout, MemosOfAnyLengthAreWhole) {
    const QTemporaryDir folder;
    QByteArray file = fileBytes(Main);
    const qsizetype head = memoHead(file);
    ASSERT_GT(head, 0);
    const auto memoWith = [&](const QByteArray &bytes) {
        SampleSource source(writeFile(folder, "memo.mdb", bytes));
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

TEST(AccessLayout, RowsOfAnEmptyKeyAreFound) {
    const QTemporaryDir folder;
    const QByteArray file = JetFile(JetFile::Version::Access2000)
                                .make("T", {{"id", JetFile::Type::Long}, {"name", JetFile::Type::Text}},
                                      {{1, ""}, {2, ""}, {3, QVariant()}, {4, "a"}, {5, ""}});
    SampleSource source(writeFile(folder, "empty.mdb", file));
    EXPECT_EQ(rowTexts(matchingRows(source, "T", {{"name", ""}})), rowTexts({{1, ""}, {2, ""}, {5, ""}}));
}

TEST(AccessLayout, EmptyTextIsNotNull) {
    QByteArray file = fileBytes(Main);
    mdbPages::put(file, memoHead(file), quint32(0x80000000));
    const QTemporaryDir folder;
    SampleSource source(writeFile(folder, "empty.mdb", file));
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
    SampleSource source(writeFile(folder, "ciphered.mdb", file));
    SampleSource original(Main);
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
        SampleSource source(writeFile(folder, "later.accdb", file));
        EXPECT_EQ(source.tableNames().size(), 27);
        EXPECT_EQ(allRows(source, "Rp02").size(), 706);
    }
}

TEST(AccessLayout, EveryTypeIsReadInEveryVersion) {
    using Type = JetFile::Type;
    using Version = JetFile::Version;
    const QString wide = QString(200, 'w') + QString::fromUtf8("é€");
    const JetFile::Columns columns = {
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
    const FieldType types[] = {FieldType::Boolean,  FieldType::Byte,   FieldType::Integer, FieldType::Long,
                               FieldType::Currency, FieldType::Single, FieldType::Double,  FieldType::Date,
                               FieldType::Text,     FieldType::Text,   FieldType::Text,    FieldType::Memo};
    const QTemporaryDir folder;
    for (const Version version : {Version::Access97, Version::Access2000, Version::Access2007}) {
        SCOPED_TRACE(int(version));
        SampleSource source(writeFile(folder, "types.mdb", JetFile(version).make("Types", columns, rows)));
        ASSERT_EQ(source.tableNames(), QStringList("Types"));
        const FieldDefinitions fields = source.fields("Types");
        ASSERT_EQ(fields.size(), columns.size());
        for (qsizetype i = 0; i < fields.size(); ++i)
            EXPECT_EQ(fields[i],
                      (FieldDefinition{columns[i].name, types[i], types[i] == FieldType::Text ? 255 : 0}));
        EXPECT_EQ(rowTexts(allRows(source, "Types")), rowTexts(rows));
        EXPECT_EQ(rowTexts(matchingRows(source, "Types", {{"small", 32767}})), rowTexts({rows[2]}));
        EXPECT_EQ(rowTexts(matchingRows(source, "Types", {{"a", wide.toUpper()}})), rowTexts({rows[0]}));
    }
}

TEST(AccessLayout, DecimalIsTheDoubleNearestToIt) {
    using Type = JetFile::Type;
    const struct {
        quint8 precision;
        quint8 scale;
        QString stored;
        double value;
    } cases[] = {
        {18, 0, "1", 1},
        {5, 1, "214.0", 214},
        {5, 1, "-0.5", -0.5},
        {18, 0, "-123456789012345678", -123456789012345678.0},
        {4, 4, "0.0214", 0.0214},
        {4, 4, "-0.9999", -0.9999},
        {28, 28, "0.1", 0.1},
        {28, 28, "0.1234567890123456789012345678", 0.1234567890123456789012345678},
        {28, 0, "9999999999999999999999999999", 9999999999999999999999999999.0},
        {28, 14, "-98765432109876.54321098765432", -98765432109876.54321098765432},
        {28, 3, "9007199254740993.001", 9007199254740994.0}, // the half of a step, and a little more
        {10, 2, "-0.00", 0},
    };
    JetFile::Columns columns;
    QVector<QVariant> stored;
    QVector<QVariant> expected;
    while (columns.size() < 200) { // more than a page can define
        const auto &[precision, scale, text, value] = cases[std::size_t(columns.size()) % std::size(cases)];
        columns.append({"d" + QByteArray::number(columns.size()), Type::Decimal, precision, scale});
        stored.append(text);
        expected.append(value);
    }
    columns.append({"absent", Type::Decimal, 18, 0});
    stored.append(QVariant());
    const QTemporaryDir folder;
    for (const JetFile::Version version : {JetFile::Version::Access2000, JetFile::Version::Access2007}) {
        const QByteArray file = JetFile(version).make("Decimals", columns, {stored});
        SampleSource source(writeFile(folder, "decimals.mdb", file));
        const Rows read = allRows(source, "Decimals");
        ASSERT_EQ(read.size(), 1);
        EXPECT_FALSE(read[0].last().isValid());
        for (qsizetype i = 0; i < expected.size(); ++i) {
            EXPECT_EQ(source.fields("Decimals")[i].type, FieldType::Double);
            EXPECT_EQ(read[0][i].toDouble(), expected[i].toDouble()) << stored[i].toString().toStdString();
            EXPECT_FALSE(std::signbit(read[0][i].toDouble()) && read[0][i].toDouble() == 0);
        }
    }
    const QByteArray absurd =
        JetFile(JetFile::Version::Access2000).make("Decimals", {{"d", Type::Decimal, 5, 6}}, {{"0.1"}});
    EXPECT_EQ(errorOf([&] { SampleSource(writeFile(folder, "absurd.mdb", absurd)); }), 3343);
}

TEST(AccessLayout, NameOfAQueryOrALinkIsToldWhereATableOfItIsMissing) {
    const QVector<JetFile::Object> others = {{"GetInfo", 5}, {"Linked", 6}, {"Remote", 4}, {"Form", 2}};
    const QTemporaryDir folder;
    for (const JetFile::Version version : {JetFile::Version::Access97, JetFile::Version::Access2000}) {
        const QByteArray bytes = JetFile(version).make("T", {{"id", JetFile::Type::Long}}, {{1}}, others);
        Database database =
            databaseOver(std::make_unique<SampleSource>(writeFile(folder, "query.mdb", bytes)));
        const auto endOf = [&](const QString &sql) {
            const std::string text = errorText([&] { database.OpenRecordset(sql); });
            EXPECT_EQ(text.rfind("3078: The database engine cannot find the input table or query '", 0), 0u);
            return text.substr(text.rfind("  ") + 2);
        };
        const std::string query =
            "In this file it is a stored query, which cannot be read here: make it a table.";
        EXPECT_EQ(endOf("select * from getinfo where id = 1"), query);
        EXPECT_EQ(endOf("GetInfo"), query);
        for (const char *link : {"Linked", "Remote"})
            EXPECT_EQ(
                endOf(link),
                "In this file it is a link to another file, which cannot be read here: make it a table.");
        EXPECT_EQ(endOf("Form"), "Make sure it exists and that its name is spelled correctly.");
        EXPECT_EQ(shownRows(database, "T"), std::vector<std::string>{"1"});
    }
}

TEST(AccessLayout, ColumnOfATypeThatIsNotReadHarmsOnlyThoseWhoAskForIt) {
    using Type = JetFile::Type;
    JetFile::Columns columns = {{"id", Type::Long}, {"name", Type::Text}};
    QVector<QVariant> row = {1, "a"};
    for (const Type type :
         {Type::Binary, Type::Ole, Type::Guid, Type::Complex, Type::LargeNumber, Type::Unknown}) {
        columns.append({"other" + QByteArray::number(int(type)), type});
        row.append(QByteArray(16, 'x'));
    }
    columns.append({"sum", Type::Double, 0, 0, true});
    columns.append({"both", Type::Text, 0, 0, true});
    row.append({QByteArray(31, 'y'), QByteArray(31, 'z')});
    const JetFile::Columns old = {{"id", Type::Long}, {"name", Type::Text}, {"decimal", Type::Decimal}};
    const struct {
        JetFile::Version version;
        JetFile::Columns columns;
        QVector<QVariant> row;
    } files[] = {
        {JetFile::Version::Access97, old, {1, "a", "1"}},
        {JetFile::Version::Access2000, columns, row},
        {JetFile::Version::Access2007, columns, row},
    };
    const QTemporaryDir folder;
    for (const auto &file : files) {
        const QByteArray bytes = JetFile(file.version).make("Mixed", file.columns, {file.row});
        Database database =
            databaseOver(std::make_unique<SampleSource>(writeFile(folder, "mixed.mdb", bytes)));
        const auto all = database.OpenRecordset("select * from Mixed where id = 1");
        EXPECT_EQ(shownRows(*all, {"id", "name"}), std::vector<std::string>{"1|a"});
        for (qsizetype i = 2; i < file.columns.size(); ++i) {
            const QString name = file.columns[i].name;
            const std::string expected = QString("3259: Invalid field data type: the values of the column "
                                                 "'%1' of the table 'Mixed' cannot be read.")
                                             .arg(name)
                                             .toStdString();
            EXPECT_EQ(errorText([&] { all->Fields(name); }), expected);
            for (const QString sql :
                 {"select id from Mixed where %1 is null", "select id from Mixed where %1 like '*'",
                  "select id from Mixed order by %1", "select distinct %1 from Mixed",
                  "select max(%1) from Mixed"})
                EXPECT_EQ(errorText([&] { database.OpenRecordset(sql.arg(name)); }), expected);
            EXPECT_EQ(errorText([&] { all->FindFirst(name + " = 1"); }), expected);
        }
    }
}

TEST(AccessLayout, TextsOfAnUnknownCodePageAreAnErrorAndNoGuess) {
    const QTemporaryDir folder;
    const auto errorWith = [&](int codePage, const QString &text) {
        const QByteArray bytes = JetFile(JetFile::Version::Access97, {codePage, {}, 0, 0})
                                     .make("T", {{"name", JetFile::Type::Text}}, {{text}});
        SampleSource source(writeFile(folder, "texts.mdb", bytes));
        return errorOf([&] { EXPECT_EQ(allRows(source, "T")[0][0], text); });
    };
    EXPECT_EQ(errorWith(1252, QString::fromUtf8("Stähle")), 0);
    EXPECT_EQ(errorWith(10000, "Steel"), 0);
    EXPECT_EQ(errorWith(10000, QString::fromUtf8("Stähle")), 3343);
}

TEST(AccessLayout, DefinitionThatLeadsAstrayIsAnError) {
    struct Damage {
        const char *name;
        qsizetype at;
        QByteArray bytes;
    };
    const auto word = [](quint32 value) {
        QByteArray bytes(4, '\0');
        mdbPages::put(bytes, 0, value);
        return bytes;
    };
    constexpr quint32 RowsPage = 20; // behind all pages of the definition
    JetFile::Columns columns;
    for (int i = 0; i < 200; ++i)
        columns.append({"a name of some length " + QByteArray::number(i), JetFile::Type::Boolean});
    const Rows rows = {QVector<QVariant>(200, true)};
    const QTemporaryDir folder;
    const auto errorOfFile = [&](const QByteArray &bytes) {
        const QString path = writeFile(folder, "astray.mdb", bytes);
        return errorOf([&] {
            SampleSource source(path);
            EXPECT_EQ(allRows(source, "T").size(), 1);
        });
    };
    for (const JetFile::Version version : {JetFile::Version::Access97, JetFile::Version::Access2000}) {
        const bool old = version == JetFile::Version::Access97;
        const qsizetype page = old ? 2048 : 4096;
        const qsizetype table = 4 * page;
        const qsizetype further = 6 * page;
        const qsizetype indexes = table + (old ? 31 : 51);
        const qsizetype count = table + (old ? 25 : 45);
        const qsizetype map = table + (old ? 35 : 55);
        const QByteArray good = JetFile(version, {1252, {}, 0, int(RowsPage)}).make("T", columns, rows);
        ASSERT_EQ(errorOfFile(good), 0);
        const qsizetype name = good.indexOf(old ? QByteArray("a name") : QByteArray("a\0 \0n", 5));
        const qsizetype mapRow = page + (mdbPages::u16(good, page + (old ? 10 : 14) + 2) & 0x1fff);
        ASSERT_EQ(good.mid(mapRow, 5), QByteArray(1, '\1') + word(5));
        const Damage damages[] = {
            {"ends too early", table + 4, word(0)},
            {"goes on beyond the file", table + 4, word(1000)},
            {"goes on in rows", table + 4, word(RowsPage)},
            {"is a circle", further + 4, word(6)},
            {"goes on in a page of another kind", further, "\4"},
            {"so many indexes that it goes around for long", indexes, word(80000)},
            {"more indexes than there are bytes", indexes, word(0xffffffff)},
            {"no columns", count, QByteArray(2, '\0')},
            {"more columns than there can be", count, QByteArray(2, '\xff')},
            {"a column without a name", name - (old ? 1 : 2), QByteArray(old ? 1 : 2, '\0')},
            {"a name that never ends", name - (old ? 1 : 2), QByteArray(old ? 1 : 2, '\xff')},
            {"a name with an end in it", name, QByteArray(2, '\0')},
            {"a map beyond the file", map, word(1000 << 8)},
            {"a map among no rows", map, word(4 << 8)},
            {"a map that is no row", map, word(1 << 8 | 200)},
            {"a map of an unknown kind", mapRow, "\7"},
            {"a map of pages that are none", mapRow + 1, word(RowsPage)},
            {"a map of pages beyond the file", mapRow + 1, word(1000)},
            {"a map page of another kind", 5 * page, "\7"},
            {"pages beyond the file", 5 * page + 100, "\1"},
        };
        for (const Damage &damage : damages) {
            QByteArray bad = good;
            bad.replace(damage.at, damage.bytes.size(), damage.bytes);
            if (QByteArray(damage.name).startsWith("so many")) mdbPages::put(bad, further + 4, quint32(6));
            EXPECT_EQ(errorOfFile(bad), 3343) << damage.name << " in " << int(version);
        }
    }
}
