// What a chart shows, and its drawing by the plot library.
#pragma once

#include <optional>
#include <vector>

#include <QPointF>
#include <QString>

#include "platform/forms/chart_picture.h"

class XArrayDB;

/// One curve: its points in the order of the rows, those without a value left out.
struct ChartSeries {
    QString label;
    std::vector<QPointF> points;
};

/// An upright line through the plot, and what stands beside its upper end.
struct ChartMark {
    double x = 0;
    QString label;
};

struct ChartContent {
    QString title;
    /// X axis, Y axis.
    QString axisTitle[2];
    /// One unit takes the same length on both axes.
    bool uniformAxis = false;
    bool showLegend = false;
    std::vector<ChartSeries> series;
    /// The axis reaches as far; without points it is not drawn.
    std::optional<ChartMark> mark;
};

/// Reads the first `columnCount` columns in pairs, X and then Y; a column without a partner is left out. A
/// cell is a number or a text that is one by the regional settings; a pair in which one cell is neither is no
/// point.
std::vector<ChartSeries> seriesFromPairs(const XArrayDB &cells, int columnCount);

enum class ChartMedium {
    Screen, ///< lines sit on whole pixels
    Paper,  ///< lines are drawn where they are
};

/// In pixels of 1/96 inch: title, legend and axes are whole, and a plot is left that can be read.
QSize smallestChart(const ChartContent &content);

/// Lays the chart out for `size` pixels of 1/96 inch. Black on white whatever the desktop's colours, so that
/// a curve has the same colour on the screen as on paper.
ChartPicture drawChart(const ChartContent &content, QSize size, ChartMedium medium);
