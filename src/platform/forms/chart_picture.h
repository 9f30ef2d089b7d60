// A drawn chart, kept as lines and texts.
#pragma once

#include <QPicture>
#include <QRectF>
#include <QSize>

class QPainter;

/// A copy of a chart as it looked when it was drawn. It holds no pixel, so it is sharp on any device at any
/// size, and it outlives the chart.
class ChartPicture {
public:
    ChartPicture() = default;
    ChartPicture(const QPicture &drawing, QSize size)
        : m_drawing(drawing)
        , m_size(size) {}

    /// The size in pixels of 1/96 inch for which texts and lines were laid out.
    QSize size() const { return m_size; }

    /// Fills `target` (in the painter's own units) as far as the proportions of size() allow, and centres the
    /// chart in what is left.
    void paint(QPainter *painter, const QRectF &target) const;

private:
    QPicture m_drawing;
    QSize m_size;
};
