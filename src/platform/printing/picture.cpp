#include "platform/printing/picture.h"

#include <QPicture>
#include <QSvgRenderer>

#include "platform/runtime/twips.h"

namespace Printing {

namespace {
constexpr double DotsPerMeter96 = 96 / 0.0254;
} // namespace

QImage blankImage(const QSize &pixels) {
    QImage image(pixels, QImage::Format_RGB32);
    image.setDotsPerMeterX(qRound(DotsPerMeter96));
    image.setDotsPerMeterY(qRound(DotsPerMeter96));
    image.fill(Qt::white);
    return image;
}

Picture::Picture(Painting painting, const QSizeF &size)
    : m_size(size) {
    if (!m_size.isEmpty()) m_painting = std::make_shared<const Painting>(std::move(painting));
}

Picture Picture::fromImage(const QImage &image) {
    return {[image](QPainter &painter, const QSizeF &size) {
                painter.setRenderHint(QPainter::SmoothPixmapTransform);
                painter.setRenderHint(QPainter::LosslessImageRendering);
                painter.drawImage(QRectF(QPointF(), size), image);
            },
            image.size()};
}

Picture Picture::fromSvg(const QByteArray &svg) {
    const auto renderer = std::make_shared<QSvgRenderer>(svg);
    if (!renderer->isValid()) return {};
    return {[renderer](QPainter &painter, const QSizeF &size) {
                renderer->render(&painter, QRectF(QPointF(), size));
            },
            renderer->viewBoxF().size()};
}

Picture Picture::record(const Painting &painting, const QSizeF &size) {
    QPicture recorded;
    {
        QPainter painter(&recorded);
        painting(painter, size);
    }
    return {[recorded](QPainter &painter, const QSizeF &) { painter.drawPicture(0, 0, recorded); }, size};
}

void Picture::paint(QPainter &painter, const QRectF &target) const {
    if (isNull() || target.isEmpty()) return;
    const QSizeF fitted = m_size.scaled(target.size(), Qt::KeepAspectRatio);
    painter.save();
    painter.translate(target.center().x() - fitted.width() / 2, target.center().y() - fitted.height() / 2);
    painter.scale(fitted.width() / m_size.width(), fitted.height() / m_size.height());
    painter.setRenderHint(QPainter::Antialiasing);
    (*m_painting)(painter, m_size);
    painter.restore();
}

QImage Picture::toImage(const QSize &size, int dotsPerInch, const QColor &ground) const {
    const double dotsPerTwip = double(dotsPerInch) / TwipsPerInch;
    QImage image = blankImage((QSizeF(size) * dotsPerTwip).toSize().expandedTo(QSize(1, 1)));
    image.fill(ground);
    QPainter painter(&image);
    painter.scale(dotsPerTwip, dotsPerTwip);
    paint(painter, QRectF(QPointF(), size));
    return image;
}

} // namespace Printing
