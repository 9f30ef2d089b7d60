#include "platform/printing/arrow_icon.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

namespace Printing {

namespace {

constexpr double Side = 18; // of the square that the arrows are drawn in

/// Degrees from an arrow that points right.
double turn(Arrow arrow) {
    switch (arrow) {
    case Arrow::First:
    case Arrow::Previous:
        return 180;
    case Arrow::Up:
        return -90;
    case Arrow::Down:
        return 90;
    default:
        return 0;
    }
}

class ArrowEngine : public QIconEngine {
public:
    explicit ArrowEngine(Arrow arrow)
        : m_arrow(arrow) {}

    QIconEngine *clone() const override { return new ArrowEngine(m_arrow); }

    void paint(QPainter *painter, const QRect &place, QIcon::Mode mode, QIcon::State) override {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(QRectF(place).center());
        painter->scale(place.width() / Side, place.height() / Side);
        painter->rotate(turn(m_arrow));
        painter->setPen(QPen(QGuiApplication::palette().color(group, QPalette::ButtonText), 2, Qt::SolidLine,
                             Qt::RoundCap, Qt::RoundJoin));
        const bool toTheEnd = m_arrow == Arrow::First || m_arrow == Arrow::Last;
        const double tip = toTheEnd ? 2 : 3;
        painter->drawPolyline(QPolygonF({{tip - 5, -5}, {tip, 0}, {tip - 5, 5}}));
        if (toTheEnd) painter->drawLine(QPointF(5, -5), QPointF(5, 5));
        painter->restore();
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

private:
    Arrow m_arrow;
};

} // namespace

QIcon arrowIcon(Arrow arrow) {
    return QIcon(new ArrowEngine(arrow));
}

} // namespace Printing
