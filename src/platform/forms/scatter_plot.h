// A dot for each thing of a set, by two numbers: which of them stand out, and what each of them is.
#pragma once

#include <functional>
#include <vector>

#include <QImage>
#include <QWidget>

#include "platform/forms/axis_scale.h"

/// Dots are known by their index. The arrow keys move between them: right and left in the order of the first
/// number, up and down in that of the second, with Ctrl among those that stand out; Home and End go to the
/// first and the last. Tens of thousands of dots are painted once, and only what stands out anew.
class ScatterPlot : public QWidget {
    Q_OBJECT
public:
    explicit ScatterPlot(QWidget *parent = nullptr);

    void setAxisTitles(const QString &x, const QString &y);
    /// A dot whose numbers are not finite is not shown. None is the current one then, and none stands out.
    void setDots(std::vector<QPointF> dots);
    /// A mark a dot.
    void setEmphasis(std::vector<bool> emphasis);
    /// What a dot is, for the tip and for a screen reader.
    void setNamer(std::function<QString(int dot)> namer) { m_namer = std::move(namer); }
    /// Told in the middle where there are no dots.
    void setNotice(const QString &notice);

    int DotCount() const { return static_cast<int>(m_dots.size()); }
    /// -1 without one.
    int current() const { return m_current; }
    void setCurrent(int dot);
    /// The middle of a dot, in pixels of the widget.
    QPointF placeOf(int dot) const;
    /// The dots that cannot be told from the one nearest to a place, that one first; none where it is far
    /// away.
    std::vector<int> dotsAt(const QPointF &place) const;

    QSize sizeHint() const override { return {480, 300}; }
    QSize minimumSizeHint() const override { return {240, 120}; }

Q_SIGNALS:
    void currentChanged(int dot);
    /// By Enter or a double click.
    void chosen(int dot);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    bool event(QEvent *event) override;

private:
    enum class Axis { X, Y };

    bool shows(int dot) const;
    bool standsOut(int dot) const { return m_emphasis[static_cast<std::size_t>(dot)]; }
    const std::vector<int> &orderBy(Axis axis);
    void step(Axis axis, int by, bool emphasised);
    void stepFrom(const std::vector<int> &order, std::ptrdiff_t place, int by, bool emphasised);
    void layOut();
    void forgetGround();
    void drawGround();
    void drawAxes(QPainter &painter) const;
    void drawEmphasis();
    void drawDots(QImage &picture, bool emphasised, const QImage &dot) const;
    QString tipFor(const std::vector<int> &dots) const;
    void tellDescription();

    std::vector<QPointF> m_dots;
    std::vector<bool> m_emphasis;
    QString m_titles[2];
    QString m_notice;
    std::function<QString(int dot)> m_namer;
    int m_current = -1;
    AxisScale m_scales[2];
    /// In pixels of the widget.
    QRectF m_area;
    /// Axes and all dots; the same with those that stand out. Null when something has changed since.
    QImage m_ground;
    QImage m_picture;
    /// By one number and then the other; empty until a key asks.
    std::vector<int> m_orders[2];
};
