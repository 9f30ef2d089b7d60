#include "platform/forms/scatter_plot.h"

#include <algorithm>
#include <cmath>

#include <QAccessible>
#include <QEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>

namespace {

constexpr double Reach = 6;        // pixels around a dot at which it is meant
constexpr double SameEnough = 1.5; // pixels between dots that cannot be told apart
constexpr int MostNamed = 8;       // in a tip
constexpr double PlainSize = 4;    // pixels across
constexpr double EmphasisSize = 7;
constexpr double CurrentSize = 13;
constexpr int TickWidth = 90; // pixels a tick, about
constexpr int TickHeight = 45;

QColor between(const QColor &one, const QColor &other, double part) {
    const auto mixed = [part](double from, double to) {
        return static_cast<float>(from + (to - from) * part);
    };
    return QColor::fromRgbF(mixed(one.redF(), other.redF()), mixed(one.greenF(), other.greenF()),
                            mixed(one.blueF(), other.blueF()));
}

QImage emptyImage(QSizeF size, double ratio, QImage::Format format, const QColor &fill) {
    QImage image((size * ratio).toSize().expandedTo({1, 1}), format);
    image.setDevicePixelRatio(ratio);
    image.fill(fill);
    return image;
}

QImage dotPicture(double across, double ratio, const QColor &fill, const QColor &edge) {
    QImage image = emptyImage(QSizeF(across + 2, across + 2), ratio, QImage::Format_ARGB32_Premultiplied,
                              Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(fill);
    painter.setPen(edge);
    painter.drawEllipse(QRectF(1, 1, across, across));
    return image;
}

/// Each colour apart: what lies above, and what shows through it of what lies below.
QRgb blended(QRgb above, QRgb below) {
    const int through = 255 - qAlpha(above);
    const auto mixed = [through](int over, int under) { return over + (under * through + 127) / 255; };
    return qRgb(mixed(qRed(above), qRed(below)), mixed(qGreen(above), qGreen(below)),
                mixed(qBlue(above), qBlue(below)));
}

/// Much faster than a painter, which prepares anew for each of tens of thousands.
void stamp(QImage &picture, const QImage &dot, int left, int top) {
    const int firstColumn = std::max(0, -left);
    const int lastColumn = std::min(dot.width(), picture.width() - left);
    const int lastRow = std::min(dot.height(), picture.height() - top);
    for (int row = std::max(0, -top); row < lastRow; ++row) {
        const auto *from = reinterpret_cast<const QRgb *>(dot.constScanLine(row));
        auto *to = reinterpret_cast<QRgb *>(picture.scanLine(top + row)) + left;
        for (int column = firstColumn; column < lastColumn; ++column)
            if (qAlpha(from[column]) != 0) to[column] = blended(from[column], to[column]);
    }
}

} // namespace

ScatterPlot::ScatterPlot(QWidget *parent)
    : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void ScatterPlot::setAxisTitles(const QString &x, const QString &y) {
    if (m_titles[0] == x && m_titles[1] == y) return;
    m_titles[0] = x;
    m_titles[1] = y;
    forgetGround();
    tellDescription();
}

void ScatterPlot::setDots(std::vector<QPointF> dots) {
    m_dots = std::move(dots);
    m_emphasis.assign(m_dots.size(), false);
    m_orders[0].clear();
    m_orders[1].clear();
    m_current = -1;
    forgetGround();
    tellDescription();
}

void ScatterPlot::setEmphasis(std::vector<bool> emphasis) {
    emphasis.resize(m_dots.size());
    if (emphasis == m_emphasis) return;
    m_emphasis = std::move(emphasis);
    m_picture = {};
    update();
    tellDescription();
}

void ScatterPlot::setNotice(const QString &notice) {
    if (m_notice == notice) return;
    m_notice = notice;
    forgetGround();
    tellDescription();
}

bool ScatterPlot::shows(int dot) const {
    const QPointF &at = m_dots[static_cast<std::size_t>(dot)];
    return std::isfinite(at.x()) && std::isfinite(at.y());
}

void ScatterPlot::setCurrent(int dot) {
    if (dot < 0 || dot >= DotCount() || !shows(dot)) dot = -1;
    if (dot == m_current) return;
    m_current = dot;
    update();
    tellDescription();
    Q_EMIT currentChanged(dot);
}

QPointF ScatterPlot::placeOf(int dot) const {
    const QPointF &at = m_dots[static_cast<std::size_t>(dot)];
    return {m_area.left() + m_scales[0].part(at.x()) * m_area.width(),
            m_area.bottom() - m_scales[1].part(at.y()) * m_area.height()};
}

std::vector<int> ScatterPlot::dotsAt(const QPointF &place) const {
    int nearest = -1;
    double least = Reach * Reach;
    for (int dot = 0; dot < DotCount(); ++dot) {
        if (!shows(dot)) continue;
        const QPointF away = placeOf(dot) - place;
        const double distance = QPointF::dotProduct(away, away);
        // Of two at one place the one that stands out lies above.
        if (distance < least ||
            (distance == least && nearest >= 0 && standsOut(dot) && !standsOut(nearest))) {
            least = distance;
            nearest = dot;
        }
    }
    if (nearest < 0) return {};
    std::vector<int> dots{nearest};
    const QPointF middle = placeOf(nearest);
    for (int dot = 0; dot < DotCount(); ++dot) {
        if (dot == nearest || !shows(dot)) continue;
        const QPointF away = placeOf(dot) - middle;
        if (QPointF::dotProduct(away, away) < SameEnough * SameEnough) dots.push_back(dot);
    }
    return dots;
}

const std::vector<int> &ScatterPlot::orderBy(Axis axis) {
    std::vector<int> &order = m_orders[static_cast<int>(axis)];
    if (!order.empty()) return order;
    for (int dot = 0; dot < DotCount(); ++dot)
        if (shows(dot)) order.push_back(dot);
    std::stable_sort(order.begin(), order.end(), [&](int one, int other) {
        const QPointF &a = m_dots[static_cast<std::size_t>(one)];
        const QPointF &b = m_dots[static_cast<std::size_t>(other)];
        return axis == Axis::X ? std::pair(a.x(), a.y()) < std::pair(b.x(), b.y())
                               : std::pair(a.y(), a.x()) < std::pair(b.y(), b.x());
    });
    return order;
}

void ScatterPlot::step(Axis axis, int by, bool emphasised) {
    const std::vector<int> &order = orderBy(axis);
    const auto found = std::find(order.begin(), order.end(), m_current);
    // Without a current one it begins at the end that lies behind.
    const std::ptrdiff_t before = by > 0 ? -1 : std::ssize(order);
    stepFrom(order, found != order.end() ? found - order.begin() : before, by, emphasised);
}

void ScatterPlot::stepFrom(const std::vector<int> &order, std::ptrdiff_t place, int by, bool emphasised) {
    for (place += by; place >= 0 && place < std::ssize(order); place += by) {
        const int dot = order[static_cast<std::size_t>(place)];
        if (!emphasised || standsOut(dot)) return setCurrent(dot);
    }
}

void ScatterPlot::keyPressEvent(QKeyEvent *event) {
    const bool emphasised = event->modifiers().testFlag(Qt::ControlModifier);
    switch (event->key()) {
    case Qt::Key_Right:
        return step(Axis::X, 1, emphasised);
    case Qt::Key_Left:
        return step(Axis::X, -1, emphasised);
    case Qt::Key_Up:
        return step(Axis::Y, 1, emphasised);
    case Qt::Key_Down:
        return step(Axis::Y, -1, emphasised);
    case Qt::Key_Home:
        return stepFrom(orderBy(Axis::X), -1, 1, emphasised);
    case Qt::Key_End:
        return stepFrom(orderBy(Axis::X), std::ssize(orderBy(Axis::X)), -1, emphasised);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (m_current >= 0) {
            Q_EMIT chosen(m_current);
            return;
        }
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}

void ScatterPlot::mousePressEvent(QMouseEvent *event) {
    const std::vector<int> dots = dotsAt(event->position());
    if (event->button() == Qt::LeftButton && !dots.empty()) setCurrent(dots.front());
}

void ScatterPlot::mouseDoubleClickEvent(QMouseEvent *event) {
    const std::vector<int> dots = dotsAt(event->position());
    if (event->button() == Qt::LeftButton && !dots.empty()) Q_EMIT chosen(dots.front());
}

bool ScatterPlot::event(QEvent *event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const std::vector<int> dots = dotsAt(help->pos());
    if (dots.empty()) {
        QToolTip::hideText();
        event->ignore();
        return true;
    }
    const QRectF around(placeOf(dots.front()) - QPointF(Reach, Reach), QSizeF(2 * Reach, 2 * Reach));
    QToolTip::showText(help->globalPos(), tipFor(dots), this, around.toAlignedRect());
    return true;
}

QString ScatterPlot::tipFor(const std::vector<int> &dots) const {
    QStringList lines;
    for (std::size_t i = 0; i < dots.size() && i < MostNamed; ++i)
        lines << (m_namer ? m_namer(dots[i]) : QString());
    if (dots.size() > MostNamed) lines << tr("and %1 more").arg(dots.size() - MostNamed);
    return lines.join(u'\n');
}

void ScatterPlot::tellDescription() {
    QString description = m_notice;
    if (!m_dots.empty()) {
        description = tr("%1 over %2. Dots: %3, emphasised: %4.")
                          .arg(m_titles[1], m_titles[0])
                          .arg(m_dots.size())
                          .arg(std::count(m_emphasis.begin(), m_emphasis.end(), true));
        if (m_current >= 0 && m_namer) description.prepend(m_namer(m_current) + QStringLiteral(". "));
    }
    if (description == accessibleDescription()) return;
    setAccessibleDescription(description); // tells those who listen
}

void ScatterPlot::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    forgetGround();
}

void ScatterPlot::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange ||
        event->type() == QEvent::StyleChange || event->type() == QEvent::EnabledChange)
        forgetGround();
}

void ScatterPlot::forgetGround() {
    m_ground = {};
    m_picture = {};
    layOut();
    update();
}

/// Where the axes lie, and what they tell.
void ScatterPlot::layOut() {
    const QFontMetricsF metrics(font());
    const double line = metrics.height();
    double least[2] = {0, 0};
    double greatest[2] = {1, 1};
    bool any = false;
    for (int dot = 0; dot < DotCount(); ++dot) {
        if (!shows(dot)) continue;
        const QPointF &at = m_dots[static_cast<std::size_t>(dot)];
        for (int axis = 0; axis < 2; ++axis) {
            const double number = axis == 0 ? at.x() : at.y();
            least[axis] = any ? std::min(least[axis], number) : number;
            greatest[axis] = any ? std::max(greatest[axis], number) : number;
        }
        any = true;
    }
    const double bottom = height() - 2 * line - 12;
    const double top = line / 2 + EmphasisSize;
    m_scales[1] =
        AxisScale::of(least[1], greatest[1], std::max(1, static_cast<int>(bottom - top) / TickHeight));
    double labels = 0;
    for (int i = 0; i <= m_scales[1].steps; ++i)
        labels = std::max(labels, metrics.horizontalAdvance(m_scales[1].label(i)));
    const double left = line + labels + 16;
    const double right = width() - std::max(2 * EmphasisSize, 3 * metrics.averageCharWidth());
    m_scales[0] =
        AxisScale::of(least[0], greatest[0], std::max(1, static_cast<int>(right - left) / TickWidth));
    m_area = QRectF(left, top, std::max(1.0, right - left), std::max(1.0, bottom - top));
}

void ScatterPlot::drawGround() {
    m_ground = emptyImage(size(), devicePixelRatioF(), QImage::Format_RGB32, palette().color(QPalette::Base));
    QPainter painter(&m_ground);
    painter.setFont(font());
    const QColor text = palette().color(QPalette::Text);
    if (m_dots.empty()) {
        painter.setPen(text);
        painter.drawText(rect().adjusted(12, 12, -12, -12), Qt::AlignCenter | Qt::TextWordWrap, m_notice);
        return;
    }
    drawAxes(painter);
    painter.end();
    const QColor plain = between(palette().color(QPalette::Base), text, 0.45);
    drawDots(m_ground, false, dotPicture(PlainSize, devicePixelRatioF(), plain, plain));
}

void ScatterPlot::drawAxes(QPainter &painter) const {
    const QColor base = palette().color(QPalette::Base);
    const QColor text = palette().color(QPalette::Text);
    const QFontMetricsF metrics(font());
    const double line = metrics.height();
    for (int axis = 0; axis < 2; ++axis) {
        for (int i = 0; i <= m_scales[axis].steps; ++i) {
            const double part = static_cast<double>(i) / m_scales[axis].steps;
            const double x = std::round(m_area.left() + part * m_area.width());
            const double y = std::round(m_area.bottom() - part * m_area.height());
            painter.setPen(between(base, text, 0.18));
            if (axis == 0)
                painter.drawLine(QLineF(x, m_area.top(), x, m_area.bottom()));
            else
                painter.drawLine(QLineF(m_area.left(), y, m_area.right(), y));
            painter.setPen(text);
            const QString label = m_scales[axis].label(i);
            if (axis == 0)
                painter.drawText(QRectF(x - TickWidth, m_area.bottom() + 4, 2 * TickWidth, line),
                                 Qt::AlignCenter, label);
            else
                painter.drawText(QRectF(0, y - line / 2, m_area.left() - 6, line),
                                 Qt::AlignRight | Qt::AlignVCenter, label);
        }
    }
    const auto fitted = [&](const QString &title, double room) {
        return metrics.elidedText(title, Qt::ElideRight, room);
    };
    painter.drawText(QRectF(m_area.left(), m_area.bottom() + line + 6, m_area.width(), line), Qt::AlignCenter,
                     fitted(m_titles[0], m_area.width()));
    painter.save();
    painter.translate(2, m_area.bottom());
    painter.rotate(-90);
    painter.drawText(QRectF(0, 0, m_area.height(), line), Qt::AlignCenter,
                     fitted(m_titles[1], m_area.height()));
    painter.restore();
}

/// A dot that lies on another one's pixel is not painted again.
void ScatterPlot::drawDots(QImage &picture, bool emphasised, const QImage &dot) const {
    const double ratio = devicePixelRatioF();
    std::vector<bool> taken(static_cast<std::size_t>(picture.width()) *
                            static_cast<std::size_t>(picture.height()));
    for (int i = 0; i < DotCount(); ++i) {
        if (!shows(i) || (emphasised && !standsOut(i))) continue;
        const QPoint at = (placeOf(i) * ratio).toPoint();
        if (!picture.rect().contains(at)) continue;
        const auto pixel = static_cast<std::size_t>(at.y()) * static_cast<std::size_t>(picture.width()) +
                           static_cast<std::size_t>(at.x());
        if (taken[pixel]) continue;
        taken[pixel] = true;
        stamp(picture, dot, at.x() - dot.width() / 2, at.y() - dot.height() / 2);
    }
}

void ScatterPlot::drawEmphasis() {
    m_picture = m_ground;
    if (std::find(m_emphasis.begin(), m_emphasis.end(), true) == m_emphasis.end()) return;
    const QColor edge = palette().color(QPalette::Base);
    drawDots(m_picture, true,
             dotPicture(EmphasisSize, devicePixelRatioF(), palette().color(QPalette::Highlight), edge));
}

void ScatterPlot::paintEvent(QPaintEvent *) {
    if (m_ground.isNull() || m_ground.devicePixelRatio() != devicePixelRatioF()) {
        drawGround();
        m_picture = {};
    }
    if (m_picture.isNull()) drawEmphasis();
    QPainter painter(this);
    painter.drawImage(0, 0, m_picture);
    if (m_current >= 0) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(palette().color(QPalette::Text), 2));
        painter.drawEllipse(placeOf(m_current), CurrentSize / 2, CurrentSize / 2);
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}
