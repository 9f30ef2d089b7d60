// The values of one grade and of grades beside each other.
#include <gtest/gtest.h>

#include "data/GradeTables.h"
#include "data/Material.h"
#include "data/table_vocabulary.h"
#include "design/DesignValues.h"
#include "tests/values/values_support.h"
#include "values/comparison_chart.h"
#include "values/composition_comparison.h"
#include "values/value_sheet.h"

namespace {

constexpr int SampleGrades = 38;

/// The cells of the design values, table by table.
QStringList designCells(const DesignValues &values) {
    QStringList cells;
    for (const DesignTable &table : values.tables())
        for (const DesignCell &cell : table.cells)
            cells << table.key + ": " + cell.text;
    return cells;
}

/// The same from each property's cells; the columns of a table stand in the order of the page.
QStringList gradeCells(const GradeValues &grade, const QVector<Property> &properties, const QString &at) {
    QStringList cells;
    for (const QString &key : TableVocabulary::designKeys()) {
        std::map<int, QString> ofTable;
        for (const Property &property : properties) {
            if (property.key != key) continue;
            const ValueCells values = grade.at(property, at);
            const QVector<ValueColumn> columns = grade.columns(property);
            EXPECT_EQ(values.cells.size(), columns.size());
            EXPECT_EQ(values.reason.isEmpty(), !columns.isEmpty());
            for (int i = 0; i < columns.size(); ++i)
                ofTable[columns[i].column] = values.cells[i].text;
        }
        for (const auto &[column, text] : ofTable)
            cells << key + ": " + text;
    }
    return cells;
}

QStringList texts(const ValueCells &cells) {
    QStringList texts;
    for (const ValueCell &cell : cells.cells)
        texts << cell.text;
    return texts;
}

} // namespace

TEST(GradeValuesTest, AreTheDesignValuesOfEveryGradeOfTheSample) {
    const ValuesDatabase database;
    const QVector<Property> properties = Properties::all(database);
    for (int id = 1; id <= SampleGrades; ++id) {
        const auto material = Grades::material(database, static_cast<qint16>(id));
        DesignValues design;
        const bool hasValues = design.build(
            *material, [&](const QString &key) { design.take(GradeTables::load(database, *material, key)); });
        const auto grade = database.grade(id);
        for (int at = -20; at <= 700 && hasValues; at += 10)
            for (const QString &text :
                 {QString::number(at), QString::number(at) + ",0", QString::number(at) + ",7"}) {
                design.compute(text, NumberFlags::fromSystem());
                ASSERT_EQ(gradeCells(*grade, properties, text), designCells(design))
                    << id << " at " << text.toStdString();
            }
        EXPECT_EQ(gradeCells(*grade, properties, "300").isEmpty(), !hasValues);
    }
}

TEST(GradeValuesTest, AThicknessTakesItsBand) {
    const ValuesDatabase database;
    const auto grade = database.grade(2); // bands to 16, 40, 60, 100, 150 and 250 mm
    const Property rp02 = database.property("Rp02");
    const struct {
        double thickness;
        const char *band, *text;
    } cases[] = {{0.1, "(  ) - 16mm", "173"}, {16, "(  ) - 16mm", "173"},   {16.1, "(16) - 40mm", "166"},
                 {40, "(16) - 40mm", "166"},  {40.5, "(40) - 60mm", "160"}, {250, "(150) - 250mm", "121"}};
    for (const auto &each : cases) {
        const ValueCells cells = grade->at(rp02, "300", each.thickness);
        ASSERT_EQ(cells.cells.size(), 1) << each.thickness;
        EXPECT_EQ(cells.cells.first().band, each.band);
        EXPECT_EQ(cells.text(), each.text);
    }
    const ValueCells above = grade->at(rp02, "300", 250.1);
    EXPECT_TRUE(above.cells.isEmpty());
    EXPECT_EQ(above.reason, "250.1 mm is above the last thickness band, which ends at 250 mm.");
    EXPECT_EQ(grade->at(rp02, "300").text().section('\n', 0, 1), "(  ) - 16mm: 173\n(16) - 40mm: 166");
    // Bands hold for nothing else.
    EXPECT_EQ(texts(grade->at(database.property("ThermCond"), "300", 250.1)), QStringList("47.2"));
    EXPECT_FALSE(grade->at(database.property("Rm"), "300").reason.isEmpty());
}

TEST(GradeValuesTest, WhatCannotBeComputedHasAReason) {
    const ValuesDatabase database({"ThermExp values (1, 20, '12', '1-2'), (1, 100, '13', '2')"});
    const auto grade = database.grade(1);
    EXPECT_EQ(texts(grade->at(database.property("ThermExp/ThermExp"), "60")), QStringList("12,50"));
    const ValueCells failed = grade->at(database.property("ThermExp/ThermExpDiff"), "60");
    EXPECT_TRUE(failed.cells.isEmpty());
    EXPECT_EQ(failed.reason, "Type mismatch");
    EXPECT_EQ(grade->at(database.property("ThermExp/ThermExpDiff"), "20").cells.first().value, std::nullopt);
}

TEST(ComparisonTest, HasARowForWhatAnyGradeHas) {
    const ValuesDatabase database;
    const QVector<Property> all = Properties::all(database);
    const ComparedGrades grades{database.grade(1), database.grade(11), database.grade(23)};
    const auto names = [&](const QString &filter, double thickness) {
        QStringList found;
        for (const ComparisonRow &row : Comparison::rows(grades, all, "300", thickness, filter))
            found << row.property.name();
        return found;
    };
    // 250 000 h and Rp0,2 / 10 000 h are columns of dashes in all of them.
    EXPECT_EQ(names("creep rm", 40),
              QStringList({"CreepProp/Rm / 10 000 h", "CreepProp/Rm / 100 000 h", "CreepProp/Rm / 200 000 h",
                           "CreepProp/Rm / 30 000 h", "CreepProp/Rm / 50 000 h"}));
    EXPECT_EQ(names("RP0,2 rp02", 400), QStringList("Rp02")) << "a row stays where no band holds";
    EXPECT_EQ(names("", 40).size(), all.size() - 2);
    EXPECT_TRUE(names("colour", 40).isEmpty());

    const ComparisonRow row = Comparison::rows(grades, all, "300", 60, "rp02").first();
    EXPECT_EQ(row.cells[0].text(), "140");
    EXPECT_EQ(row.cells[1].text(), "110");
    EXPECT_EQ(row.cells[2].text(), "173");
}

TEST(ComparisonTest, DrawsACurveAGrade) {
    const ValuesDatabase database;
    const ComparedGrades grades{database.grade(2), database.grade(38), database.grade(11)};
    const auto chart = ComparisonChart::of(grades, database.property("Rp02"), 40, NumberFlags::fromSystem());
    EXPECT_EQ(chart.grades, QVector<int>({0, 2}));
    EXPECT_EQ(chart.legends, QStringList({"P265GH EN 10028-2 (16) - 40mm", "X5CrNi18-10 EN 10028-7"}));
    const auto point = [&](int row, int curve) {
        return chart.points.Get(row, 2 * curve).toString() + "|" +
               chart.points.Get(row, 2 * curve + 1).toString();
    };
    EXPECT_EQ(point(6, 0), "300|166");
    EXPECT_EQ(point(6, 1), "300|110");
    EXPECT_EQ(point(9, 0), "|") << "the shorter table";
    EXPECT_NE(point(9, 1), "|");
}

TEST(ComparisonTest, CompositionsDifferFromTheFirst) {
    const ValuesDatabase database(
        {"Chemical values ('S', 'Grade 1', '1.1', 1, 'C', null, null), ('S', 'Grade 1', '1.1', 2, 'C', "
         "'0,20', null), "
         "('S', 'Grade 1', '1.1', 3, 'Mn', '0,8', 'a'), ('S', 'Grade 1', '1.1', 4, 'Mn', '1,4', null)",
         "Chemical values ('S', 'Grade 2', '1.2', 1, 'Mn', '0,8', null), ('S', 'Grade 2', '1.2', 2, 'Mn', "
         "'1,4', null), "
         "('S', 'Grade 2', '1.2', 3, 'C', null, null), ('S', 'Grade 2', '1.2', 4, 'C', '0,16', null), "
         "('S', 'Grade 2', '1.2', 5, 'Cu', null, null), ('S', 'Grade 2', '1.2', 6, 'Cu', '0,3', null)"});
    QVector<GradeComposition> grades;
    for (const int id : {1, 2, 3})
        grades << GradeComposition::load(database, database.grade(id)->grade());
    QStringList lines;
    for (const CompositionRow &row : compareCompositions(grades)) {
        QStringList cells;
        for (int i = 0; i < row.cells.size(); ++i)
            cells << (row.minDiffers(i) ? "!" : "") + row.cells[i].min + "-" + row.cells[i].max +
                         (row.maxDiffers(i) ? "!" : "");
        lines << row.element + " " + cells.join(' ');
    }
    EXPECT_EQ(lines, QStringList({"C -0,20 -0,16! -!", "Mn 0,8-1,4 0,8-1,4 !-!", "Cu - -0,3! -"}));
}

TEST(ValueSheetTest, StepsFromTheFirstToTheLastTemperature) {
    const struct {
        const char *from, *to, *step, *temperatures;
    } cases[] = {
        {"20", "100", "20", "20 40 60 80 100"},
        {"20", "99,9", "20", "20 40 60 80"},
        {"-1", "1", "0.5", "-1 -0,5 0 0,5 1"},
        {"0", "0,3", "0,1", "0 0,1 0,2 0,3"},
        {" 20 ", "20", "5", "20"},
        {"-0,75", "-0,25", "0,25", "-0,75 -0,5 -0,25"},
        {"0,05", "0,1", "0,0125", "0,05 0,0625 0,075 0,0875 0,1"},
    };
    for (const auto &each : cases) {
        const auto made = ValueSheets::temperatures(each.from, each.to, each.step);
        ASSERT_TRUE(made) << made.error.toStdString();
        EXPECT_EQ(made->join(' '), each.temperatures);
    }
    EXPECT_EQ(ValueSheets::temperatures("1", "1000", "1")->size(), 1000);
    const struct {
        const char *from, *to, *step, *error;
    } wrong[] = {
        {"", "100", "20", "Type a number."},
        {"20", "hot", "20", "'hot' is no number."},
        {"20", "100", "1e1", "'1e1' is no number."},
        {"101", "100", "20", "The first temperature is above the last one."},
        {"20", "100", "0", "The step is greater than 0 °C."},
        {"20", "100", "-20", "The step is greater than 0 °C."},
        {"0", "1000", "1", "1,001 rows; there can be 1,000 at most."},
        {"-999999999", "999999999", "0,0001", "19,999,999,980,001 rows; there can be 1,000 at most."}};
    for (const auto &each : wrong)
        EXPECT_EQ(ValueSheets::temperatures(each.from, each.to, each.step).error, each.error);
}

TEST(ValueSheetTest, MarksTheRowsOfTheTables) {
    const ValuesDatabase database;
    const auto grade = database.grade(2);
    const auto columns = ValueSheets::columns(
        *grade, {database.property("ThermExp/ThermExpDiff"), database.property("CreepProp/Rm / 10 000 h")});
    const ValueSheet sheet =
        ValueSheets::sheet(*grade, columns, *ValueSheets::temperatures("380", "420", "10"));
    QStringList lines;
    for (const SheetRow &row : sheet.rows) {
        QString line = row.temperature;
        for (int i = 0; i < row.cells.size(); ++i)
            line += " " + row.cells[i].text + (row.own[i] ? "*" : "");
        lines << line;
    }
    // Expansion has a row each 100 °C, creep one each 10 °C.
    EXPECT_EQ(lines, QStringList({"380 15,02 229*", "390 15,11 211*", "400 15.2* 191*", "410 15,29 174*",
                                  "420 15,38 158*"}));
}
