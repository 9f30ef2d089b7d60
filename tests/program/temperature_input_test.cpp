// The keys of the box for the design temperature.
#include <gtest/gtest.h>

#include <QStringList>

#include "design/temperature_input.h"

namespace {

// Keys as a hand gives them: characters, and ^ Home, < Left, > Right, $ End, b Backspace, d Delete, * select
// all.
void type(TemperatureInput &box, const char *keys) {
    for (const char *key = keys; *key; ++key) {
        const int length = static_cast<int>(box.text.size());
        switch (*key) {
        case '^':
            box.caret = 0;
            break;
        case '$':
            box.caret = length;
            break;
        case '<':
            box.caret = std::max(0, box.caret - 1);
            break;
        case '>':
            box.caret = std::min(length, box.caret + 1);
            break;
        case '*':
            box.caret = 0;
            box.selectionLength = length;
            break;
        case 'b':
            box.backspaceDown();
            box.keyPress(QLatin1Char('\b'));
            break;
        case 'd':
            box.deleteDown();
            break;
        default:
            box.keyPress(QLatin1Char(*key));
        }
    }
}

TEST(TemperatureInputTest, KeysGiveTexts) {
    const struct {
        const char *keys, *text;
    } cases[] = {
        {"250", "250"},
        {"25000", "2500"},     // a fifth whole digit
        {"2500.7", "2500,7"},  // a point is a comma
        {"2500,75", "2500,7"}, // seven characters
        {"12,55", "12,5"},     // a second decimal digit
        {"-12,5", "-12,5"},
        {"-1234", "-123"}, // the sign counts
        {"-123,4", "-123,4"},
        {"1-2", "12"},
        {"--1", "-1"},
        {",5", "5"},
        {"-,5", "-5"},
        {"1,,2", "1,2"},
        {"12,5<<<9", "192,5"}, // whole digits may still come in front
        {"12,5<9", "12,5"},    // none between the comma and its digit
        {"123<,", "12,3"},     // the digit behind becomes the decimal digit
        {"123<,$4", "12,3"},   //
        {"123<<,", "123"},     // two would stand behind the comma
        {"12,^3$5", "312,"},   // a digit anywhere counts as the decimal one
        {"12a c/", "12"},
        {"12,5b6", "12,6"},
        {"12,5bb", "12"},
        {"12,5bb,7", "12,7"},
        {"12,5<b", "12"}, // the comma takes its digit along
        {"12,5<b,4", "12,4"},
        {"12,5<<d", "12"},
        {"12,5<d6", "12,6"},
        {"12,5<<<d", "1,5"},
        {"12,<d", "12"},
        {"12,<d5", "125"},
        {"12,5*7", "7"},
        {"12,5*7,8", "7,8"},
        {"12,5*x", ""}, // refused, and the selection is gone
        {"12,5*b", ""},
        {"12,5*d7,8", "7,8"},
        {"b", ""},
        {"d", ""},
    };
    for (const auto &item : cases) {
        TemperatureInput box;
        type(box, item.keys);
        EXPECT_EQ(box.text.toStdString(), item.text) << item.keys;
        EXPECT_LE(box.caret, box.text.size());
    }
}

TEST(TemperatureInputTest, ASelectionStartsTheFlagsAnew) {
    TemperatureInput box;
    type(box, "12,5");
    EXPECT_TRUE(box.bDecimalTyped);
    EXPECT_EQ(box.iDecimalDigits, 1);
    box.caret = 0;
    box.selectionLength = 2;
    EXPECT_TRUE(box.keyPress(QLatin1Char('7')));
    EXPECT_EQ(box.text, QStringLiteral("7,5"));
    EXPECT_EQ(box.caret, 1);
    EXPECT_FALSE(box.bDecimalTyped); // although a comma is there
    EXPECT_EQ(box.iDecimalDigits, 0);
}

TEST(TemperatureInputTest, PartOfATextGoesBySelection) {
    TemperatureInput box;
    type(box, "250");
    box.caret = 1;
    box.selectionLength = 2;
    type(box, "b");
    EXPECT_EQ(box.text, QStringLiteral("2"));

    type(box, "*12,5");
    box.caret = 3;
    box.selectionLength = 1;
    type(box, "d");
    EXPECT_EQ(box.text, QStringLiteral("12,"));
    type(box, "6");
    EXPECT_EQ(box.text, QStringLiteral("12,6"));
}

TEST(TemperatureInputTest, TheBoxLeadsTheOthersUnlessAKeyFindsItFull) {
    TemperatureInput box;
    QStringList log;
    box.textChanged = [&] { log << box.text; };
    box.becameSource = [&] { log << QStringLiteral("source"); };
    type(box, "1");
    type(box, "x");
    EXPECT_EQ(log, (QStringList{"source", "1", "source"}));

    type(box, "234");
    log.clear();
    type(box, "5");
    EXPECT_TRUE(log.isEmpty()); // four whole digits
    type(box, ",6");
    log.clear();
    type(box, "7x");
    EXPECT_TRUE(log.isEmpty()); // six characters

    type(box, "*9");
    EXPECT_EQ(log, (QStringList{"", "source", "9"}));
}

TEST(TemperatureInputTest, AHandlerMayEmptyTheBoxInTheMiddleOfAKey) {
    TemperatureInput box;
    type(box, "2,");
    box.textChanged = [&] {
        if (box.text == QLatin1String(",")) box.text.clear();
    };
    box.caret = 0;
    box.selectionLength = 1;
    type(box, "3");
    EXPECT_EQ(box.text, QStringLiteral("3"));

    box.text = QStringLiteral("2,");
    box.caret = 1;
    box.selectionLength = 0;
    type(box, "b3");
    EXPECT_EQ(box.text, QStringLiteral("3"));
    EXPECT_EQ(box.caret, 1);
}

} // namespace
