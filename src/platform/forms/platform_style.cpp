#include "platform/forms/platform_style.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLabel>
#include <QPainter>
#include <QSize>
#include <QStyleOptionTitleBar>

#include "platform/forms/legible_text.h"

namespace {

constexpr int frameWidth = 3;
constexpr int titleBarHeight = 22;

bool turnsByWheel(const QWidget *widget) {
    return qobject_cast<const QComboBox *>(widget) != nullptr ||
           qobject_cast<const QAbstractSpinBox *>(widget) != nullptr;
}

/// The picture of a window on a plate, for its colours may be those of the bar.
void drawIcon(QPainter *painter, const QRect &place, const QIcon &icon) {
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(Qt::white);
    painter->drawRoundedRect(place, 3, 3);
    icon.paint(painter, place.adjusted(1, 1, -1, -1));
}

} // namespace

PlatformStyle::PlatformStyle()
    : QProxyStyle(QStringLiteral("Fusion")) {}

// Left to guess, a label takes a text with tags for a page, and reads the files named in it. A tool tip is a
// label too. Every label comes here before it measures its text.
void PlatformStyle::polish(QWidget *widget) {
    QProxyStyle::polish(widget);
    auto *label = qobject_cast<QLabel *>(widget);
    if (label != nullptr && label->textFormat() == Qt::AutoText) label->setTextFormat(Qt::PlainText);
    if (!turnsByWheel(widget)) return;
    if (widget->focusPolicy() == Qt::WheelFocus) widget->setFocusPolicy(Qt::StrongFocus);
    widget->installEventFilter(this);
}

int PlatformStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const {
    if (metric == PM_MdiSubWindowFrameWidth) return frameWidth;
    if (metric == PM_TitleBarHeight) return titleBarHeight;
    return QProxyStyle::pixelMetric(metric, option, widget);
}

void PlatformStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                       QPainter *painter, const QWidget *widget) const {
    const auto *bar = qstyleoption_cast<const QStyleOptionTitleBar *>(option);
    if (control == CC_TitleBar && bar != nullptr)
        drawTitleBar(*bar, painter, widget);
    else
        QProxyStyle::drawComplexControl(control, option, painter, widget);
}

// Fusion's own title is drawn twice, with a shadow, and its inactive buttons are black in every theme.
void PlatformStyle::drawTitleBar(const QStyleOptionTitleBar &bar, QPainter *painter,
                                 const QWidget *widget) const {
    QStyleOptionTitleBar base = bar;
    base.text.clear();
    base.subControls &= ~SC_TitleBarSysMenu;
    const QColor window = bar.palette.color(QPalette::Window);
    const bool white = (bar.titleBarState & State_Active) != 0 || window.lightness() < 128;
    if ((bar.titleBarState & State_Active) == 0)
        base.palette.setColor(QPalette::Highlight, window.lighter(140));
    else if (legibleText(bar.palette.color(QPalette::Highlight), Qt::white) != Qt::white)
        base.palette.setColor(QPalette::Highlight, bar.palette.color(QPalette::Highlight).darker(130));
    if (white) base.titleBarState |= State_Active; // the bar in its highlight, with white buttons
    QProxyStyle::drawComplexControl(CC_TitleBar, &base, painter, widget);

    painter->save();
    const QRect icon = subControlRect(CC_TitleBar, &bar, SC_TitleBarSysMenu, widget);
    if (!bar.icon.isNull() && icon.isValid()) drawIcon(painter, icon, bar.icon);
    const QRect place = subControlRect(CC_TitleBar, &bar, SC_TitleBarLabel, widget);
    painter->setPen(white ? Qt::white : bar.palette.color(QPalette::WindowText));
    painter->drawText(place, Qt::AlignCenter | Qt::TextSingleLine,
                      bar.fontMetrics.elidedText(bar.text, Qt::ElideRight, place.width()));
    painter->restore();
}

void PlatformStyle::unpolish(QWidget *widget) {
    if (turnsByWheel(widget)) widget->removeEventFilter(this);
    QProxyStyle::unpolish(widget);
}

bool PlatformStyle::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() != QEvent::Wheel || static_cast<QWidget *>(watched)->hasFocus())
        return QProxyStyle::eventFilter(watched, event);
    event->ignore();
    return true;
}

QSize PlatformStyle::frameSize() {
    return {2 * frameWidth, titleBarHeight + frameWidth};
}
