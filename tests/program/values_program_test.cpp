// The program without windows, against the windows and against the texts of the sample.
#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRandomGenerator>
#include <QScopeGuard>

#include "data/grades.h"
#include "data/GradeTables.h"
#include "data/modDBase.h"
#include "exchange/database_texts.h"
#include "material/frmMaterial2.h"
#include "platform/dao/database.h"
#include "tests/support/gui.h"
#include "tests/support/program.h"
#include "velmar_values/command_line.h"

namespace {

constexpr int LastGrade = 38;
const QString Sample = QStringLiteral(SOURCE_FOLDER "/sample/Velmar_PED.mdb");

struct Answer {
    int status = 0;
    QByteArray output;
    QString error;
};

Answer answer(const QStringList &words, const QString &database = Sample) {
    QProcess process;
    process.start(BINARY_FOLDER "/velmar-values", QStringList{"--database", database} + words);
    process.waitForFinished();
    return {process.exitCode(), process.readAllStandardOutput(),
            QString::fromUtf8(process.readAllStandardError())};
}

QJsonArray list(const Answer &given) {
    EXPECT_EQ(given.status, 0) << given.error.toStdString();
    return QJsonDocument::fromJson(given.output).array();
}

/// The values as they stand in the window, a line each table.
QStringList shownValues(const frmMaterial2 &window) {
    QStringList lines;
    const XArrayDB &cells = *window.xDesignDB();
    for (int row = 2; row <= cells.UpperBound(1); row += 3) {
        QStringList values;
        for (int column = 1; column <= cells.UpperBound(2); ++column)
            if (!cells.Get(row, column).toString().isEmpty()) values << cells.Get(row, column).toString();
        lines << values.join('|');
    }
    return lines;
}

} // namespace

TEST(ValuesProgram, HasTheValuesOfTheWindows) {
    const TestProgram program;
    QRandomGenerator random(20261123);
    Database &database = *modDBase::dbMain();
    for (int matID = 1; matID <= LastGrade; ++matID) {
        frmMaterial2 &window = program.open(program.material(matID));
        window.ShowTable("Design");
        const auto material = ::Grades::material(database, static_cast<qint16>(matID));
        GradeTables tables(database);
        DesignValues values;
        const bool hasValues =
            values.build(*material, [&](const QString &key) { values.take(tables.load(*material, key)); });
        ASSERT_EQ(hasValues, window.txtDesignTemp->isEnabled()) << matID;
        for (int i = 0; hasValues && i < 14; ++i) {
            const QString at = QString::number(random.bounded(700) - 50) + (i % 3 == 0 ? ",5" : "");
            window.txtDesignTemp->setText(at);
            values.compute(at, NumberFlags::fromSystem());
            QStringList lines;
            for (const DesignTable &table : values.tables()) {
                QStringList cells;
                for (const DesignCell &cell : table.cells)
                    if (!cell.text.isEmpty()) cells << cell.text;
                lines << cells.join('|');
            }
            EXPECT_EQ(lines, shownValues(window)) << matID << " at " << at.toStdString();
        }
        window.Unload();
        deleteUnloaded();
    }
}

TEST(ValuesProgram, ExportsTheTextsThatTheSampleWasMadeFrom) {
    const TestProgram program;
    for (const QString &table : DatabaseTexts::tables()) {
        QFile text(SOURCE_FOLDER "/sample/csv/" + table + ".csv");
        ASSERT_TRUE(text.open(QIODevice::ReadOnly)) << table.toStdString();
        EXPECT_EQ(DatabaseTexts::written(*modDBase::dbMain(), table), text.readAll()) << table.toStdString();
    }
}

TEST(ValuesProgram, AnswersInJson) {
    const QJsonArray found = list(answer({"--format", "json", "find", "--name", "P265"}));
    ASSERT_FALSE(found.isEmpty());
    const QJsonObject grade = found.first().toObject();
    EXPECT_EQ(grade.keys(),
              QStringList({"description", "group", "id", "name", "number", "revision", "standard"}));

    const QJsonObject shown =
        list(answer({"--format=json", "show", "P265GH@EN 10028-2", "rp02"})).first().toObject();
    const QJsonObject table = shown["tables"].toArray().first().toObject();
    EXPECT_EQ(table["key"], "Rp02");
    EXPECT_EQ(table["columns"].toArray()[2].toObject()["heading"], "(16) - \r\n\r\n40mm");
    EXPECT_EQ(table["columns"].toArray()[2].toObject()["unit"], "[MPa]");
    EXPECT_EQ(table["rows"].toArray()[5].toArray()[2], "166");

    const QJsonArray values =
        list(answer({"--format", "json", "values", "P265GH@EN 10028-2", "--at", "300,320.5"}));
    ASSERT_EQ(values.size(), 2);
    const auto cell = [&](int at, int of, int column) {
        const QJsonObject each = values[at].toObject()["tables"].toArray()[of].toObject();
        return each["cells"].toArray()[column].toObject();
    };
    EXPECT_EQ(cell(0, 0, 1)["text"], "166");
    EXPECT_EQ(cell(0, 0, 1)["value"].toDouble(), 166);
    EXPECT_EQ(cell(0, 0, 1)["unit"], "[MPa]") << "of a band as of the table";
    EXPECT_EQ(cell(1, 0, 1)["text"], "161,08");
    EXPECT_EQ(cell(1, 0, 1)["value"].toDouble(), 161.08);
    EXPECT_EQ(values[1].toObject()["at"].toDouble(), 320.5);
    EXPECT_TRUE(cell(0, 1, 0)["value"].isNull()) << "below the creep table";
}

TEST(ValuesProgram, TellsWhatIsNotThereAndWhatIsNotUnderstood) {
    // where the environment names no UTF-8 the library has a word to say, too
    const QByteArray before = qgetenv("LC_ALL");
    const auto back = qScopeGuard([&] { before.isNull() ? qunsetenv("LC_ALL") : qputenv("LC_ALL", before); });
    qputenv("LC_ALL", "C");
    const struct {
        QStringList words;
        int status;
        const char *error;
    } cases[] = {
        {{"show", "P999"}, 1, "no grade 'P999'"},
        {{"show", "P265GH"}, 1, "fits several grades"},
        {{"show", "#2", "Rp03"}, 2, "no table 'Rp03'"},
        {{"values", "#2"}, 2, "--at"},
        {{"values", "#2", "--at", "hot"}, 2, "no temperature"},
        {{"find", "--colour", "red"}, 2, "no option --colour"},
        {{"--format", "xml", "find"}, 2, "no format 'xml'"},
        {{}, 2, "what is to be done?"},
    };
    for (const auto &each : cases) {
        const Answer given = answer(each.words);
        EXPECT_EQ(given.status, each.status) << each.words.join(' ').toStdString();
        EXPECT_TRUE(given.error.contains(each.error)) << given.error.toStdString();
        EXPECT_EQ(given.error.count('\n'), 1);
    }
    const Answer missing = answer({"find"}, "/nowhere/at/all.mdb");
    EXPECT_EQ(missing.status, 1);
    EXPECT_TRUE(missing.error.contains("3044"));
}

TEST(ValuesProgram, ReadsBesideARunningProgram) {
    const TestProgram program; // which holds the file for itself
    const Answer given = answer({"find", "--number", "1.0425"}, program.folder() + "/Velmar_PED.mdb");
    EXPECT_EQ(given.status, 0) << given.error.toStdString();
    EXPECT_TRUE(given.output.contains("P265GH"));
}
