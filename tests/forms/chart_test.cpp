// The chart control: its properties, what it takes for a point, and its drawing on screen and on paper.
#include <gtest/gtest.h>

#include <set>

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QProcess>
#include <QTemporaryDir>

#include "platform/forms/ms_chart.h"
#include "platform/runtime/runtime_error.h"
#include "tests/support/pinned_settings.h"

namespace {

using Rows = std::vector<std::vector<QVariant>>;

XArrayDB cells(const Rows &rows) {
    XArrayDB array;
    array.ReDim(1, int(rows.size()), 0, int(rows.front().size()) - 1);
    for (std::size_t row = 0; row < rows.size(); ++row) {
        for (std::size_t column = 0; column < rows[row].size(); ++column) {
            array.Set(int(row) + 1, int(column), rows[row][column]);
        }
    }
    return array;
}

/// Two curves with three points each, the second one with a gap, and a legend.
void fillTwoCurves(MSChart &chart) {
    chart.setChartData(cells({{20, "200,5", 20, "180"}, {100, "190", 100, ""}, {200, "160", 200, "140"}}));
    chart.setTitleText("Strength");
    chart.setAxisTitle(0, QString::fromUtf8("Temperature [°C]"));
    chart.setAxisTitle(1, "[MPa]");
    chart.setShowLegend(true);
    chart.setColumn(1);
    chart.setColumnLabel("thin");
    chart.setColumn(3);
    chart.setColumnLabel("thick");
}

int numberOf(QColor colour, const QImage &image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == colour;
    }
    return count;
}

/// The text of the chart printed to a PDF page; the page is kept at `file`.
QString printedText(const MSChart &chart, const QString &file) {
    QPdfWriter writer(file);
    writer.setResolution(600);
    QPainter painter(&writer);
    chart.picture({640, 400}).paint(&painter, QRectF(0, 0, writer.width(), writer.height()));
    painter.end();
    QProcess reader;
    reader.start("pdftotext", {"-layout", file, "-"});
    EXPECT_TRUE(reader.waitForFinished()) << "pdftotext is missing";
    return QString::fromUtf8(reader.readAllStandardOutput());
}

class ChartTest : public ::testing::Test {
protected:
    QTemporaryDir m_folder;

private:
    PinnedSettings m_settings{u',', u'.'};
};

} // namespace

TEST_F(ChartTest, TakesNumbersAndNumberTextsForPointsAndLeavesOthersOut) {
    const Rows rows = {
        {20, "200,5"},   {100, ""},    {150, "-"},     {QVariant(), "3"},
        {"200", 160.25}, {300, "abc"}, {250, "1e400"}, {50, "7"},
    };
    const std::vector<ChartSeries> series = seriesFromPairs(cells(rows), 2);
    ASSERT_EQ(series.size(), 1u);
    const std::vector<QPointF> expected = {{20, 200.5}, {200, 160.25}, {50, 7}};
    EXPECT_EQ(series[0].points, expected);
}

TEST_F(ChartTest, ReadsColumnsInPairsUpToTheColumnCount) {
    const XArrayDB array = cells({{1, 10, 1, 11, 1}, {2, 20, 2, 21, 2}});
    EXPECT_EQ(seriesFromPairs(array, 5).size(), 2u);
    EXPECT_EQ(seriesFromPairs(array, 2).size(), 1u);
    EXPECT_EQ(seriesFromPairs(array, 9).size(), 2u);
    EXPECT_EQ(seriesFromPairs(array, 5)[1].points[1], QPointF(2, 21));
    EXPECT_TRUE(seriesFromPairs(XArrayDB(), 4).empty());
}

TEST_F(ChartTest, AChartCopiedPropertyByPropertyLooksTheSame) {
    MSChart chart;
    fillTwoCurves(chart);
    MSChart copy;
    copy.setChartType(chart.chartType());
    copy.setChartData(chart.ChartData());
    copy.setTitleText(chart.TitleText());
    for (int axis : {0, 1})
        copy.setAxisTitle(axis, chart.AxisTitle(axis));
    copy.setUniformAxis(chart.UniformAxis());
    copy.setShowLegend(chart.ShowLegend());
    copy.setColumnCount(chart.ColumnCount());
    for (int column = 1; column <= chart.ColumnCount(); ++column) {
        chart.setColumn(column);
        copy.setColumn(column);
        copy.setColumnLabel(chart.ColumnLabel());
    }
    EXPECT_EQ(copy.ColumnLabel(), "C4");
    for (MSChart *each : {&chart, &copy})
        each->resize(500, 320);
    EXPECT_EQ(copy.grab().toImage(), chart.grab().toImage());

    copy.setColumn(3);
    copy.setColumnLabel("other");
    EXPECT_NE(copy.grab().toImage(), chart.grab().toImage());
}

TEST_F(ChartTest, RefusesWhatThereIsNot) {
    MSChart chart;
    EXPECT_THROW(chart.ColumnLabel(), RuntimeError);
    EXPECT_THROW(chart.AxisTitle(2), RuntimeError);
    EXPECT_THROW(chart.setChartType(1), RuntimeError);
    chart.setChartData(cells({{1, 2}}));
    EXPECT_THROW(chart.setColumn(3), RuntimeError);
    chart.setColumn(2);
    chart.setColumnCount(1);
    EXPECT_THROW(chart.setColumnLabel("lost"), RuntimeError);
}

TEST_F(ChartTest, SaysItsNameAndCurvesToAScreenReader) {
    MSChart chart;
    EXPECT_EQ(chart.accessibleName(), "Chart");
    fillTwoCurves(chart);
    EXPECT_EQ(chart.accessibleName(), "Chart: Strength");
    EXPECT_EQ(chart.accessibleDescription(),
              QString::fromUtf8("[MPa] over Temperature [°C]. Curves: thin, thick"));
    chart.setAxisTitle(1, {}); // as where the curves are bands of one property
    EXPECT_EQ(chart.accessibleDescription(),
              QString::fromUtf8("Strength over Temperature [°C]. Curves: thin, thick"));
    chart.setAxisTitle(0, {});
    EXPECT_EQ(chart.accessibleDescription(), "Strength. Curves: thin, thick");
}

TEST_F(ChartTest, ItsSmallestSizeHoldsEveryEntryOfTheLegend) {
    MSChart chart;
    fillTwoCurves(chart);
    const QSize few = chart.smallestSize();
    XArrayDB many;
    many.ReDim(1, 1, 0, 59);
    chart.setChartData(many);
    for (int curve = 0; curve < 30; ++curve) {
        chart.setColumn(2 * curve + 1);
        chart.setColumnLabel(QStringLiteral("(%1) - %2mm").arg(curve).arg(curve + 1));
    }
    EXPECT_GE(chart.smallestSize().height(), few.height() + 80);
    chart.setColumnLabel(QString(100, 'w'));
    EXPECT_GT(chart.smallestSize().width(), 700);
    chart.setShowLegend(false);
    EXPECT_LE(chart.smallestSize().height(), few.height());
}

TEST_F(ChartTest, PrintsAsLinesAndTextsWithoutAnyRasterImage) {
    MSChart chart;
    fillTwoCurves(chart);
    const QString file = m_folder.filePath("chart.pdf");
    const QString text = printedText(chart, file);
    for (const char *part : {"Strength", "Temperature [°C]", "thin", "thick", "200"}) {
        EXPECT_TRUE(text.contains(QString::fromUtf8(part))) << part << " is not in\n" << text.toStdString();
    }
    QFile pdf(file);
    ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
    EXPECT_FALSE(pdf.readAll().contains("/Subtype /Image"));
}

TEST_F(ChartTest, WritesRoundNumbersWithTheDecimalSignOfTheSystem) {
    MSChart chart;
    chart.setChartData(cells({{0.5, 7.85}, {2.0, 7.95}}));
    EXPECT_TRUE(printedText(chart, m_folder.filePath("comma.pdf")).contains("7,90"));
    const PinnedSettings point(u'.', u',');
    const QString text = printedText(chart, m_folder.filePath("point.pdf"));
    EXPECT_TRUE(text.contains("7.90")) << text.toStdString();
    EXPECT_FALSE(text.contains(','));
}

TEST_F(ChartTest, DrawsWithoutPointsWithOneAndWithEqualOnes) {
    struct Case {
        const char *what;
        Rows rows;
        QString expectedTick;
    };
    const std::vector<Case> cases = {
        {"one point", {{20, "210"}}, "210"},
        {"equal values", {{20, 5}, {100, 5}, {200, 5}}, "5,0"},
        {"equal temperatures", {{20, 5}, {20, 7}}, "20"},
        {"zero", {{0, 0}}, "0,0"},
        {"large values", {{1, "2000000"}, {2, "3000000"}}, "2500000"},
        {"values close together", {{1, 0.0002}, {2, "0,00020001"}}, "0,000200004"},
    };
    for (const Case &each : cases) {
        MSChart chart;
        chart.setChartData(cells(each.rows));
        const QString text = printedText(chart, m_folder.filePath("case.pdf"));
        EXPECT_TRUE(text.contains(each.expectedTick)) << each.what << ": " << text.toStdString();
    }

    MSChart empty;
    empty.setChartData(cells({{20, ""}, {100, QVariant()}}));
    empty.setShowLegend(true);
    const QString text = printedText(empty, m_folder.filePath("empty.pdf"));
    EXPECT_FALSE(text.contains("0")) << "numbers on the axes of an empty chart: " << text.toStdString();
}

TEST_F(ChartTest, TheLegendStandsBelowThePlot) {
    MSChart chart;
    fillTwoCurves(chart);
    chart.setAxisTitle(0, QString());
    chart.setTitleText(QString());
    chart.resize(500, 320);
    const QColor firstCurve(0x00, 0x55, 0xa5);
    const QImage image = chart.grab().toImage();
    const int legendTop = image.height() - 30;
    EXPECT_GT(numberOf(firstCurve, image.copy(0, legendTop, image.width(), 30)), 20);
    chart.setShowLegend(false);
    EXPECT_EQ(numberOf(firstCurve, chart.grab().toImage().copy(0, legendTop, image.width(), 30)), 0);
}

TEST_F(ChartTest, KeepsLightGroundAndSurvivesAnySize) {
    MSChart chart;
    fillTwoCurves(chart);
    QPalette dark;
    dark.setColor(QPalette::Window, Qt::black);
    dark.setColor(QPalette::Base, Qt::black);
    chart.setPalette(dark);
    for (const QSize size : {QSize(480, 300), QSize(60, 20), QSize(1, 1), QSize(1600, 900)}) {
        chart.resize(size);
        EXPECT_EQ(chart.grab().toImage().pixelColor(0, 0), QColor(Qt::white)) << size.width();
    }
    EXPECT_TRUE(chart.picture({0, 0}).size().isEmpty());
}

TEST_F(ChartTest, AMarkIsAnUprightLineThatTheAxisReaches) {
    MSChart chart;
    fillTwoCurves(chart);
    chart.resize(600, 400);
    const QImage without = chart.grab().toImage();
    chart.setMark(150, "150 K");
    const QImage within = chart.grab().toImage();
    QRect changed;
    for (int y = 0; y < within.height(); ++y)
        for (int x = 0; x < within.width(); ++x)
            if (within.pixel(x, y) != without.pixel(x, y)) changed |= QRect(x, y, 1, 1);
    EXPECT_GT(changed.height(), 200) << "from the top of the plot to its bottom";
    EXPECT_LT(changed.width(), 70) << "with its label beside it";
    EXPECT_EQ(chart.accessibleDescription().section(". ", -1), "Line at 150 K");

    chart.setMark(900, "900 K");
    const QString text = printedText(chart, m_folder.filePath("mark.pdf"));
    for (const char *part : {"900 K", "800"})
        EXPECT_TRUE(text.contains(part)) << text.toStdString();
    chart.setMark(std::nullopt);
    EXPECT_EQ(chart.grab().toImage(), without);

    MSChart empty;
    empty.setChartData(cells({{20, ""}}));
    empty.setMark(150, "150 K");
    EXPECT_FALSE(printedText(empty, m_folder.filePath("empty.pdf")).contains("150"));
}

TEST_F(ChartTest, TenCurvesAreAllDrawnInTheirOwnWay) {
    std::set<QRgb> colours;
    for (int curve = 0; curve < 10; ++curve) {
        XArrayDB one;
        one.ReDim(1, 2, 0, 19);
        for (const int row : {1, 2}) {
            one.Set(row, 2 * curve, 100 * row);
            one.Set(row, 2 * curve + 1, 5);
        }
        MSChart chart;
        chart.setChartData(one);
        chart.resize(300, 300);
        const QImage image = chart.grab().toImage();
        QHash<QRgb, int> count;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (QColor(image.pixel(x, y)).saturation() > 100 || curve == 7) ++count[image.pixel(x, y)];
        for (const QRgb plain : {qRgb(255, 255, 255), qRgb(0x20, 0x20, 0x20), qRgb(0xd4, 0xd8, 0xdc)})
            count.remove(plain);
        QRgb most = 0;
        for (auto each = count.begin(); each != count.end(); ++each)
            if (each.value() > count.value(most)) most = each.key();
        colours.insert(most);
    }
    EXPECT_EQ(colours.size(), 10u);
}

TEST_F(ChartTest, UniformAxesGiveAUnitTheSameLength) {
    MSChart chart;
    chart.setChartData(cells({{0, 0}, {100, 0}, {100, 100}, {0, 100}, {0, 0}}));
    chart.setUniformAxis(true);
    chart.resize(700, 300);
    const QImage image = chart.grab().toImage();
    const QColor curve(0x00, 0x55, 0xa5);
    QRect drawn;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == curve) drawn |= QRect(x, y, 1, 1);
        }
    }
    EXPECT_NEAR(drawn.width(), drawn.height(), 4);
    EXPECT_GT(drawn.height(), 150);
}
