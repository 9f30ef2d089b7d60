// Design values from texts: taking cells apart, the bracket, the line, the display.
#include <random>

#include <gtest/gtest.h>

#include "data/source_array.h"
#include "design/interpolation.h"
#include "design/value_text.h"
#include "tests/support/error_of.h"
#include "tests/support/pinned_settings.h"

namespace {

// A country's signs and the two flags that the program finds out from them.
struct Country {
    char16_t decimalSign, groupSign;
    bool bDecimalPoint, bCommaGroup;
};

constexpr Country PointComma = {u'.', u',', true, true};
constexpr Country CommaPoint = {u',', u'.', false, false};
constexpr Country CommaBlank = {u',', u' ', false, false};
constexpr Country PointApostrophe = {u'.', u'\'', true, false};

SourceArray table(std::initializer_list<QStringList> rows) {
    SourceArray source(static_cast<int>(rows.size()), static_cast<int>(rows.begin()->size()) - 1);
    int row = 0;
    for (const QStringList &cells : rows) {
        ++row;
        for (int column = 0; column < cells.size(); ++column)
            source.setText(row, column, cells[column]);
    }
    return source;
}

// `cells` gets what was given before a failure.
void collect(const QString &temperature, const SourceArray &source, const Country &country,
             QStringList &cells) {
    const PinnedSettings settings(country.decimalSign, country.groupSign);
    Interpolation::designValues(source, Interpolation::typedTemperature(temperature, country.bCommaGroup),
                                country.bDecimalPoint, [&](int column, const QString &cell) {
                                    EXPECT_EQ(column, cells.size() + 1);
                                    cells << cell;
                                });
}

QString valuesAt(const QString &temperature, const SourceArray &source, const Country &country) {
    QStringList cells;
    collect(temperature, source, country, cells);
    return cells.join(QLatin1Char('|'));
}

TEST(ValueTextTest, ACellFallsIntoThreeParts) {
    const struct {
        const char *lower, *upper, *expected; // prefix, number, suffix of both
        bool bDecimalPoint;
    } cases[] = {
        {"235", "225", "235;/225;", false},           {"(235)", "(225)", "(235;)/(225;)", false},
        {"100", "(90)", "(100;)/(90;)", false},       {"(100)", "90", "(100;)/90;", false},
        {">=1.5 a)", "2,5", ">=1,5; a)/2,5;", false}, {">=1,5 a)", "2.5", ">=1.5; a)/2.5;", true},
        {"-5-6x7", "", "-5-6;x7/;", false},           {"none", "1", "none;/1;", false},
        {"", "~ 12 *", "~ ; */~ 12; *", false},
    };
    for (const auto &item : cases) {
        const auto parts = ValueText::SplitValueText({QLatin1String(item.lower), QLatin1String(item.upper)},
                                                     item.bDecimalPoint);
        QStringList written;
        for (const auto &part : parts)
            written << part.prefix + part.number + QLatin1Char(';') + part.suffix;
        EXPECT_EQ(written.join(QLatin1Char('/')).toStdString(), item.expected);
    }
    const auto split = ValueText::SplitValueText({QStringLiteral("~12"), QString()}, true);
    EXPECT_EQ(split[0].prefix, QStringLiteral("~"));
    EXPECT_EQ(split[0].number, QStringLiteral("12"));
    EXPECT_TRUE(split[1].number.isEmpty());
}

TEST(ValueTextTest, AChartTakesTheFirstNumber) {
    const struct {
        const char *cell, *commaSystem, *pointSystem;
    } cases[] = {{"235", "235", "235"}, {"(1,5) a2", "1,5", "1.5"},  {"1.5", "1.5", "1.5"},
                 {"a-3b4", "-3", "-3"}, {"10-20", "10-20", "10-20"}, {"none", "", ""},
                 {"", "", ""}};
    for (const auto &item : cases) {
        EXPECT_EQ(ValueText::GetNumberText(item.cell, false).toStdString(), item.commaSystem);
        EXPECT_EQ(ValueText::GetNumberText(item.cell, true).toStdString(), item.pointSystem);
    }
}

TEST(ValueTextTest, DesignValuesShowTwoDecimalsBehindAComma) {
    const struct {
        double y;
        const char *text;
    } cases[] = {
        {235.125, "235,13"}, {7, "7,00"}, {-0.005, "-0,01"}, {0.014999, "0,01"}, {1234567.891, "1234567,89"}};
    for (const Country &country : {PointComma, CommaPoint, CommaBlank, PointApostrophe}) {
        const PinnedSettings settings(country.decimalSign, country.groupSign);
        for (const auto &item : cases)
            EXPECT_EQ(ValueText::designValueText(item.y).toStdString(), item.text);
    }
}

TEST(InterpolationTest, ValuesWorkedOutByHand) {
    const SourceArray rp =
        table({{"100", "220", "200"}, {"150", "205", ""}, {"200", "195", "180"}, {"250", "(180)", "x"}});
    const struct {
        const char *temperature, *values;
    } cases[] = {
        {"20", "-|-"},           {"-10", "-|-"},
        {"99,9", "-|-"},         {"100", "220|200"}, // exact at a lower row: the cell as it stands
        {"110", "217,00|x"},                         // 220 - 10 * 15 / 50, and a gap above
        {"100,1", "219,97|x"},                       //
        {"150", "205|x"},                            // a gap at the row itself
        {"175", "200,00|x"},                         // a gap below, however near the next value
        {"233", "(185,10)|x"},                       // 195 - 33 * 15 / 50 in the upper cell's brackets
        {"250", "(180)|x"},                          // exact at the last row
        {"250,0", "(180,00)|x"},                     // the same number, typed otherwise
        {"250,1", "+|+"},        {"9999", "+|+"},
    };
    for (const Country &country : {PointComma, CommaPoint, CommaBlank})
        for (const auto &item : cases)
            EXPECT_EQ(valuesAt(item.temperature, rp, country).toStdString(), item.values) << item.temperature;
}

TEST(InterpolationTest, TheLowerRowsDecorationIsCarried) {
    const SourceArray marked = table({{"20", "100"}, {"50", "(90)"}, {"80", "80 b)"}});
    const struct {
        const char *temperature, *value;
    } cases[] = {{"20", "(100)"}, {"35", "(95,00)"}, {"50", "(90)"}, {"65", "(85,00)"}, {"80", "(80)"}};
    for (const auto &item : cases)
        EXPECT_EQ(valuesAt(item.temperature, marked, CommaPoint).toStdString(), item.value)
            << item.temperature;
}

TEST(InterpolationTest, AStoredSignTakesTheSystemsNotation) {
    const SourceArray conductivity = table({{"20", "12.5", "0,4"}, {"40", "13,0", "0.5"}});
    EXPECT_EQ(valuesAt("20", conductivity, CommaPoint), QStringLiteral("12,5|0,4"));
    EXPECT_EQ(valuesAt("20", conductivity, PointComma), QStringLiteral("12.5|0.4"));
    for (const Country &country : {PointComma, CommaPoint, CommaBlank, PointApostrophe})
        EXPECT_EQ(valuesAt("30", conductivity, country), QStringLiteral("12,75|0,45"));
}

TEST(InterpolationTest, OneRowHasOneTemperature) {
    const SourceArray room = table({{"20", "(212)", ""}});
    EXPECT_EQ(valuesAt("20", room, CommaPoint), QStringLiteral("(212)|x"));
    EXPECT_EQ(valuesAt("20,0", room, CommaPoint), QStringLiteral("(212)|x"));
    EXPECT_EQ(valuesAt("19", room, CommaPoint), QStringLiteral("-|-"));
    EXPECT_EQ(valuesAt("21", room, CommaPoint), QStringLiteral("+|+"));
}

TEST(InterpolationTest, TheTemperatureIsASingle) {
    const SourceArray fine = table({{"20,1", "10"}, {"30", "20"}});
    // As doubles the typed 20,1 and the row's would differ once one of them went through a single.
    EXPECT_EQ(valuesAt("20,1", fine, CommaPoint), QStringLiteral("10"));
    // 20,7 is 20.7000008 as a single, and widened it stays so.
    const SourceArray steep = table({{"0", "0"}, {"100", "1000000"}});
    EXPECT_EQ(valuesAt("20,7", steep, CommaPoint), QStringLiteral("207000,01"));
}

TEST(InterpolationTest, WhatDoesNotConvertIsTold) {
    const auto error = [](const char *temperature, const SourceArray &source, const Country &country) {
        return errorOf([&] { valuesAt(temperature, source, country); });
    };
    const SourceArray good = table({{"20", "1"}, {"40", "2"}});
    EXPECT_EQ(error("2-", good, CommaPoint), 13);
    EXPECT_EQ(error("30,5", good, PointApostrophe), 13);
    EXPECT_EQ(error("30", table({{"20", "1"}, {"40", "-"}}), CommaPoint), 13);
    EXPECT_EQ(error("30", table({{"20", "1-2"}, {"40", "3"}}), CommaPoint), 13);
    EXPECT_EQ(error("30", table({{"", "1"}, {"40", "3"}}), CommaPoint), 13);
    EXPECT_EQ(error("30", table({{"20", "-1,7E"}, {"40", "3"}}), CommaPoint),
              0); // the number ends before the E
    EXPECT_EQ(error("30", SourceArray(0, 1), CommaPoint), 9);
    const QByteArray huge(309, '1'); // a number, but not its distance to its opposite
    EXPECT_EQ(error("30", table({{"20", "-" + huge}, {"40", huge}}), CommaPoint), 6);
}

TEST(InterpolationTest, CellsBeforeAFailureAreGiven) {
    QStringList cells;
    const SourceArray torn = table({{"20", "1", "", "-", "4"}, {"40", "2", "3", "5", "6"}});
    EXPECT_EQ(errorOf([&] { collect("30", torn, CommaPoint, cells); }), 13);
    EXPECT_EQ(cells, (QStringList{"1,50", "x"}));
}

TEST(InterpolationTest, AValueLiesBetweenItsNeighboursAndOnThemAtTheRows) {
    std::mt19937 random(20030405);
    const auto between = [&](int least, int most) {
        return std::uniform_int_distribution(least, most)(random);
    };
    for (int round = 0; round < 500; ++round) {
        const int rows = between(1, 12);
        SourceArray source(rows, 1);
        std::vector<int> temperatures, hundredths;
        int temperature = between(-200, 100);
        for (int row = 1; row <= rows; ++row, temperature += between(1, 150)) {
            temperatures.push_back(temperature);
            hundredths.push_back(between(-50'000, 50'000));
            source.setText(row, 0, QString::number(temperature));
            source.setText(row, 1, QString::number(hundredths.back() / 100.0, 'f', 2).replace('.', ','));
        }
        for (int row = 1; row <= rows; ++row)
            ASSERT_EQ(valuesAt(source.text(row, 0), source, CommaPoint), source.text(row, 1));
        for (int row = 1; row < rows; ++row) {
            const auto i = static_cast<std::size_t>(row);
            if (temperatures[i] - temperatures[i - 1] < 2) continue;
            const int typed = between(temperatures[i - 1] + 1, temperatures[i] - 1);
            const QString cell = valuesAt(QString::number(typed), source, CommaPoint);
            const double shown = QString(cell).replace(',', '.').toDouble() * 100;
            // both neighbours have two decimals, so rounding to two cannot leave the interval
            ASSERT_GE(std::lround(shown), std::min(hundredths[i - 1], hundredths[i])) << cell.toStdString();
            ASSERT_LE(std::lround(shown), std::max(hundredths[i - 1], hundredths[i])) << cell.toStdString();
        }
    }
}

TEST(SourceArrayTest, GrowsByColumnsWithinItsRows) {
    SourceArray creep(2);
    EXPECT_EQ(creep.lastColumn(), -1);
    creep.appendColumn({"400", "450"});
    creep.appendColumn({"a", "b"});
    EXPECT_EQ(creep.lastColumn(), 1);
    EXPECT_EQ(creep.text(2, 1), QStringLiteral("b"));
    EXPECT_EQ(errorOf([&] { creep.text(3, 0); }), 9);
    EXPECT_EQ(errorOf([&] { creep.text(1, 2); }), 9);
    EXPECT_EQ(errorOf([&] { creep.appendColumn({"c"}); }), 9);
}

} // namespace
