#include "platform/forms/chart_picture.h"

#include <QPainter>

void ChartPicture::paint(QPainter *painter, const QRectF &target) const {
    if (m_size.isEmpty() || target.isEmpty()) return;
    const qreal scale = qMin(target.width() / m_size.width(), target.height() / m_size.height());
    const QPointF margin((target.width() - scale * m_size.width()) / 2,
                         (target.height() - scale * m_size.height()) / 2);
    // A QPicture enlarges itself by the device's resolution when it is played, whatever the painter's own
    // scale says; that is taken back here.
    const QPaintDevice *device = painter->device();
    const qreal playedX = qreal(device->logicalDpiX()) / m_drawing.logicalDpiX();
    const qreal playedY = qreal(device->logicalDpiY()) / m_drawing.logicalDpiY();
    painter->save();
    painter->translate(target.topLeft() + margin);
    painter->scale(scale / playedX, scale / playedY);
    painter->drawPicture(0, 0, m_drawing);
    painter->restore();
}
