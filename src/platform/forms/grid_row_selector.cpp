#include "platform/forms/grid_row_selector.h"

#include <QEvent>
#include <QPainter>
#include <QStyleOptionHeader>

namespace {
constexpr int SelectorWidth = 18;
constexpr int ArrowSize = 8;
} // namespace

GridRowSelector::GridRowSelector(QWidget *parent)
    : QHeaderView(Qt::Vertical, parent) {
    setSectionsClickable(true);
    setSectionResizeMode(QHeaderView::Fixed);
    fitFont();
}

QSize GridRowSelector::sizeHint() const {
    return {SelectorWidth, QHeaderView::sizeHint().height()};
}

bool GridRowSelector::event(QEvent *event) {
    if (event->type() == QEvent::FontChange) fitFont();
    return QHeaderView::event(event);
}

void GridRowSelector::paintSection(QPainter *painter, const QRect &rect, int row) const {
    QStyleOptionHeaderV2 option;
    initStyleOption(&option);
    initStyleOptionForIndex(&option, row);
    option.rect = rect;
    painter->save();
    style()->drawControl(QStyle::CE_HeaderSection, &option, painter, this);
    if (selectionModel() && selectionModel()->currentIndex().row() == row) {
        const QRect place =
            QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, QSize(ArrowSize, ArrowSize), rect);
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(Qt::NoPen);
        painter->setBrush(option.palette.color(QPalette::ButtonText));
        const QPointF tip(place.right(), place.center().y() + 0.5);
        painter->drawPolygon(QPolygonF(
            {QPointF(place.left() + 2, place.top()), tip, QPointF(place.left() + 2, place.bottom() + 1)}));
    }
    painter->restore();
}

void GridRowSelector::fitFont() {
    setMinimumSectionSize(fontMetrics().height() + 4);
    setDefaultSectionSize(fontMetrics().height() + 6);
}
