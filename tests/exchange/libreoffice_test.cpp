// A workbook in the hands of LibreOffice shows what the windows show. Skipped where there is no soffice;
// Debian has it in libreoffice-calc-nogui.
#include <gtest/gtest.h>

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "data/GradeTables.h"
#include "data/Material.h"
#include "data/table_vocabulary.h"
#include "exchange/cell_number.h"
#include "exchange/taken_table.h"
#include "tests/exchange/sample_database.h"

namespace {

constexpr qint16 Grade = 2;

/// With a point, as an English LibreOffice shows a number.
QString shown(const QString &text, bool isText) {
    const std::optional<CellNumber> number = isText ? std::nullopt : cellNumber(text);
    return number ? number->text : QString(text).remove('\r');
}

QVector<QStringList> readSheet(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    QVector<QStringList> lines;
    for (const QVector<QVariant> &cells : CsvTable::split(QString::fromUtf8(file.readAll()))) {
        QStringList line;
        for (const QVariant &cell : cells)
            line << cell.toString();
        lines << line;
    }
    return lines;
}

} // namespace

TEST(LibreOffice, ShowsWhatWasWritten) {
    if (QStandardPaths::findExecutable("soffice").isEmpty())
        GTEST_SKIP() << "there is no soffice here; Debian has it in libreoffice-calc-nogui";
    const auto database = openDatabase();
    const auto material = ::Grades::material(*database, Grade);
    TakenBook book;
    for (int i = 0; i < TableVocabulary::TableCount; ++i) {
        const TakenTable table =
            TakenTables::of(GradeTables::load(*database, *material, TableVocabulary::GetShortTableName(i)));
        if (!table.rows.isEmpty()) book.tables << table;
    }
    const QTemporaryDir folder;
    TakenTables::save(book, folder.filePath("book.xlsx"), TakenTables::Format::Xlsx);
    // Commas, quotation marks, UTF-8, English; as shown; all worksheets.
    QProcess office;
    office.start("soffice",
                 {"--headless", "-env:UserInstallation=file://" + folder.filePath("profile"), "--convert-to",
                  "csv:Text - txt - csv (StarCalc):44,34,76,1,,1033,false,true,"
                  "true,false,false,-1",
                  "--outdir", folder.path(), folder.filePath("book.xlsx")});
    ASSERT_TRUE(office.waitForFinished(120000));

    int cells = 0;
    for (const TakenTable &table : book.tables) {
        QString name = table.title.left(31).trimmed();
        name.replace('[', '(').replace(']', ')');
        const QVector<QStringList> lines = readSheet(folder.filePath("book-" + name + ".csv"));
        const bool hasUnits = lines.size() > table.rows.size() + 1;
        ASSERT_EQ(lines.size(), table.rows.size() + (hasUnits ? 2 : 1)) << name.toStdString();
        for (qsizetype column = 0; column < table.columns.size(); ++column) {
            EXPECT_EQ(lines[0].value(column), table.columns[column].heading);
            EXPECT_EQ(hasUnits ? lines[1].value(column) : QString(), table.columns[column].unit);
            for (qsizetype row = 0; row < table.rows.size(); ++row, ++cells)
                EXPECT_EQ(lines[row + (hasUnits ? 2 : 1)].value(column),
                          shown(table.rows[row][column], table.columns[column].isText))
                    << name.toStdString() << " " << row << " " << column;
        }
    }
    EXPECT_GT(cells, 250);
    RecordProperty("cells", cells);
}
