// The keys of the box for the design temperature, typed into a real box.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QTest>

#include "material/TemperatureBox.h"
#include "tests/support/pinned_settings.h"

namespace {

class TypedBox {
public:
    TypedBox() {
        QObject::connect(&m_rules, &TemperatureBox::becameSource,
                         [this] { log << QStringLiteral("source"); });
        QObject::connect(&m_rules, &TemperatureBox::enterPressed, [this] { log << QStringLiteral("enter"); });
        QObject::connect(&box, &QLineEdit::textChanged, [this](const QString &text) { log << text; });
    }

    // Characters, and ^ Home, $ End, < Left, > Right, ( Shift+Left, ) Shift+Right, * select all, b Backspace,
    // d Delete, e Enter.
    void type(const char *keys) {
        for (const char *key = keys; *key; ++key) {
            switch (*key) {
            case '^':
                QTest::keyClick(&box, Qt::Key_Home);
                break;
            case '$':
                QTest::keyClick(&box, Qt::Key_End);
                break;
            case '<':
                QTest::keyClick(&box, Qt::Key_Left);
                break;
            case '>':
                QTest::keyClick(&box, Qt::Key_Right);
                break;
            case '(':
                QTest::keyClick(&box, Qt::Key_Left, Qt::ShiftModifier);
                break;
            case ')':
                QTest::keyClick(&box, Qt::Key_Right, Qt::ShiftModifier);
                break;
            case '*':
                QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
                break;
            case 'b':
                QTest::keyClick(&box, Qt::Key_Backspace);
                break;
            case 'd':
                QTest::keyClick(&box, Qt::Key_Delete);
                break;
            case 'e':
                QTest::keyClick(&box, Qt::Key_Return);
                break;
            default:
                QTest::keyClick(&box, *key);
            }
        }
    }

    void paste(const QString &text) {
        QGuiApplication::clipboard()->setText(text);
        QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    }

    QLineEdit box;
    QStringList log;

private:
    TemperatureBox m_rules{box};
};

TEST(TemperatureBoxTest, KeysGiveTexts) {
    const struct {
        const char *keys, *text;
        int caret;
    } cases[] = {
        {"250", "250", 3},
        {"25000", "2500", 4},     // a fifth whole digit
        {"2500.7", "2500,7", 6},  // a point is a comma
        {"2500,75", "2500,7", 6}, // seven characters
        {"12,55", "12,5", 4},     // a second decimal digit
        {"-12,5", "-12,5", 5},
        {"-1234", "-123", 4}, // the sign counts
        {"-123,4", "-123,4", 6},
        {"1-2", "12", 2},
        {"--1", "-1", 2},
        {",5", "5", 1},
        {"-,5", "-5", 2},
        {"1,,2", "1,2", 3},
        {"12,5<<<9", "192,5", 2}, // whole digits may still come in front
        {"12,5<9", "12,5", 3},    // none between the comma and its digit
        {"123<,", "12,3", 3},     // the digit behind becomes the decimal digit
        {"123<,$4", "12,3", 4},
        {"123<<,", "123", 1},   // two would stand behind the comma
        {"12,^3$5", "312,", 4}, // a digit anywhere counts as the decimal one
        {"12a c/", "12", 2},
        {"12,5b6", "12,6", 4},
        {"12,5bb", "12", 2},
        {"12,5bb,7", "12,7", 4},
        {"12,5<b", "12", 2}, // the comma takes its digit along
        {"12,5<b,4", "12,4", 4},
        {"12,5<<d", "12", 2},
        {"12,5<d6", "12,6", 4},
        {"12,5<<<d", "1,5", 1},
        {"12,<d", "12", 2},
        {"12,<d5", "125", 3},
        {"b", "", 0},
        {"d", "", 0},
    };
    for (const auto &item : cases) {
        TypedBox typed;
        typed.type(item.keys);
        EXPECT_EQ(typed.box.text().toStdString(), item.text) << item.keys;
        EXPECT_EQ(typed.box.cursorPosition(), item.caret) << item.keys;
    }
}

TEST(TemperatureBoxTest, ASelectionGoesWithEveryKey) {
    const struct {
        const char *keys, *text;
    } cases[] = {
        {"12,5*7", "7"},
        {"12,5*7,8", "7,8"},
        {"12,5*x", ""}, // refused, and the selection is gone
        {"12,5*e", ""}, // Enter too
        {"12,5*b", ""},
        {"12,5*d7,8", "7,8"},
        {"250((b", "2"},
        {"12,5(d6", "12,6"},
        {"12,5(b", "12"}, // with its digit the comma goes too
        {"12,5<(d", "12"},
        {"2500,7(((9", "2509"},
        {"25,^)7", "75,"},
        // another is still let in
        {"25,^))7$,", "7,,"}, // the comma behind the selection is forgotten
    };
    for (const auto &item : cases) {
        TypedBox typed;
        typed.type(item.keys);
        EXPECT_EQ(typed.box.text().toStdString(), item.text) << item.keys;
        EXPECT_FALSE(typed.box.hasSelectedText()) << item.keys;
    }
}

TEST(TemperatureBoxTest, TheBoxLeadsTheOthersUnlessAKeyFindsItFull) {
    const struct {
        const char *before, *keys;
        QStringList log;
    } cases[] = {
        {"", "1", {"source", "1"}},
        {"1", "x", {"source"}},
        {"1", "b", {"source", ""}},
        {"1", "e", {"enter", "source"}},
        {"1234", "5", {}},    // four whole digits
        {"1234,6", "7x", {}}, // six characters
        {"12", "<d", {"1"}},  // Delete types nothing
        {"12", "*9", {"", "source", "9"}},
        {"12,5", "<b", {"12,", "source", "12"}},
    };
    for (const auto &item : cases) {
        TypedBox typed;
        typed.type(item.before);
        typed.log.clear();
        typed.type(item.keys);
        EXPECT_EQ(typed.log, item.log) << item.before << ' ' << item.keys;
    }
}

TEST(TemperatureBoxTest, APasteIsFreeAndLeadsTheOthers) {
    TypedBox typed;
    typed.paste(QStringLiteral(" 212.55 \n"));
    EXPECT_EQ(typed.box.text(), QStringLiteral("212,55"));
    EXPECT_EQ(typed.log.value(0), QStringLiteral("source"));
    typed.type("*1,5");
    QTest::keyClick(&typed.box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&typed.box, Qt::Key_X, Qt::ControlModifier);
    typed.type("37,5");
    EXPECT_EQ(typed.box.text(), QStringLiteral("37,5"));
    QTest::keyClick(&typed.box, Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_EQ(typed.box.text(), QStringLiteral("37,5"));
}

// x cuts the selection.
TEST(TemperatureBoxTest, TheRulesGoOnFromWhatWasPastedOrCut) {
    const struct {
        const char *pasted, *keys, *text;
    } cases[] = {
        {"12.5", ",", "12,5"},                              // a second decimal sign
        {"12.5", "7", "12,5"},                              // a second decimal digit
        {"12.", "75", "12,7"},                              // the one that there is room for
        {"12", ",5", "12,5"},      {"12,5", "(x6", "12,6"}, // the digit was cut
        {"12,5", "((x34", "1234"},                          // and the sign with it
        {"12,55", "b6", "12,5"},   {"12,55", "bb6", "12,6"},   {"12,55", "<b6", "12,5"},
        {"12,55", "^d3", "32,55"}, {"1,55", "bbb2,3", "12,3"},
    };
    for (const auto &item : cases) {
        TypedBox typed;
        typed.type("7,5*");
        typed.paste(item.pasted);
        const QString keys = item.keys;
        typed.type(keys.section('x', 0, 0).toLatin1().constData());
        if (keys.contains('x')) QTest::keyClick(&typed.box, Qt::Key_X, Qt::ControlModifier);
        typed.type(keys.section('x', 1).toLatin1().constData());
        EXPECT_EQ(typed.box.text().toStdString(), item.text) << item.pasted << ' ' << item.keys;
    }
}

TEST(TemperatureBoxTest, APastedPointStaysWhereOnlyItConverts) {
    const PinnedSettings settings(u'.', u'\'');
    TypedBox typed;
    typed.paste(QStringLiteral("212.5"));
    EXPECT_EQ(typed.box.text(), QStringLiteral("212.5"));
}

TEST(TemperatureBoxTest, TheMouseSelectsAllAndTheMenuLeads) {
    TypedBox typed;
    typed.box.resize(200, 30);
    typed.box.show();
    typed.type("250");
    typed.log.clear();
    QTest::mouseDClick(&typed.box, Qt::LeftButton, {}, QPoint(10, 15));
    EXPECT_EQ(typed.box.selectedText(), QStringLiteral("250"));
    typed.type("$((");
    QTest::mouseRelease(&typed.box, Qt::LeftButton, {}, QPoint(190, 15));
    EXPECT_EQ(typed.box.selectedText(), QStringLiteral("250"));
    typed.type("$");
    QTest::mouseClick(&typed.box, Qt::LeftButton, {}, QPoint(190, 15));
    EXPECT_FALSE(typed.box.hasSelectedText());
    EXPECT_TRUE(typed.log.isEmpty());
    QTest::mousePress(&typed.box, Qt::RightButton, {}, QPoint(10, 15));
    EXPECT_EQ(typed.log, QStringList("source"));
}

TEST(TemperatureBoxTest, AHandlerMayEmptyTheBoxInTheMiddleOfAKey) {
    TypedBox typed;
    QObject::connect(&typed.box, &QLineEdit::textChanged, &typed.box, [&typed](const QString &text) {
        if (text == QLatin1String(",")) typed.box.clear();
    });
    typed.type("2,^)3");
    EXPECT_EQ(typed.box.text(), QStringLiteral("3"));
    typed.type("*2,<b3");
    EXPECT_EQ(typed.box.text(), QStringLiteral("3"));
    EXPECT_EQ(typed.box.cursorPosition(), 1);
}

} // namespace
