// What the program without windows writes for other programs: cards and workbooks.
#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include "exchange/calculix_card.h"
#include "exchange/mapdl_card.h"
#include "exchange/material_card.h"
#include "tests/exchange/sample_database.h"
#include "tests/exchange/xlsx_reader.h"
#include "tests/support/csv_table.h"

namespace {

struct Answer {
    int status = 0;
    QString output;
    QString error;
};

Answer answer(const QStringList &words) {
    QProcess process;
    process.start(BINARY_FOLDER "/velmar-values", QStringList{"--database", SampleFile} + words);
    process.waitForFinished();
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

} // namespace

TEST(ValuesProgramFiles, AreCards) {
    const auto database = openDatabase();
    const CardSource source = CardSource::read(*database, 2);
    const QString grade = QStringLiteral("P265GH@EN 10028-2");
    EXPECT_EQ(answer({"card", grade, "--for", "calculix", "--units", "mm", "--poisson", "0,3", "--density",
                      "7850", "--yield", "rp02", "--thickness", "40"})
                  .output,
              calculixCard(MaterialCard::of(source, {UnitSystem::Mm, "0,3", "7850", "Rp02", 2})));
    EXPECT_EQ(answer({"card", grade, "--for=MAPDL", "--units=si"}).output,
              mapdlCard(MaterialCard::of(source, {})));
}

TEST(ValuesProgramFiles, AreWorkbooks) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("book.xlsx");
    const Answer shown = answer({"--xlsx", path, "show", "#2", "Rp02", "ThermExp", "Rp10"});
    EXPECT_EQ(shown.status, 0) << shown.error.toStdString();
    EXPECT_EQ(shown.output, "");
    const XlsxReader tables(path);
    ASSERT_EQ(tables.sheets.size(), 3) << "a table without data has no worksheet";
    EXPECT_EQ(tables.sheets[0].texts(9), QStringList({"400", "150", "145", "139", "122", "114", "(105)"}));
    EXPECT_EQ(tables.sheets[1].rows[3][1].format, "0.0");
    EXPECT_EQ(tables.sheets[2].texts(0), QStringList({"Grade", "P265GH 1.0425"}));

    ASSERT_EQ(answer({"--xlsx", path, "values", "#2", "--at", "320.5"}).status, 0);
    const XlsxReader values(path);
    EXPECT_EQ(values.sheets[0].texts(2), QStringList({"2", "P265GH", "1.0425", "EN 10028-2", "320.5", "Rp02",
                                                      "(16) - 40mm", "[MPa]", "161.08", "161.08"}));
    EXPECT_FALSE(values.sheets[0].rows[2][2].isNumber);
    EXPECT_TRUE(values.sheets[0].rows[2][8].isNumber);

    ASSERT_EQ(answer({"--xlsx", path, "find", "--name", "P265"}).status, 0);
    EXPECT_TRUE(XlsxReader(path).sheets[0].texts(1).contains("1.0425"));
    const Answer unwritable = answer({"--xlsx", "/nowhere/book.xlsx", "find"});
    EXPECT_EQ(unwritable.status, 1);
    EXPECT_TRUE(unwritable.error.contains("error 76")) << unwritable.error.toStdString();
}

TEST(ValuesProgramFiles, HoldTheCompositionsOfGradesBesideEachOther) {
    const QStringList compare{"compare", "#2", "#3", "#11", "--composition"};
    const QStringList lines =
        answer(QStringList{"--format", "csv"} + compare).output.split("\n", Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 16) << "headings, 14 elements, and what is beside them";
    // The limits as the sample's texts have them.
    const CsvTable limits = CsvTable::read(SOURCE_FOLDER "/sample/csv/Chemical.csv");
    const auto limitsOf = [&](const QString &standard, const QString &name, const QString &element) {
        QStringList texts;
        for (const auto &row : limits.rows)
            if (row[fieldIndex(limits.fields, "standard")] == standard &&
                row[fieldIndex(limits.fields, "name")] == name &&
                row[fieldIndex(limits.fields, "element")] == element)
                texts << row[fieldIndex(limits.fields, "val")].toString();
        return texts.isEmpty() ? QStringList{"", ""} : texts;
    };
    int marked = 0;
    for (const QString &line : lines.mid(1, 14)) {
        const QVector<QVariant> cells = CsvTable::split(line + '\n').first();
        const QString element = cells[0].toString();
        const QStringList first = limitsOf("EN 10028-2", "P265GH", element);
        const QStringList second = limitsOf("EN 10028-2", "P295GH", element);
        const QStringList third = limitsOf("EN 10028-7", "X5CrNi18-10", element);
        QStringList shown;
        for (const QVariant &cell : cells.mid(1, 6))
            shown << cell.toString();
        EXPECT_EQ(shown, first + second + third) << element.toStdString();
        const bool differs = first != second || first != third;
        EXPECT_EQ(cells[7].toString(), differs ? "*" : "") << element.toStdString();
        marked += differs;
    }
    EXPECT_GT(marked, 5);
    EXPECT_TRUE(lines.last().startsWith("Other elements,,\"Cr + Cu + Mo + Ni max 0,70 %\","))
        << lines.last().toStdString();

    const QJsonObject json =
        QJsonDocument::fromJson(answer(QStringList{"--format=json"} + compare).output.toUtf8()).object();
    EXPECT_EQ(json["columns"].toArray()[4].toObject()["limit"], "max");
    const QJsonArray carbon = json["rows"].toArray()[0].toArray();
    EXPECT_EQ(carbon[2].toObject()["value"], 0.2);
    EXPECT_EQ(carbon[2].toObject()["differs"], false);
    EXPECT_EQ(carbon[6].toObject()["differs"], true);
    EXPECT_EQ(json["rows"].toArray().last().toArray()[2].toObject()["value"], QJsonValue::Null);

    const QTemporaryDir folder;
    const QString path = folder.filePath("book.xlsx");
    ASSERT_EQ(answer(QStringList{"--xlsx", path} + compare).status, 0);
    EXPECT_TRUE(XlsxReader(path).sheets[0].rows[1][2].isNumber);
    EXPECT_EQ(answer({"compare", "#38", "--composition"}).status, 1) << "it has none";
}

TEST(ValuesProgramFiles, TellWhatIsNotUnderstood) {
    const QStringList card{"card", "#2", "--for", "mapdl", "--units", "si"};
    const struct {
        QStringList words;
        int status;
        const char *error;
    } cases[] = {
        {{"card", "#2", "--units", "si"}, 2, "--for with calculix or mapdl"},
        {{"card", "#2", "--for", "mapdl"}, 2, "--units with si or mm"},
        {{"card", "#2", "--for", "nastran"}, 2, "no program 'nastran'; there are calculix, mapdl"},
        {card + QStringList{"--poisson", "0.5"}, 2, "from 0 to below 0.5"},
        {card + QStringList{"--density", "7.85"}, 2, "kg/m³"},
        {card + QStringList{"--yield", "Rm"}, 2, "no yield stress 'Rm'"},
        {card + QStringList{"--thickness", "40"}, 2, "goes with --yield"},
        {card + QStringList{"--yield", "Rp02"}, 1, "--thickness tells which of ( ) - 16mm, (16) - 40mm"},
        {card + QStringList{"--yield", "Rp02", "--thickness", "250.5"}, 1, "no thickness band"},
        {card + QStringList{"--format", "csv"}, 2, "a form of its own"},
        {{"compare", "#2"}, 2, "or --composition"},
        {{"compare", "#2", "--composition", "--at", "20"}, 2, "no --at"},
        {{"--format", "csv", "--xlsx", "a.xlsx", "find"}, 2, "either"},
    };
    for (const auto &each : cases) {
        const Answer given = answer(each.words);
        EXPECT_EQ(given.status, each.status) << each.words.join(' ').toStdString();
        EXPECT_TRUE(given.error.contains(each.error)) << given.error.toStdString();
        EXPECT_EQ(given.output, "");
    }
}
