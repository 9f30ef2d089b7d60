// Tables taken along, read back as other programs would read them.
#include <algorithm>

#include <gtest/gtest.h>

#include "data/GradeTables.h"
#include "data/Material.h"
#include "data/table_vocabulary.h"
#include "exchange/cell_number.h"
#include "exchange/taken_table.h"
#include "platform/runtime/conversions.h"
#include "tests/exchange/sample_database.h"
#include "tests/exchange/xlsx_reader.h"
#include "tests/support/error_of.h"
#include "tests/support/pinned_settings.h"
#include "tests/support/small_disk.h"

namespace {

const QDateTime Made(QDate(2026, 1, 31), QTime(12, 0), Qt::UTC);

TakenBook bookOf(const QList<QStringList> &rows) {
    TakenBook book;
    book.made = Made;
    TakenTable table{
        "Rp0,2 [MPa]: a/b?", {{"Temperature", "°C"}, {"Number", "", true}, {"Rp0,2", "MPa"}}, rows};
    table.notes = "1) first\r\n2) second";
    book.tables = {table, table};
    book.facts = {{"Grade", {"P265GH 1.0425", "16Mo3 1.5415"}}, {"Thickness [mm]", {"40"}}};
    return book;
}

XlsxReader readBack(const TakenBook &book) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("book.xlsx");
    TakenTables::save(book, path, TakenTables::formatOf(path));
    return XlsxReader(path);
}

/// What a cell has to be in a worksheet, told from its text alone: its number by QString, its decimals
/// counted.
void expectCell(const ReadCell &cell, const QString &text, const std::string &where) {
    bool isNumber = false;
    const double number = QString(text).replace(',', '.').toDouble(&isNumber);
    isNumber = isNumber && text.back().isDigit() && text.front() != '.';
    ASSERT_EQ(cell.isNumber, isNumber) << where << " " << text.toStdString();
    if (!isNumber) {
        EXPECT_EQ(cell.text, QString(text).remove('\r')) << where;
        return;
    }
    EXPECT_EQ(cell.text.toDouble(), number) << where;
    const qsizetype sign = std::max(text.indexOf('.'), text.indexOf(','));
    const QString decimals = sign < 0 ? QString() : "." + QString(text.size() - sign - 1, '0');
    EXPECT_EQ(cell.format, "0" + decimals) << where;
}

} // namespace

TEST(TakenTables, KnowNumbersFromDecoratedTexts) {
    const std::pair<const char *, const char *> numbers[] = {
        {"150", "150"}, {"11,40", "11.40"}, {"11.40", "11.40"}, {" -0,5 ", "-0.5"}, {"0", "0"}};
    for (const auto &[text, number] : numbers) {
        ASSERT_TRUE(cellNumber(text)) << text;
        EXPECT_EQ(cellNumber(text)->text, number);
    }
    EXPECT_EQ(cellNumber("11,40")->decimals, 2);
    EXPECT_EQ(cellNumber("12.6")->times10(-6), 12.6e-6);
    EXPECT_EQ(bracketedNumber("( 150 )")->text, "150");
    for (const char *text : {"", "-", "+", "x", "≤ 16", "(150)", "150*", "1 000", "1,000.5", "007", "1E5",
                             ".5", "5.", "360 - 480", "1234567890123456", "٣"})
        EXPECT_FALSE(cellNumber(text)) << text;
}

TEST(TakenTables, AreCsvAndTsv) {
    TakenTable table = bookOf({{"20", "1.0425", "11,4"}, {"a \"b\"", "c\r\nd", "e\tf"}}).tables.first();
    EXPECT_EQ(TakenTables::csv(table).toStdString(), "Temperature [°C],Number,\"Rp0,2 [MPa]\"\r\n"
                                                     "20,1.0425,\"11,4\"\r\n"
                                                     "\"a \"\"b\"\"\",\"c\r\nd\",e\tf\r\n");
    EXPECT_EQ(TakenTables::tsv(table).toStdString(), "Temperature [°C]\tNumber\tRp0,2 [MPa]\n"
                                                     "20\t1.0425\t11,4\n"
                                                     "a \"b\"\tc d\te f\n");
    EXPECT_EQ(TakenTables::formatOf("/a.xlsx/b.CSV"), TakenTables::Format::Csv);
    EXPECT_EQ(TakenTables::formatOf("16Mo3_1.5415"), TakenTables::Format::Xlsx);
}

TEST(TakenTables, AreWorkbooksOfNumbersAndTexts) {
    const TakenBook book = bookOf({{"20", "1.0425", "(150)"}, {"-10,5", "1.0425", "≤ 16"}, {"x", "<&>", ""}});
    const XlsxReader read = readBack(book);
    ASSERT_EQ(read.sheets.size(), 3);
    EXPECT_EQ(read.sheets[0].name, "Rp0,2 (MPa)- a-b-");
    EXPECT_EQ(read.sheets[1].name, "Rp0,2 (MPa)- a-b- (2)");
    const ReadSheet &sheet = read.sheets[0];
    EXPECT_EQ(sheet.texts(0), QStringList({"Temperature", "Number", "Rp0,2"}));
    EXPECT_EQ(sheet.texts(1), QStringList({"°C", "", "MPa"}));
    for (const auto &[row, column, isNumber, format] :
         {std::tuple(2, 0, true, "0"), {2, 1, false, "@"}, {2, 2, false, "@"}, {3, 0, true, "0.0"}}) {
        EXPECT_EQ(sheet.rows[row][column].isNumber, isNumber) << row << " " << column;
        EXPECT_EQ(sheet.rows[row][column].format, format);
    }
    EXPECT_EQ(sheet.rows[3][0].text.toDouble(), -10.5);
    EXPECT_EQ(sheet.texts(4), QStringList({"x", "<&>"}));
    const ReadSheet &facts = read.sheets[2];
    EXPECT_EQ(facts.texts(0), QStringList({"Grade", "P265GH 1.0425", "16Mo3 1.5415"}));
    EXPECT_EQ(facts.texts(1), QStringList({"Thickness [mm]", "40"}));
    EXPECT_EQ(facts.texts(2).first(), "Date");
    EXPECT_EQ(facts.texts(3), QStringList({"Notes", book.tables[0].title, "1) first\n2) second"}));
    EXPECT_EQ(TakenTables::xlsx(book), TakenTables::xlsx(book))
        << "nothing but the date makes two files differ";
}

TEST(TakenTables, HoldEveryTableOfTheSample) {
    const PinnedSettings settings(u',', u'.');
    const auto database = openDatabase();
    GradeTables tables(*database);
    int cells = 0;
    for (qint16 matID = 1; matID <= LastGrade; ++matID) {
        const auto material = ::Grades::material(*database, matID);
        TakenBook book;
        QVector<LoadedTable> withRows;
        for (int i = 0; i < TableVocabulary::TableCount; ++i) {
            const LoadedTable table = tables.load(*material, TableVocabulary::GetShortTableName(i));
            book.tables << TakenTables::of(table);
            if (table.noData.isEmpty() && table.cells.UpperBound(1) > 0) withRows << table;
        }
        const XlsxReader read = readBack(book);
        ASSERT_EQ(read.sheets.size(), withRows.size() + 1) << matID;
        for (qsizetype i = 0; i < withRows.size(); ++i) {
            const LoadedTable &table = withRows[i];
            const QVector<QVector<ReadCell>> &rows = read.sheets[i].rows;
            // Beneath the headings stand the units, if there are any.
            const bool hasUnits =
                std::any_of(table.columns.begin(), table.columns.end(),
                            [](const auto &column) { return !column.hidden && !column.unit.isEmpty(); });
            const qsizetype headings = hasUnits ? 2 : 1;
            for (int row = 1; row <= table.cells.UpperBound(1); ++row) {
                qsizetype at = 0;
                for (int column = 0; column < table.columns.size(); ++column) {
                    if (table.columns[column].hidden) continue;
                    const QString text = CStr(table.cells.Get(row, column));
                    const ReadCell cell = rows.value(headings + row - 1).value(at++);
                    const std::string where = table.key.toStdString() + " of " + std::to_string(matID);
                    if (text.isEmpty() || table.key == "Ref")
                        EXPECT_EQ(cell.text, text) << where;
                    else
                        expectCell(cell, text, where);
                    ++cells;
                }
            }
        }
    }
    EXPECT_GT(cells, 5000);
}

TEST(TakenTables, HaveTheHeadingsOfTheWindowInOneLine) {
    const auto database = openDatabase();
    const auto material = ::Grades::material(*database, 2);
    const std::pair<const char *, const char *> headings[] = {
        {"Rp02", "Temperature [°C],( ) - 16mm [MPa],(16) - 40mm [MPa]"},
        {"ModElast", "Temperature [°C],Modulus of elasticity [KN / mm²]"},
        {"SpecThermCap", "Temperature [°C],\"Cp20, t [J/kgK]\",\"Cp diff, t [J/kgK]\""},
        {"MechProp", "Thickness [mm],ReH 1) min [MPa],Rm [MPa]"}};
    for (const auto &[key, line] : headings) {
        const QByteArray csv =
            TakenTables::csv(TakenTables::of(GradeTables::load(*database, *material, key)));
        EXPECT_TRUE(csv.startsWith(line)) << csv.toStdString();
    }
    const QVector<TakenFact> facts = TakenTables::databaseFacts(*database);
    EXPECT_TRUE(facts[0].texts.first().endsWith("/sample/Velmar_PED.mdb"));
}

TEST(TakenTables, AreWrittenWholeOrNotAtAll) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("book.xlsx");
    QList<QStringList> rows;
    for (int i = 0; i < 1000; ++i)
        rows << QStringList{QString::number(i * 7919 % 104729), QString::number(i), "150"};
    const TakenBook book = bookOf(rows);
    TakenTables::save(book, path, TakenTables::Format::Csv);
    const auto content = [&path] {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const QByteArray before = content();
    for (const auto format :
         {TakenTables::Format::Csv, TakenTables::Format::Tsv, TakenTables::Format::Xlsx}) {
        const SmallDisk disk(9000);
        EXPECT_NE(errorOf([&] { TakenTables::save(book, path, format); }), 0) << static_cast<int>(format);
        EXPECT_EQ(content(), before);
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList("book.xlsx"));
    }
    // The library notices no end of the disk, so wherever it comes, the file must be all of it or none.
    const QByteArray whole = TakenTables::xlsx(book);
    int refused = 0;
    for (rlim_t size = 500; size < 120000; size += size / 2) {
        const SmallDisk disk(size);
        QByteArray made = whole;
        refused += errorOf([&] { made = TakenTables::xlsx(book); }) != 0;
        EXPECT_EQ(made, whole) << size;
    }
    EXPECT_GT(refused, 5);
    EXPECT_EQ(errorOf([&] { TakenTables::save(book, "/nowhere/book.xlsx", TakenTables::Format::Xlsx); }), 76);
    EXPECT_EQ(errorOf([&] { TakenTables::save(book, folder.path(), TakenTables::Format::Xlsx); }), 75);
    TakenBook tooLong = bookOf({{"20", QString(40000, 'x'), "1"}});
    EXPECT_EQ(errorOf([&] { TakenTables::save(tooLong, path, TakenTables::Format::Xlsx); }), 6);
    EXPECT_EQ(content(), before);
}
