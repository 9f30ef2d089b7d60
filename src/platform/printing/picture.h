// A picture of any kind, drawn as vectors wherever it is made of them.
#pragma once

#include <functional>
#include <memory>

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QPainter>

namespace Printing {

/// A value; copies share what they draw.
class Picture {
public:
    /// Draws into the rectangle from (0, 0) to `size`, in pixels of 15 twips.
    using Painting = std::function<void(QPainter &painter, const QSizeF &size)>;

    Picture() = default;
    static Picture fromImage(const QImage &image);
    /// An empty picture if `svg` is none.
    static Picture fromSvg(const QByteArray &svg);
    /// Records the painting at once, at `size`: later changes of what it draws don't reach the picture.
    static Picture record(const Painting &painting, const QSizeF &size);

    bool isNull() const { return !m_painting; }
    /// Whether the one is a copy of the other.
    bool isSame(const Picture &other) const { return m_painting == other.m_painting; }
    /// Draws into the middle of `target` (in twips, as the painter's coordinates), as large as the picture's
    /// proportions allow.
    void paint(QPainter &painter, const QRectF &target) const;
    /// On `ground`, `size` in twips, for readers that know no vectors.
    QImage toImage(const QSize &size, int dotsPerInch, const QColor &ground = Qt::white) const;

private:
    Picture(Painting painting, const QSizeF &size);

    std::shared_ptr<const Painting> m_painting;
    QSizeF m_size; // in pixels
};

/// 96 dots an inch, whatever the screen: only there do recorded and direct drawings agree on sizes in points.
QImage blankImage(const QSize &pixels);

} // namespace Printing
