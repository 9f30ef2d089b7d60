// A diagram of dots: what is painted, what keys and mouse reach, what a screen reader is told; and its axes.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include <QHelpEvent>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

#include "platform/forms/axis_scale.h"
#include "platform/forms/scatter_plot.h"
#include "tests/support/pinned_settings.h"

namespace {

constexpr double None = std::numeric_limits<double>::quiet_NaN();

/// Five dots, of which one is no place and two are the same.
class Scatter : public ::testing::Test {
protected:
    Scatter() {
        plot.resize(500, 400);
        plot.setNamer([](int dot) { return QStringLiteral("dot %1").arg(dot); });
        plot.setAxisTitles("across", "up");
        plot.setDots({{1, 50}, {3, 10}, {None, 20}, {2, 30}, {3, 10}});
        plot.setEmphasis({true, true, true, false, false});
        plot.show();
        plot.setFocus();
    }

    QString tipAt(const QPoint &at) {
        QToolTip::showText({}, {});
        QHelpEvent event(QEvent::ToolTip, at, plot.mapToGlobal(at));
        QApplication::sendEvent(&plot, &event);
        return QToolTip::text();
    }
    QRgb colourAt(int dot) { return plot.grab().toImage().pixel(plot.placeOf(dot).toPoint()); }

    ScatterPlot plot;
};

} // namespace

TEST_F(Scatter, KeysGoFromDotToDotByEitherNumber) {
    const auto walk = [this](Qt::Key key, int steps, Qt::KeyboardModifiers held = {}) {
        QList<int> passed;
        for (int i = 0; i < steps; ++i) {
            QTest::keyClick(&plot, key, held);
            passed << plot.current();
        }
        return passed;
    };
    EXPECT_EQ(walk(Qt::Key_Right, 5), (QList<int>{0, 3, 1, 4, 4}));
    EXPECT_EQ(walk(Qt::Key_Up, 3), (QList<int>{3, 0, 0}));
    EXPECT_EQ(walk(Qt::Key_Down, 4), (QList<int>{3, 4, 1, 1}));
    EXPECT_EQ(walk(Qt::Key_Home, 1), (QList<int>{0}));
    EXPECT_EQ(walk(Qt::Key_Right, 2, Qt::ControlModifier), (QList<int>{1, 1}));
    EXPECT_EQ(walk(Qt::Key_End, 1), (QList<int>{4}));
    EXPECT_EQ(walk(Qt::Key_Left, 2, Qt::ControlModifier), (QList<int>{1, 0}));
}

TEST_F(Scatter, EnterAndADoubleClickChoose) {
    QSignalSpy chosen(&plot, &ScatterPlot::chosen);
    QTest::keyClick(&plot, Qt::Key_Return);
    EXPECT_EQ(chosen.size(), 0);
    plot.setCurrent(3);
    QTest::keyClick(&plot, Qt::Key_Return);
    QTest::mouseDClick(&plot, Qt::LeftButton, {}, plot.placeOf(0).toPoint());
    QTest::mouseDClick(&plot, Qt::LeftButton, {}, {plot.width() - 3, 3});
    ASSERT_EQ(chosen.size(), 2);
    EXPECT_EQ(chosen[0][0].toInt(), 3);
    EXPECT_EQ(chosen[1][0].toInt(), 0);
    QTest::mouseClick(&plot, Qt::LeftButton, {}, plot.placeOf(3).toPoint());
    EXPECT_EQ(plot.current(), 3);
}

TEST_F(Scatter, ATipNamesAllThatLieInOnePlace) {
    EXPECT_EQ(tipAt(plot.placeOf(3).toPoint()), "dot 3");
    EXPECT_EQ(tipAt(plot.placeOf(4).toPoint()), "dot 1\ndot 4"); // the one that stands out lies above
    std::vector<QPointF> crowd(20, {1, 1});
    plot.setDots(crowd);
    EXPECT_TRUE(tipAt(plot.placeOf(0).toPoint()).endsWith("\ndot 7\nand 12 more"));
}

TEST_F(Scatter, WhatStandsOutIsPaintedSo) {
    const QRgb out = plot.palette().color(QPalette::Highlight).rgb();
    const QRgb plain = colourAt(3);
    EXPECT_EQ(colourAt(0), out);
    EXPECT_NE(plain, out);
    EXPECT_NE(plain, plot.palette().color(QPalette::Base).rgb());
    plot.setEmphasis({false, false, false, true, false});
    EXPECT_EQ(colourAt(3), out);
    EXPECT_EQ(colourAt(0), plain);
    QPalette dark;
    dark.setColor(QPalette::Base, Qt::black);
    plot.setPalette(dark);
    EXPECT_EQ(plot.grab().toImage().pixel(plot.width() / 2, 4), QColor(Qt::black).rgb());
}

TEST_F(Scatter, AScreenReaderHearsTheDotAndTheWhole) {
    EXPECT_EQ(plot.accessibleDescription(), "up over across. Dots: 5, emphasised: 3.");
    plot.setCurrent(3);
    EXPECT_EQ(plot.accessibleDescription(), "dot 3. up over across. Dots: 5, emphasised: 3.");
    plot.setCurrent(2);
    EXPECT_EQ(plot.current(), -1); // it is nowhere
    plot.setNotice("nothing to draw");
    plot.setDots({});
    EXPECT_EQ(plot.accessibleDescription(), "nothing to draw");
    QTest::keyClick(&plot, Qt::Key_Right);
    plot.grab();
}

TEST(AxisScale, IsRoundAndHoldsAllNumbers) {
    const PinnedSettings settings(u',', u'.');
    struct Case {
        double least;
        double greatest;
        int wanted;
        double first;
        double step;
        int steps;
        const char *label; // of the second tick
    };
    const Case cases[] = {{0, 10, 5, 0, 2, 5, "2"},
                          {132, 360, 5, 100, 50, 6, "150"},
                          {-0.3, 0.25, 4, -0.4, 0.2, 4, "-0,2"},
                          {7, 7, 4, 6.6, 0.2, 4, "6,8"},
                          {0, 0.004, 2, 0, 0.002, 2, "0,002"},
                          {1e6, 1.9e6, 1, 1e6, 1e6, 1, "2000000"}};
    for (const Case &each : cases) {
        const AxisScale scale = AxisScale::of(each.least, each.greatest, each.wanted);
        EXPECT_NEAR(scale.first, each.first, 1e-9) << each.least;
        EXPECT_NEAR(scale.step, each.step, 1e-9) << each.least;
        EXPECT_EQ(scale.steps, each.steps) << each.least;
        EXPECT_EQ(scale.label(1).toStdString(), each.label);
    }
}
