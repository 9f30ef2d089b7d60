#include "platform/forms/chart_drawing.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include <QObject>

// The library's header needs two of the keywords that this project switches off.
#define signals Q_SIGNALS
#define foreach Q_FOREACH
#include <qcustomplot.h>
#undef foreach
#undef signals

#include "platform/runtime/conversions.h"
#include "platform/runtime/regional_settings.h"
#include "platform/runtime/runtime_error.h"
#include "platform/runtime/x_array_db.h"

namespace {

constexpr int LegendIconWidth = 30;
constexpr int LegendTextGap = 5;
constexpr int LegendColumnGap = 14;
constexpr int SmallestFont = 8;
constexpr int SmallestWidth = 400;
constexpr int SmallestPlotHeight = 140;

const QColor Ink(0x20, 0x20, 0x20);
const QColor GridLine(0xd4, 0xd8, 0xdc);

std::optional<double> cellNumber(const QVariant &cell) {
    if (IsNull(cell)) return std::nullopt;
    try {
        const double number = CDbl(cell);
        if (std::isfinite(number)) return number;
    } catch (const RuntimeError &) {
        // A cell that is no number is an empty point.
    }
    return std::nullopt;
}

QFont chartFont(int pixelSize, bool bold = false) {
    QFont font(QStringList{QStringLiteral("Arial"), QStringLiteral("Liberation Sans")});
    font.setPixelSize(pixelSize);
    font.setBold(bold);
    return font;
}

/// The font, made smaller until the text is no longer than `length` pixels.
QFont fittedFont(QFont font, const QString &text, int length) {
    while (font.pixelSize() > SmallestFont && QFontMetrics(font).horizontalAdvance(text) > length) {
        font.setPixelSize(font.pixelSize() - 1);
    }
    return font;
}

QString withoutBreaks(QString text) {
    return text.replace(QLatin1String("\r\n"), QLatin1String(" "))
        .replace(QLatin1Char('\n'), QLatin1Char(' '));
}

/// Round numbers, all with the decimals that their step needs, in the notation of the regional settings.
class RegionalTicker : public QCPAxisTicker {
protected:
    double getTickStep(const QCPRange &range) override {
        const double step = QCPAxisTicker::getTickStep(range);
        const auto isWhole = [](double number) {
            return number > 0.5 && std::abs(number - std::round(number)) < 1e-6 * number;
        };
        double scaled = step;
        for (m_decimals = 0; m_decimals < 10 && !isWhole(scaled); ++m_decimals)
            scaled *= 10;
        m_usesExponent = step >= 1e7 || !isWhole(scaled);
        m_zero = step * 1e-6;
        return step;
    }

    QString getTickLabel(double tick, const QLocale &, QChar, int) override {
        const double value = std::abs(tick) < m_zero ? 0.0 : tick;
        QString text =
            m_usesExponent ? QString::number(value, 'g', 12) : QString::number(value, 'f', m_decimals);
        return text.replace(QLatin1Char('.'), RegionalSettings::current().decimalSign);
    }

private:
    int m_decimals = 0;
    double m_zero = 0;
    bool m_usesExponent = false;
};

/// Colour, dash and marker of a curve. Each of the three tells the curves apart without the other two, for a
/// grey printer and for eyes that do not see every colour.
struct CurveStyle {
    QColor colour;
    QVector<qreal> dashes;
    QCPScatterStyle::ScatterShape marker;
    bool filled;
};

CurveStyle curveStyle(std::size_t index) {
    static const std::vector<CurveStyle> styles = {
        {QColor(0x00, 0x55, 0xa5), {}, QCPScatterStyle::ssDisc, true},
        {QColor(0xc0, 0x3a, 0x00), {7, 3}, QCPScatterStyle::ssSquare, true},
        {QColor(0x0a, 0x7d, 0x4d), {2, 2.5}, QCPScatterStyle::ssTriangle, true},
        {QColor(0x7b, 0x2d, 0x9b), {7, 2.5, 2, 2.5}, QCPScatterStyle::ssDiamond, true},
        {QColor(0x8a, 0x5a, 0x00), {12, 3}, QCPScatterStyle::ssCircle, false},
        {QColor(0xb8, 0x10, 0x58), {4, 2}, QCPScatterStyle::ssTriangleInverted, true},
        {QColor(0x00, 0x78, 0x88), {10, 2.5, 2, 2.5, 2, 2.5}, QCPScatterStyle::ssSquare, false},
        {QColor(0x48, 0x48, 0x48), {1.5, 1.5}, QCPScatterStyle::ssTriangle, false},
        {QColor(0x4f, 0x6b, 0x00), {12, 3, 2, 3}, QCPScatterStyle::ssPlus, false},
        {QColor(0x9c, 0x1c, 0x1c), {5, 5}, QCPScatterStyle::ssCross, false},
    };
    return styles[index % styles.size()];
}

/// The range of the values and a margin that keeps the markers off the frame. Equal values get a range around
/// them, no values 0 to 1.
QCPRange rangeAround(const std::vector<double> &values) {
    if (values.empty()) return {0, 1};
    const auto [least, most] = std::minmax_element(values.begin(), values.end());
    const double span = *most - *least;
    const double size = std::max(std::abs(*least), std::abs(*most));
    // Below this span the numbers at the ticks could no longer be told apart.
    const bool equal = span <= size * 1e-9;
    const double margin = equal ? (size > 0 ? size * 0.1 : 1.0) : span * 0.05;
    return {*least - margin, *most + margin};
}

int legendEntryWidth(const ChartContent &content) {
    if (!content.showLegend) return 0;
    const QFontMetrics metrics(chartFont(11));
    int width = 0;
    for (const ChartSeries &series : content.series) {
        const int text = metrics.horizontalAdvance(withoutBreaks(series.label));
        width = std::max(width, LegendIconWidth + LegendTextGap + text + LegendColumnGap);
    }
    return width;
}

class ChartDrawing {
public:
    ChartDrawing(const ChartContent &content, QSize size)
        : m_content(content)
        , m_size(size) {
        m_plot.setBackground(QBrush(Qt::white));
        m_plot.setViewport(QRect(QPoint(0, 0), size));
        m_plot.axisRect()->setMinimumMargins(QMargins(12, 6, 16, 6));
        addCurves();
        addMark();
        layOutAxis(m_plot.xAxis, m_plot.xAxis2, m_content.axisTitle[0], m_size.width(), 80);
        layOutAxis(m_plot.yAxis, m_plot.yAxis2, m_content.axisTitle[1], m_size.height(), 40);
        layOutLegend();
        layOutTitle();
    }

    ChartPicture draw(ChartMedium medium) {
        // The labels take their room from the plot, so the second pass sees what the first one changed.
        for (int pass = 0; m_content.uniformAxis && pass < 2; ++pass)
            equaliseUnits();
        QPicture drawing;
        QCPPainter painter(&drawing);
        painter.setMode(QCPPainter::pmNoCaching);
        painter.setMode(QCPPainter::pmVectorized, medium == ChartMedium::Paper);
        painter.setMode(QCPPainter::pmNonCosmetic, medium == ChartMedium::Paper);
        m_plot.toPainter(&painter, m_size.width(), m_size.height());
        painter.end();
        return {drawing, m_size};
    }

    int plotHeight() {
        m_plot.replot(QCustomPlot::rpQueuedRefresh);
        return m_plot.axisRect()->height();
    }

private:
    void addCurves();
    void addMark();
    void layOutAxis(QCPAxis *axis, QCPAxis *opposite, const QString &title, int length, int tickDistance);
    void layOutLegend();
    void layOutTitle();
    void equaliseUnits();

    const ChartContent &m_content;
    QSize m_size;
    QCustomPlot m_plot;
    bool m_hasPoints = false;
};

void ChartDrawing::addCurves() {
    std::vector<double> allX;
    std::vector<double> allY;
    for (std::size_t i = 0; i < m_content.series.size(); ++i) {
        const CurveStyle style = curveStyle(i);
        QVector<double> x;
        QVector<double> y;
        for (const QPointF &point : m_content.series[i].points) {
            x.append(point.x());
            y.append(point.y());
        }
        allX.insert(allX.end(), x.begin(), x.end());
        allY.insert(allY.end(), y.begin(), y.end());

        // A curve keeps the order of its points; a graph would sort them by X.
        auto *curve = new QCPCurve(m_plot.xAxis, m_plot.yAxis);
        curve->setData(x, y);
        curve->setName(withoutBreaks(m_content.series[i].label));
        QPen pen(style.colour, 1.6, style.dashes.isEmpty() ? Qt::SolidLine : Qt::CustomDashLine, Qt::FlatCap);
        if (!style.dashes.isEmpty()) pen.setDashPattern(style.dashes);
        curve->setPen(pen);
        curve->setScatterStyle(QCPScatterStyle(style.marker, QPen(style.colour, 1.4),
                                               style.filled ? QBrush(style.colour) : QBrush(Qt::white), 7));
    }
    m_hasPoints = !allX.empty();
    if (m_hasPoints && m_content.mark) allX.push_back(m_content.mark->x);
    m_plot.xAxis->setRange(rangeAround(allX));
    m_plot.yAxis->setRange(rangeAround(allY));
}

void ChartDrawing::addMark() {
    if (!m_hasPoints || !m_content.mark) return;
    const double x = m_content.mark->x;
    auto *line = new QCPItemLine(&m_plot);
    line->setPen(QPen(Ink, 1, Qt::DashLine));
    auto *label = new QCPItemText(&m_plot);
    const auto put = [x](QCPItemPosition *position, double share) {
        position->setTypeX(QCPItemPosition::ptPlotCoords);
        position->setTypeY(QCPItemPosition::ptAxisRectRatio);
        position->setCoords(x, share);
    };
    put(line->start, 1);
    put(line->end, 0);
    put(label->position, 0);
    label->setText(withoutBreaks(m_content.mark->label));
    label->setFont(chartFont(11));
    label->setColor(Ink);
    label->setBrush(QBrush(Qt::white));
    label->setPadding(QMargins(4, 1, 4, 1));
    const bool inRightHalf = x > m_plot.xAxis->range().center();
    label->setPositionAlignment(Qt::AlignTop | (inRightHalf ? Qt::AlignRight : Qt::AlignLeft));
}

void ChartDrawing::layOutAxis(QCPAxis *axis, QCPAxis *opposite, const QString &title, int length,
                              int tickDistance) {
    const QString label = withoutBreaks(title);
    axis->setLabel(label);
    axis->setLabelFont(fittedFont(chartFont(12), label, length * 3 / 4));
    axis->setLabelColor(Ink);
    axis->setTickLabelFont(chartFont(11));
    axis->setTickLabelColor(Ink);
    const QSharedPointer<QCPAxisTicker> ticker(new RegionalTicker);
    ticker->setTickCount(std::clamp(length / tickDistance, 3, 9));
    axis->setTicker(ticker);
    axis->setSubTicks(false);
    axis->setTickLength(0, 4);
    axis->setBasePen(QPen(Ink, 1));
    axis->setTickPen(QPen(Ink, 1));
    axis->grid()->setPen(QPen(GridLine, 1));
    axis->grid()->setZeroLinePen(Qt::NoPen);
    // Numbers along an axis on which nothing stands would be made up.
    axis->setTicks(m_hasPoints);
    axis->setTickLabels(m_hasPoints);
    axis->grid()->setVisible(m_hasPoints);

    opposite->setVisible(true);
    opposite->setBasePen(QPen(Ink, 1));
    opposite->setTicks(false);
    opposite->setTickLabels(false);
}

void ChartDrawing::layOutLegend() {
    if (!m_content.showLegend || m_content.series.empty()) return;
    const int entryWidth = legendEntryWidth(m_content);
    const int count = int(m_content.series.size());
    const int fitting = std::clamp((m_size.width() - 10) / entryWidth, 1, count);
    const int rows = (count + fitting - 1) / fitting;
    const int columns = (count + rows - 1) / rows;
    const int margin = std::max(5, (m_size.width() - columns * entryWidth) / 2);

    QCPLegend *legend = m_plot.legend;
    m_plot.plotLayout()->addElement(1, 0, legend);
    m_plot.plotLayout()->setRowStretchFactor(1, 0.001);
    legend->setFont(chartFont(11));
    legend->setTextColor(Ink);
    legend->setBorderPen(Qt::NoPen);
    legend->setBrush(Qt::NoBrush);
    legend->setIconSize(LegendIconWidth, 12);
    legend->setIconTextPadding(LegendTextGap);
    legend->setMargins(QMargins(margin, 0, margin, 6));
    legend->setRowSpacing(0);
    legend->setWrap(columns);
    legend->setFillOrder(QCPLegend::foColumnsFirst, true);
    legend->setVisible(true);
}

void ChartDrawing::layOutTitle() {
    const QString title = withoutBreaks(m_content.title);
    if (title.isEmpty()) return;
    m_plot.plotLayout()->insertRow(0);
    auto *element =
        new QCPTextElement(&m_plot, title, fittedFont(chartFont(14, true), title, m_size.width() - 20));
    element->setTextColor(Ink);
    element->setMargins(QMargins(5, 6, 5, 0));
    m_plot.plotLayout()->addElement(0, 0, element);
}

/// Widens the range of the axis on which a unit is longer.
void ChartDrawing::equaliseUnits() {
    m_plot.replot(QCustomPlot::rpQueuedRefresh);
    const QSize plot = m_plot.axisRect()->size();
    if (plot.isEmpty()) return;
    const double unitsX = m_plot.xAxis->range().size() / plot.width();
    const double unitsY = m_plot.yAxis->range().size() / plot.height();
    if (unitsX < unitsY) {
        m_plot.xAxis->setRange(m_plot.xAxis->range().center(), unitsY * plot.width(), Qt::AlignCenter);
    } else {
        m_plot.yAxis->setRange(m_plot.yAxis->range().center(), unitsX * plot.height(), Qt::AlignCenter);
    }
}

} // namespace

std::vector<ChartSeries> seriesFromPairs(const XArrayDB &cells, int columnCount) {
    std::vector<ChartSeries> all;
    const int first = cells.LowerBound(2);
    const int last = std::min(cells.UpperBound(2), first + columnCount - 1);
    for (int column = first; column + 1 <= last; column += 2) {
        ChartSeries series;
        for (int row = cells.LowerBound(1); row <= cells.UpperBound(1); ++row) {
            const std::optional<double> x = cellNumber(cells.Get(row, column));
            const std::optional<double> y = cellNumber(cells.Get(row, column + 1));
            if (x && y) series.points.emplace_back(*x, *y);
        }
        all.push_back(series);
    }
    return all;
}

QSize smallestChart(const ChartContent &content) {
    const QSize roomy(std::max(SmallestWidth, legendEntryWidth(content) + 10), 1000);
    return {roomy.width(), roomy.height() - ChartDrawing(content, roomy).plotHeight() + SmallestPlotHeight};
}

ChartPicture drawChart(const ChartContent &content, QSize size, ChartMedium medium) {
    if (size.isEmpty()) return {};
    return ChartDrawing(content, size).draw(medium);
}
