// Placing, colouring and filtering of controls.
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QTest>
#include <QWheelEvent>

#include "platform/forms/colours.h"
#include "platform/forms/control_array.h"
#include "platform/forms/image_box.h"
#include "platform/forms/key_hooks.h"
#include "platform/forms/screen.h"
#include "platform/forms/send_keys.h"

namespace {

TEST(Placement, TwipsComeBack) {
    QLabel label;
    place(&label, 120, 480, 1800, 285);
    EXPECT_EQ(placeOf(&label), QRect(120, 480, 1800, 285));
    moveTo(&label, -150, 15);
    EXPECT_EQ(placeOf(&label), QRect(-150, 15, 1800, 285));
}

TEST(ControlArrays, ElementsCarryTheirIndex) {
    QWidget window;
    ControlArray<QLineEdit> txtSearch("txtSearch");
    txtSearch.add(6, new QLineEdit(&window), "Product Form");
    txtSearch.add(0, new QLineEdit(&window), "Standard");
    EXPECT_EQ(txtSearch(6)->objectName(), "txtSearch(6)");
    EXPECT_EQ(txtSearch(6)->accessibleName(), "Product Form");
    QList<int> order;
    for (const auto &[index, box] : txtSearch)
        order.append(index);
    EXPECT_EQ(order, QList<int>({0, 6}));
    EXPECT_THROW(txtSearch(1), RuntimeError);
}

TEST(Colours, NumbersAreBlueGreenRed) {
    EXPECT_EQ(toQColor(11074466), QColor(162, 251, 168));
    EXPECT_EQ(toQColor(16697253), QColor(165, 199, 254));
    EXPECT_EQ(vbInfoBackground, -2147483624);
    EXPECT_EQ(toQColor(-2147483624), QApplication::palette().color(QPalette::ToolTipBase));
    EXPECT_EQ(toQColor(vbButtonFace), QApplication::palette().color(QPalette::Window));
}

TEST(Colours, TextCanBeReadOnEveryBackInLightAndDark) {
    const QPalette before = QApplication::palette();
    QPalette dark(QColor(40, 40, 40), QColor(30, 30, 30));
    dark.setColor(QPalette::ToolTipBase, QColor(60, 60, 60));
    dark.setColor(QPalette::ToolTipText, Qt::white);
    for (const QPalette &palette : {before, dark}) {
        QApplication::setPalette(palette);
        for (const int colour : {vbWhite, 0, 11074466, 16697253, vbInfoBackground, vbApplicationWorkspace,
                                 vbButtonFace, vbWindowBackground}) {
            QLineEdit box;
            setBackColor(&box, colour);
            const QColor back = box.palette().color(QPalette::Base),
                         text = box.palette().color(QPalette::Text);
            EXPECT_EQ(back, toQColor(colour));
            EXPECT_GT(std::abs(qGray(back.rgb()) - qGray(text.rgb())), 100) << colour;
        }
    }
    QApplication::setPalette(before);
}

TEST(KeyHooks, TypedCharactersAreRefusedOrReplacedAndAPasteIsNot) {
    QLineEdit box;
    QList<int> keys;
    onKeyPress(&box, [&](int &key) {
        keys.append(key);
        if (key == '\'' || key == '[') key = 0;
        if (key == ',') key = '.';
    });
    QTest::keyClicks(&box, "1,5'[x");
    EXPECT_EQ(box.text(), "1.5x");
    QTest::keyClick(&box, Qt::Key_Backspace);
    QTest::keyClick(&box, Qt::Key_Return);
    QTest::keyClick(&box, Qt::Key_Left);
    EXPECT_EQ(keys.mid(6), QList<int>({vbKeyBack, vbKeyReturn}));
    box.clear();
    QInputMethodEvent composed;
    composed.setCommitString("a'b,");
    QCoreApplication::sendEvent(&box, &composed);
    EXPECT_EQ(box.text(), "ab.") << "a dead key is no way around";
    QApplication::clipboard()->setText("2,5'");
    box.clear();
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.text(), "2,5'");
}

TEST(KeyHooks, KeyDownComesFirstAndMayKeepTheKey) {
    QLineEdit box;
    QStringList order;
    onKeyPress(&box, [&](int &key) { order.append(QStringLiteral("press %1").arg(key)); });
    onKeyDown(&box, [&](QKeyEvent &event) {
        order.append("down");
        return event.key() == Qt::Key_B;
    });
    QTest::keyClicks(&box, "ab");
    EXPECT_EQ(box.text(), "a");
    EXPECT_EQ(order, QStringList({"down", "press 97", "down"}));
}

TEST(Wheel, TurnsAListOrANumberOnlyWhereItHasTheFocus) {
    QWidget page;
    auto *box = new QLineEdit(&page);
    auto *list = new QComboBox(&page);
    auto *number = new QSpinBox(&page);
    list->addItems({"EN", "SS", "ASME"});
    list->move(0, 100);
    number->move(0, 200);
    page.show();
    page.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&page));
    const auto turn = [](QWidget *over) {
        const QPointF place = QRectF(over->rect()).center();
        QWheelEvent event(place, over->mapToGlobal(place), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(over, &event);
        return event.isAccepted();
    };
    box->setFocus();
    for (QWidget *control : {static_cast<QWidget *>(list), static_cast<QWidget *>(number)}) {
        EXPECT_EQ(control->focusPolicy(), Qt::StrongFocus) << "the wheel does not fetch the focus";
        EXPECT_FALSE(turn(control)) << "it is left to the page";
    }
    EXPECT_EQ(list->currentText(), "EN");
    EXPECT_EQ(number->value(), 0);
    list->setFocus();
    EXPECT_TRUE(turn(list));
    EXPECT_EQ(list->currentText(), "SS");
}

TEST(Pictures, FillTheirBoxAndTakeClicks) {
    ImageBox box;
    box.setPicture(QStringLiteral(SOURCE_FOLDER) + "/tests/forms/square.svg");
    box.resize(60, 40);
    EXPECT_EQ(box.grab().toImage().pixelColor(30, 20), QColor(255, 0, 0));
    EXPECT_THROW(box.setPicture("nowhere.svg"), RuntimeError);
    int clicks = 0;
    QObject::connect(&box, &ImageBox::Click, [&] { ++clicks; });
    QTest::mouseClick(&box, Qt::LeftButton);
    QTest::mouseClick(&box, Qt::RightButton);
    EXPECT_EQ(clicks, 1);
}

TEST(Screens, WidthIsInTwips) {
    Screen::setSizeForTest({1024, 768});
    EXPECT_EQ(Screen::Width(), 15360);
    EXPECT_EQ(Screen::Width() / Screen::TwipsPerPixelX(), 1024);
    Screen::setSizeForTest({});
}

TEST(SentKeys, ArriveInOrderAtTheFocus) {
    QLineEdit box;
    box.show();
    box.activateWindow();
    box.setFocus();
    QCoreApplication::processEvents();
    SendKeys("abc{LEFT}{BS}");
    EXPECT_EQ(box.text(), "") << "only when the program is back in its loop";
    QCoreApplication::processEvents();
    EXPECT_EQ(box.text(), "ac");
    EXPECT_THROW(SendKeys("{NOSUCH}"), RuntimeError);
}

} // namespace
