#include "platform/forms/grid_footer.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QStyleOptionHeader>
#include <QStylePainter>

namespace {
constexpr int FooterMargin = 2;
}

GridFooter::GridFooter(const QHeaderView *headings, QWidget *parent)
    : QWidget(parent)
    , m_headings(headings) {
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    const auto repaint = qOverload<>(&QWidget::update);
    connect(headings, &QHeaderView::sectionResized, this, repaint);
    connect(headings, &QHeaderView::sectionCountChanged, this, repaint);
    connect(headings, &QHeaderView::geometriesChanged, this, repaint);
}

QSize GridFooter::sizeHint() const {
    return {0, fontMetrics().height() + 2 * FooterMargin};
}

int GridFooter::columnAt(int x) const {
    const QRect columns = m_headings->geometry();
    if (x < columns.left() || x > columns.right()) return -1;
    return m_headings->logicalIndexAt(x - columns.left());
}

QRect GridFooter::columnRect(int column) const {
    const int left = m_headings->geometry().left() + m_headings->sectionViewportPosition(column);
    return {left, 0, m_headings->sectionSize(column), height()};
}

void GridFooter::paintEvent(QPaintEvent *) {
    QStylePainter painter(this);
    QStyleOptionHeader option;
    option.initFrom(this);
    option.orientation = Qt::Horizontal;
    option.state.setFlag(QStyle::State_Raised);
    option.state.setFlag(QStyle::State_MouseOver, false);
    const QStyle::State state = option.state;

    const QRect columns = m_headings->geometry();
    option.rect = rect().adjusted(0, 0, 1, 0);
    painter.drawControl(QStyle::CE_HeaderSection, option);
    if (columns.left() > 0) {
        option.rect = QRect(0, 0, columns.left(), height());
        painter.drawControl(QStyle::CE_HeaderSection, option);
    }
    painter.setClipRect(QRect(columns.left(), 0, columns.width(), height()));
    for (int i = 0; i < m_headings->count(); ++i) {
        if (m_headings->isSectionHidden(i)) continue;
        option.rect = columnRect(i);
        option.section = i;
        option.state = state;
        option.state.setFlag(QStyle::State_MouseOver, i == m_hovered);
        option.state.setFlag(QStyle::State_Sunken, i == m_pressed && i == m_hovered);
        painter.drawControl(QStyle::CE_HeaderSection, option);
    }
}

void GridFooter::mouseMoveEvent(QMouseEvent *event) {
    setHovered(rect().contains(event->pos()) ? columnAt(event->pos().x()) : -1);
}

void GridFooter::mousePressEvent(QMouseEvent *event) {
    if (event->button() != Qt::LeftButton) return;
    m_pressed = columnAt(event->pos().x());
    setHovered(m_pressed);
    update();
}

void GridFooter::mouseReleaseEvent(QMouseEvent *event) {
    if (event->button() != Qt::LeftButton) return;
    const int pressed = m_pressed;
    m_pressed = -1;
    update();
    if (pressed >= 0 && rect().contains(event->pos()) && columnAt(event->pos().x()) == pressed)
        Q_EMIT clicked(pressed);
}

void GridFooter::leaveEvent(QEvent *) {
    setHovered(-1);
}

void GridFooter::setHovered(int column) {
    if (m_hovered == column) return;
    m_hovered = column;
    update();
}
