// Text to number and back under the settings of several countries.
#include <cfloat>
#include <cmath>
#include <ostream>

#include <gtest/gtest.h>

#include <QDateTime>

#include "platform/runtime/conversions.h"
#include "tests/support/error_of.h"
#include "tests/support/pinned_settings.h"

void PrintTo(const QString &text, std::ostream *out) {
    *out << '"' << text.toStdString() << '"';
}

namespace {

const std::pair<char16_t, char16_t> PointComma = {u'.', u','};
const std::pair<char16_t, char16_t> CommaPoint = {u',', u'.'};
const std::pair<char16_t, char16_t> CommaBlank = {u',', 0x00A0};
const std::pair<char16_t, char16_t> PointApostrophe = {u'.', 0x2019};

class ConversionsTest : public ::testing::Test {
    PinnedSettings m_settings;
};

TEST_F(ConversionsTest, NumbersPrintWithTheDigitsOfTheirType) {
    const struct {
        QVariant value;
        const char *text;
    } cases[] = {
        {1.5, "1.5"},
        {100.0, "100"},
        {-0.25, "-0.25"},
        {-0.0, "0"},
        {1.0 / 3, "0.333333333333333"},
        {2.0 / 3, "0.666666666666667"},
        {0.1 + 0.2, "0.3"},
        {123456789012345.0, "123456789012345"},
        {1e15, "1E+15"},
        {1.25e100, "1.25E+100"},
        {0.0001, "0.0001"},
        {0.000015, "1.5E-05"},
        {1.0f / 3, "0.3333333"},
        {12.345f, "12.345"},
        {1234567.0f, "1234567"},
        {12345678.0f, "1.234568E+07"},
        {static_cast<qint16>(-7), "-7"},
        {true, "True"},
        {false, "False"},
        {QStringLiteral(" as it is "), " as it is "},
        {QDateTime(QDate(2003, 2, 1), QTime(0, 0)), "2003-02-01"},
        {QDateTime(QDate(2003, 2, 1), QTime(4, 5, 6)), "2003-02-01 04:05:06"},
    };
    for (const auto &item : cases)
        EXPECT_EQ(CStr(item.value), QLatin1String(item.text));

    const PinnedSettings comma(u',', u'.');
    EXPECT_EQ(CStr(1.5), QStringLiteral("1,5"));
    EXPECT_EQ(CStr(0.000015), QStringLiteral("1,5E-05"));
}

TEST_F(ConversionsTest, ANumberTextFollowsTheSettings) {
    constexpr double no = NAN; // raises 13
    const struct {
        const char16_t *text;
        double pointComma, commaPoint, commaBlank, pointApostrophe;
    } cases[] = {
        {u"12", 12, 12, 12, 12},
        {u"  12 ", 12, 12, 12, 12},
        {u"1,5", 15, 1.5, 1.5, no},
        {u"1.5", 1.5, 15, no, 1.5},
        {u"1,234.5", 1234.5, 1.2345, no, no},
        {u"1.234,5", 1.2345, 1234.5, no, no},
        {u"1 234,5", no, no, 1234.5, no},
        {u"1\u202F234,5", no, no, 1234.5, no},
        {u"1'234.5", no, no, no, 1234.5},
        {u"1\u2019234.5", no, no, no, 1234.5},
        {u"100,0", 1000, 100, 100, no},
        {u"-.5", -.5, -5, no, -.5},
        {u"5.", 5, 5, no, 5},
        {u"+7", 7, 7, 7, 7},
        {u"2E3", 2000, 2000, 2000, 2000},
        {u"2d-1", 0.2, 0.2, 0.2, 0.2},
        {u"2E", no, no, no, no},
        {u"1-2", no, no, no, no},
        {u"--1", no, no, no, no},
        {u"-", no, no, no, no},
        {u",", no, no, no, no},
        {u"", no, no, no, no},
        {u"(90)", no, no, no, no},
        {u"inf", no, no, no, no},
        {u"0x10", no, no, no, no},
        {u"\u0661\u0662", no, no, no, no},
    };
    const auto check = [](const char16_t *text, std::pair<char16_t, char16_t> signs, double expected) {
        const PinnedSettings settings(signs.first, signs.second);
        const QString written = QString::fromUtf16(text);
        SCOPED_TRACE(written.toStdString());
        if (std::isnan(expected))
            EXPECT_EQ(errorOf([&] { CDbl(written); }), 13);
        else
            EXPECT_EQ(CDbl(written), expected);
    };
    for (const auto &item : cases) {
        check(item.text, PointComma, item.pointComma);
        check(item.text, CommaPoint, item.commaPoint);
        check(item.text, CommaBlank, item.commaBlank);
        check(item.text, PointApostrophe, item.pointApostrophe);
    }
}

TEST_F(ConversionsTest, WholeNumbersRoundHalfToEvenAndOverflow) {
    const struct {
        QVariant value;
        int result;
    } cases[] = {{0.5, 0},   {1.5, 2},     {2.5, 2},          {-0.5, 0},          {-1.5, -2},   {2.51, 3},
                 {true, -1}, {"12.5", 12}, {32767.4f, 32767}, {-32768.5, -32768}, {"1e3", 1000}};
    for (const auto &item : cases)
        EXPECT_EQ(CInt(item.value), item.result) << item.value.toString().toStdString();

    EXPECT_EQ(errorOf([] { CInt(32767.5); }), 6);
    EXPECT_EQ(errorOf([] { CInt("-32769"); }), 6);
    EXPECT_EQ(CLng(-2147483648.0), std::numeric_limits<qint32>::min());
    EXPECT_EQ(CLng("-2147483624"), -2147483624);
    EXPECT_EQ(errorOf([] { CLng(2147483647.5); }), 6);
    EXPECT_EQ(errorOf([] { CLng(NAN); }), 6);
}

TEST_F(ConversionsTest, SinglesKeepTheirRange) {
    EXPECT_EQ(CSng("0.1"), 0.1f);
    EXPECT_EQ(CSng(static_cast<double>(FLT_MAX)), FLT_MAX);
    EXPECT_EQ(errorOf([] { CSng(3.5e38); }), 6);
    EXPECT_EQ(errorOf([] { CDbl("1E400"); }), 6);
    EXPECT_EQ(errorOf([] { CDbl(QString(400, '1') + "E-5"); }), 6);
    EXPECT_EQ(CDbl("1E-400"), 0);
    EXPECT_EQ(CDbl("0." + QString(400, '0') + "1"), 0);
}

TEST_F(ConversionsTest, NullAndWordsAreNoNumbers) {
    const QVariant null;
    EXPECT_EQ(errorOf([&] { CStr(null); }), 94);
    EXPECT_EQ(errorOf([&] { CDbl(null); }), 94);
    EXPECT_EQ(errorOf([&] { CInt(null); }), 94);
    EXPECT_EQ(errorOf([&] { CBool(null); }), 94);
    EXPECT_TRUE(CBool("TRUE"));
    EXPECT_FALSE(CBool("false"));
    EXPECT_TRUE(CBool("-1"));
    EXPECT_FALSE(CBool("0"));
    EXPECT_EQ(errorOf([] { CBool("Yes"); }), 13);
    EXPECT_EQ(errorOf([] { CBool(""); }), 13);
}

TEST_F(ConversionsTest, FormatRoundsTheDecimalTextHalfAwayFromZero) {
    const struct {
        QVariant value;
        const char *pattern, *text;
    } cases[] = {
        {235.125, "###0.00", "235.13"},
        {-235.125, "###0.00", "-235.13"},
        {1.005, "###0.00", "1.01"}, // in binary a little below
        {0.285, "###0.00", "0.29"},
        {7, "###0.00", "7.00"},
        {0, "###0.00", "0.00"},
        {0.004, "###0.00", "0.00"},
        {0.005, "###0.00", "0.01"},
        {99.995, "##0.00", "100.00"},
        {0.999, "##0.00", "1.00"},
        {0.0005, "##0.00", "0.00"},
        {123456.789, "##0.00", "123456.79"},
        {1e17, "##0.00", "100000000000000000.00"},
        {1.5e-5, "###0.00", "0.00"},
        {QStringLiteral("1,5"), "##0.00", "15.00"},
        {QStringLiteral("abc"), "##0.00", "abc"},
        {QStringLiteral(""), "##0.00", ""},
        {12.5, "000", "013"},
        {0.5, "#.0#", ".5"},
    };
    for (const auto &item : cases)
        EXPECT_EQ(Format(item.value, QLatin1String(item.pattern)), QLatin1String(item.text));
    EXPECT_EQ(Format(QVariant(), QStringLiteral("0.00")), QString());

    const PinnedSettings comma(u',', u' ');
    EXPECT_EQ(Format(235.125, QStringLiteral("###0.00")), QStringLiteral("235,13"));
    EXPECT_EQ(Format(QStringLiteral("1,5"), QStringLiteral("##0.00")), QStringLiteral("1,50"));
    const PinnedSettings apostrophe(u'.', u'\'');
    EXPECT_EQ(Format(QStringLiteral("1,5"), QStringLiteral("##0.00")), QStringLiteral("1,5"));
}

} // namespace
