// Cards in the hands of CalculiX: a cube of one element gives back what the standard says. Skipped where
// there is no ccx; Debian has it in calculix-ccx.
#include <gtest/gtest.h>

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "exchange/calculix_card.h"
#include "exchange/material_card.h"
#include "tests/exchange/sample_database.h"

namespace {

constexpr qint16 CardGrade = 2;
constexpr int Thickness = 40;
constexpr double Reference = 20;
constexpr double Density = 7850;
/// The first two are temperatures of every table used, the last is of none.
constexpr double Temperatures[] = {100, 300, 325};

/// On the straight line between the rows around it.
double inSample(const QString &table, int column, double temperature) {
    QVector<std::pair<double, double>> points;
    for (const QVector<QVariant> &row : sampleRows(table, CardGrade))
        if (row[column].isValid() && (table != "Rp02" || row[2].toInt() == Thickness))
            points.append({row[1].toDouble(), row[column].toString().replace(',', '.').toDouble()});
    for (qsizetype i = 1; i < points.size(); ++i) {
        const auto [from, low] = points[i - 1];
        const auto [to, high] = points[i];
        if (temperature >= from && temperature <= to)
            return low + (high - low) * (temperature - from) / (to - from);
    }
    throw std::runtime_error("no row around it");
}

/// A cube of side 1 in the card's unit of length.
class Cube {
public:
    explicit Cube(UnitSystem units) {
        const auto database = openDatabase();
        const CardSource source = CardSource::read(*database, CardGrade);
        const CardChoice choice{units, "0.3", QString::number(Density), "Rp02",
                                source.bandOf("Rp02", Thickness)};
        const MaterialCard card = MaterialCard::of(source, choice);
        write("card.inp", calculixCard(card));
        m_section = "*SOLID SECTION, ELSET=E, MATERIAL=" + card.name + "\n";
    }

    /// The numbers of the last line of the answer.
    QVector<double> solve(double initial, const QString &model) const {
        write("model.inp",
              "*NODE, NSET=ALL\n1,0,0,0\n2,1,0,0\n3,1,1,0\n4,0,1,0\n5,0,0,1\n6,1,0,1\n7,1,1,1\n8,0,1,1\n"
              "*ELEMENT, TYPE=C3D8, ELSET=E\n1,1,2,3,4,5,6,7,8\n"
              "*NSET, NSET=X0\n1,4,5,8\n*NSET, NSET=X1\n2,3,6,7\n*NSET, NSET=Y0\n1,2,5,6\n"
              "*NSET, NSET=Z0\n1,2,3,4\n*INCLUDE, INPUT=card.inp\n" +
                  m_section + "*INITIAL CONDITIONS, TYPE=TEMPERATURE\nALL," + QString::number(initial) +
                  "\n" + model + "*END STEP\n");
        QProcess ccx;
        ccx.setWorkingDirectory(m_folder.path());
        ccx.start("ccx", {"-i", "model"});
        const bool ended = ccx.waitForFinished(60000);
        const QString said = QString::fromUtf8(ccx.readAllStandardOutput());
        EXPECT_TRUE(ended && ccx.exitCode() == 0 && !said.contains("*ERROR")) << said.toStdString();
        return lastLine();
    }

private:
    void write(const QString &name, const QString &text) const {
        QFile file(m_folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text.toLatin1()) != text.size())
            throw std::runtime_error("no model");
    }

    QVector<double> lastLine() const {
        QFile file(m_folder.filePath("model.dat"));
        if (!file.open(QIODevice::ReadOnly)) return {};
        static const QRegularExpression blanks("\\s+");
        QVector<double> numbers;
        const QString text = QString::fromLatin1(file.readAll()).trimmed();
        for (const QString &word : text.section('\n', -1).trimmed().split(blanks))
            numbers << word.toDouble();
        return numbers;
    }

    QTemporaryDir m_folder;
    QString m_section;
};

const QString Held = QStringLiteral("*BOUNDARY\nX0,1,1\nY0,2,2\nZ0,3,3\n*STEP\n*STATIC\n");

QString stretched(double strain) {
    return Held + "*BOUNDARY\nX1,1,1," + QString::number(strain) + "\n*EL PRINT, ELSET=E\nS\n";
}

class Ccx : public ::testing::TestWithParam<UnitSystem> {
protected:
    void SetUp() override {
        if (QStandardPaths::findExecutable("ccx").isEmpty())
            GTEST_SKIP() << "there is no ccx here; Debian has it in calculix-ccx";
    }
    /// To 0.1 %.
    static void expectEqual(double solved, double expected, double temperature) {
        EXPECT_NEAR(solved, expected, std::abs(expected) * 1e-3) << "at " << temperature;
        RecordProperty("at " + std::to_string(static_cast<int>(temperature)),
                       QString::number(solved / expected - 1, 'e', 1).toStdString());
    }
    /// MPa in the card's unit.
    double stress() const { return GetParam() == UnitSystem::Si ? 1e6 : 1; }
};

} // namespace

TEST_P(Ccx, GivesBackTheModulusOfElasticity) {
    const Cube cube(GetParam());
    for (const double at : Temperatures)
        expectEqual(cube.solve(at, stretched(1e-4)).value(2) / 1e-4,
                    inSample("ModElast", 2, at) * 1000 * stress(), at);
}

TEST_P(Ccx, GivesBackTheExpansionFrom20Degrees) {
    const Cube cube(GetParam());
    for (const double at : Temperatures) {
        const QString model =
            Held + "*TEMPERATURE\nALL," + QString::number(at) + "\n*NODE PRINT, NSET=X1\nU\n";
        expectEqual(cube.solve(Reference, model).value(1),
                    inSample("ThermExp", 2, at) * 1e-6 * (at - Reference), at);
    }
}

TEST_P(Ccx, GivesBackTheConduction) {
    const Cube cube(GetParam());
    for (const double at : Temperatures) {
        const QString model = QStringLiteral("*STEP\n*HEAT TRANSFER, STEADY STATE\n*BOUNDARY\nX0,11,11,%1\n"
                                             "X1,11,11,%2\n*NODE PRINT, NSET=X1, TOTALS=ONLY\nRFL\n")
                                  .arg(at - 0.5)
                                  .arg(at + 0.5);
        expectEqual(cube.solve(at, model).value(0), inSample("ThermCond", 2, at), at);
    }
}

TEST_P(Ccx, GivesBackTheYieldStress) {
    const Cube cube(GetParam());
    for (const double at : Temperatures)
        expectEqual(cube.solve(at, stretched(0.01)).value(2), inSample("Rp02", 4, at) * stress(), at);
}

TEST_P(Ccx, WarmsByHeatCapacityAndDensity) {
    const Cube cube(GetParam());
    const bool isSi = GetParam() == UnitSystem::Si;
    const double density = isSi ? Density : Density * 1e-12;
    for (const double at : Temperatures) {
        const double capacity = inSample("SpecThermCap", 3, at) * (isSi ? 1 : 1e6);
        // So much heat in a second, an eighth of it in each corner, warms it by one degree.
        const QString model = QStringLiteral("*STEP\n*HEAT TRANSFER, DIRECT\n0.1,1.\n*CFLUX\nALL,11,%1\n"
                                             "*NODE PRINT, NSET=X1\nNT\n")
                                  .arg(density * capacity / 8, 0, 'g', 15);
        const double warmed = cube.solve(at - 0.5, model).value(1);
        expectEqual(warmed - (at - 0.5), 1, at);
    }
}

INSTANTIATE_TEST_SUITE_P(Cards, Ccx, ::testing::Values(UnitSystem::Si, UnitSystem::Mm));
