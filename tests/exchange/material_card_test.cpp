// Material cards, read back by readers of their own and compared with the texts of the sample.
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "exchange/ascii_text.h"
#include "exchange/calculix_card.h"
#include "exchange/mapdl_card.h"
#include "exchange/material_card.h"
#include "tests/exchange/card_readers.h"
#include "tests/exchange/sample_database.h"
#include "tests/support/small_database.h"

namespace {

using Rows = QVector<QVector<double>>;

/// A figure of the sample's texts, decorated or not.
double figure(const QVariant &cell) {
    return QString(cell.toString()).remove('(').remove(')').replace(',', '.').toDouble();
}

/// Figure times factor, what stands between, temperature.
Rows expected(const QString &table, int matID, int column, double factor, const QVector<double> &between = {},
              int thickness = 0) {
    Rows rows;
    for (const QVector<QVariant> &row : sampleRows(table, matID))
        if (row[column].isValid() && (thickness == 0 || row[2].toInt() == thickness))
            rows << QVector<double>{figure(row[column]) * factor} + between +
                        QVector<double>{row[1].toDouble()};
    return rows;
}

void expectNear(const Rows &read, const Rows &expected, const std::string &where) {
    ASSERT_EQ(read.size(), expected.size()) << where;
    for (qsizetype row = 0; row < read.size(); ++row) {
        ASSERT_EQ(read[row].size(), expected[row].size()) << where;
        for (qsizetype i = 0; i < read[row].size(); ++i)
            EXPECT_NEAR(read[row][i], expected[row][i], std::abs(expected[row][i]) * 1e-12) << where;
    }
}

/// The factors by hand: kN/mm² to Pa and to MPa, 10⁻⁶/K, W/(m K), J/(kg K) to mm²/(s² K), kg/m³ to t/mm³.
struct Factors {
    double elasticity, expansion, conductivity, heat, density, yield;
};
constexpr Factors Si{1e9, 1e-6, 1, 1, 1, 1e6};
constexpr Factors Mm{1e3, 1e-6, 1, 1e6, 1e-12, 1};

void expectCards(const CardSource &source, const CardChoice &choice, int matID, int thickness) {
    const Factors &by = choice.units == UnitSystem::Si ? Si : Mm;
    const std::string where = "grade " + std::to_string(matID);
    const MaterialCard made = MaterialCard::of(source, choice);
    ReadCard inp = readCalculix(calculixCard(made));
    ReadCard mac = readMapdl(mapdlCard(made));
    EXPECT_EQ(inp.faults.join('\n').toStdString() + mac.faults.join('\n').toStdString(), "") << where;

    expectNear(inp.blocks["*ELASTIC"], expected("ModElast", matID, 2, by.elasticity, {0.3}), where);
    expectNear(mac.blocks["EX"], expected("ModElast", matID, 2, by.elasticity), where);
    for (Rows *read : {&inp.blocks["*EXPANSION"], &mac.blocks["ALPX"]})
        expectNear(*read, expected("ThermExp", matID, 2, by.expansion), where);
    for (Rows *read : {&inp.blocks["*CONDUCTIVITY"], &mac.blocks["KXX"]})
        expectNear(*read, expected("ThermCond", matID, 2, by.conductivity), where);
    for (Rows *read : {&inp.blocks["*SPECIFIC HEAT"], &mac.blocks["C"]})
        expectNear(*read, expected("SpecThermCap", matID, 3, by.heat), where);
    for (Rows *read : {&inp.blocks["*DENSITY"], &mac.blocks["DENS"]})
        expectNear(*read, {{7850 * by.density}}, where);
    const bool hasYield = !made.elasticity.isEmpty() && !choice.yieldKey.isEmpty();
    const Rows yield = hasYield ? expected(choice.yieldKey, matID, 4, by.yield, {0}, thickness) : Rows();
    expectNear(inp.blocks["*PLASTIC"], yield, where);
    Rows level;
    for (const QVector<double> &row : yield)
        level << row << QVector<double>{row[0], 1, row[2]};
    expectNear(mac.blocks["TB"], level, where);
    expectNear(mac.blocks["PRXY"], made.elasticity.isEmpty() ? Rows() : Rows{{0.3}}, where);
    expectNear(mac.blocks["REFT"], made.expansion.isEmpty() ? Rows() : Rows{{20}}, where);
}

CardSource decorated(const QStringList &inserts) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("small.db");
    smallDatabase(inserts)(path);
    return CardSource::read(*openDatabase(path), 1);
}

} // namespace

TEST(MaterialCard, HasTheRowsOfTheSampleInBothUnitsAndFormats) {
    const auto database = openDatabase();
    int yields = 0;
    for (qint16 matID = 1; matID <= LastGrade; ++matID) {
        const CardSource source = CardSource::read(*database, matID);
        CardChoice choice{UnitSystem::Si, "0.3", "7850"};
        expectCards(source, choice, matID, 0);
        choice.units = UnitSystem::Mm;
        for (const QString &key : source.yieldKeys()) {
            choice.yieldKey = key;
            QVector<int> limits;
            for (const QVector<QVariant> &row : sampleRows(key, matID))
                if (!limits.contains(row[2].toInt())) limits << row[2].toInt();
            for (const int limit : limits) {
                choice.band = limit < 0 ? 0 : source.bandOf(key, limit);
                expectCards(source, choice, matID, limit);
                ++yields;
            }
        }
    }
    EXPECT_GT(yields, 80);
}

TEST(MaterialCard, TellsItsOriginAndWhatIsNotInIt) {
    const auto database = openDatabase();
    const CardSource source = CardSource::read(*database, 2);
    EXPECT_EQ(source.bands("Rp02").value(1), "(16) - 40mm");
    EXPECT_EQ(source.bandOf("Rp02", 16), 1);
    EXPECT_EQ(source.bandOf("Rp02", 16.1), 2);
    EXPECT_EQ(source.bandOf("Rp02", 251), 0);

    const MaterialCard full = MaterialCard::of(source, {UnitSystem::Mm, "0,3", "7850", "Rp02", 6});
    EXPECT_EQ(full.name, "P265GH_EN_10028-2");
    EXPECT_TRUE(full.leftOut.isEmpty());
    const QString told = readCalculix(calculixCard(full)).comments;
    EXPECT_EQ(readMapdl(mapdlCard(full)).comments.contains("used: (105) at 400 C"), true);
    for (const char *part : {"P265GH 1.0425, last updated 2017-09-30", "EN 10028-2, last updated 2017-09-30",
                             "Velmar_PED.mdb of 20", "t, mm, s, MPa", "thickness (150) - 250mm",
                             "used: (105) at 400 C", "left out: no value at 20 C"})
        EXPECT_TRUE(told.contains(part)) << part << " in " << told.toStdString();

    const MaterialCard bare = MaterialCard::of(source, {UnitSystem::Si, "1/3", "", "Rp02", 2});
    EXPECT_EQ(bare.leftOut.join('|').toStdString(),
              "Modulus of elasticity: \"1/3\" is no Poisson's ratio|Density: no density was given|"
              "Yield stress: it needs the modulus of elasticity");
    for (const QString &text : {calculixCard(bare), mapdlCard(bare)})
        EXPECT_TRUE(text.contains("Not in this card: Density: no density was given"));
    ReadCard read = readMapdl(mapdlCard(bare));
    EXPECT_TRUE(read.blocks["EX"].isEmpty() && read.blocks["PRXY"].isEmpty() && read.blocks["TB"].isEmpty());
    EXPECT_EQ(MaterialCard::of(source, {UnitSystem::Si, "0.3", "", "Rp02"}).leftOut.last().toStdString(),
              "Yield stress: Rp02 depends on the thickness, and no band was chosen");
}

TEST(MaterialCard, UsesBracketsAndLeavesOutWhatIsNoPlainNumber) {
    const CardSource source = decorated(
        {"ModElast values (1, -10, 213.5)", "ModElast values (1, 0, 212)", "ModElast values (1, 50, 0)",
         "ModElast values (1, 100, 206)", "ThermExp values (1, 100, '≤ 12,1', '1')",
         "ThermExp values (1, 200, '(12,60)', '1')", "ThermExp values (1, 300, '13*', '1')",
         "ThermExp values (1, 400, '-', '1')", "ThermCond values (1, 20, 'x')"});
    const MaterialCard card = MaterialCard::of(source, {UnitSystem::Mm, "0.3"});
    ReadCard inp = readCalculix(calculixCard(card));
    ReadCard mac = readMapdl(mapdlCard(card));
    EXPECT_EQ(inp.faults.join('\n').toStdString() + mac.faults.join('\n').toStdString(), "");
    expectNear(inp.blocks["*ELASTIC"], {{213500, 0.3, -10}, {212000, 0.3, 0}, {206000, 0.3, 100}}, "inp");
    // A temperature of 0 has to stand first in its command.
    expectNear(mac.blocks["EX"], {{213500, -10}, {212000, 0}, {206000, 100}}, "mapdl");
    expectNear(inp.blocks["*EXPANSION"], {{1.26e-5, 200}}, "inp");
    EXPECT_TRUE(inp.comments.contains("brackets that are used: (12,60) at 200 C"))
        << inp.comments.toStdString();
    EXPECT_TRUE(inp.comments.contains("left out: \"<= 12,1\" at 100 C, \"13*\" at 300 C, no value at 400 C"));
    EXPECT_TRUE(inp.comments.contains("Thermal conductivity: the database has no plain numbers"));
    EXPECT_FALSE(inp.blocks.contains("*CONDUCTIVITY"));

    const CardSource unordered =
        decorated({"ThermCond values (1, 100, '50')", "ThermCond values (1, 100, '51')"});
    EXPECT_TRUE(MaterialCard::of(unordered, {})
                    .leftOut.contains("Thermal conductivity: the temperatures do not ascend"));
}

TEST(MaterialCard, KeepsToPlainNamesAndLines) {
    CardSource source = decorated({});
    source.grade.name = QStringLiteral("16Mo3 „ß“\n*NODE,1,2 ") + QString(200, 'x');
    source.grade.standard = QStringLiteral("Ångström – µ");
    const MaterialCard card = MaterialCard::of(source, {});
    EXPECT_TRUE(card.name.startsWith("M_16Mo3_ss")) << card.name.toStdString();
    EXPECT_EQ(card.name.size(), 80);
    const QString inp = calculixCard(card);
    EXPECT_FALSE(QString(inp).remove("\n** ").contains("\n*")) << "no block, and no line of a name's making";
    EXPECT_EQ((readCalculix(inp).faults + readMapdl(mapdlCard(card)).faults).join('\n').toStdString(), "");
    EXPECT_TRUE(inp.contains("Angstrom - u"));
}

TEST(MaterialCard, TellsWhatIsWrongWithWhatWasTyped) {
    for (const char *good : {"", " ", "0", "0,3", "0.499"})
        EXPECT_EQ(MaterialCard::poissonFault(good), "") << good;
    for (const char *bad : {"0.5", "-0.1", "30", "1/3", "0.3.1", "(0.3)"})
        EXPECT_NE(MaterialCard::poissonFault(bad), "") << bad;
    for (const char *good : {"", "7850", "7930,5"})
        EXPECT_EQ(MaterialCard::densityFault(good), "") << good;
    for (const char *bad : {"7.85", "7.85E-9", "-7850", "7,850.0"})
        EXPECT_NE(MaterialCard::densityFault(bad), "") << bad;
}
