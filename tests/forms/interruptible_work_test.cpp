// A work in the middle of which windows paint, and the user can do nothing but stop it.
#include <gtest/gtest.h>

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include "platform/forms/interruptible_work.h"

namespace {

class Interruptible : public ::testing::Test {
protected:
    Interruptible() {
        auto *layout = new QHBoxLayout(&window);
        for (QWidget *widget :
             {static_cast<QWidget *>(&box), static_cast<QWidget *>(&stop), static_cast<QWidget *>(&other)})
            layout->addWidget(widget);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        box.setFocus();
    }

    /// The user acts in the middle of the work. What the work hears of it.
    template <class Act>
    bool goesOn(Act act) {
        InterruptibleWork work(window, stop);
        QTimer::singleShot(0, &window, act);
        return work.goOn();
    }

    QWidget window;
    QLineEdit box;
    QPushButton stop{"Stop"};
    QPushButton other{"Other"};
};

} // namespace

TEST_F(Interruptible, KeysWaitForTheEndAndClicksAreGone) {
    QSignalSpy clicked(&other, &QPushButton::clicked);
    QString during = "?";
    EXPECT_TRUE(goesOn([&] {
        QTest::keyClicks(&box, "12");
        QTest::keyClick(window.windowHandle(), Qt::Key_3);
        QTest::mouseClick(&other, Qt::LeftButton);
        during = box.text();
    }));
    EXPECT_EQ(during, "");
    QCoreApplication::processEvents();
    EXPECT_EQ(box.text(), "123");
    EXPECT_EQ(clicked.size(), 0);
    QTest::mouseClick(&other, Qt::LeftButton);
    EXPECT_EQ(clicked.size(), 1);
}

TEST_F(Interruptible, TheButtonAndEscapeStopIt) {
    EXPECT_FALSE(goesOn([&] { QTest::mouseClick(&stop, Qt::LeftButton); }));
    EXPECT_FALSE(goesOn([&] { QTest::keyClick(&box, Qt::Key_Escape); }));
    stop.setFocus();
    EXPECT_FALSE(goesOn([&] { QTest::keyClick(&stop, Qt::Key_Space); }));
    EXPECT_TRUE(goesOn([] {}));
}

TEST_F(Interruptible, ClosingTheWindowStopsItFirst) {
    bool visible = false;
    EXPECT_FALSE(goesOn([&] {
        window.close();
        visible = window.isVisible();
    }));
    EXPECT_TRUE(visible);
    QCoreApplication::processEvents();
    EXPECT_FALSE(window.isVisible());
}

TEST_F(Interruptible, AnotherWindowNeitherClosesNorComesToTheFrontMeanwhile) {
    struct Front : QWidget {
        int activations = 0;
        bool event(QEvent *event) override {
            activations += event->type() == QEvent::WindowActivate ? 1 : 0;
            return QWidget::event(event);
        }
    } behind;
    behind.show();
    window.activateWindow();
    QCoreApplication::processEvents();
    behind.activations = 0;
    int during = -1;
    EXPECT_TRUE(goesOn([&] {
        behind.close();
        QEvent event(QEvent::WindowActivate);
        QApplication::sendEvent(&behind, &event);
        during = behind.activations;
    }));
    EXPECT_TRUE(behind.isVisible());
    EXPECT_EQ(during, 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(behind.activations, 1);
}
