#include "platform/forms/grid_delegate.h"

#include <QApplication>
#include <QPainter>

#include "platform/forms/grid_model.h"
#include "platform/forms/grid_view.h"
#include "platform/forms/legible_text.h"
#include "platform/forms/number_blanks.h"

namespace {

/// `share` of `over` on `under`.
QColor mixed(const QColor &under, const QColor &over, double share) {
    const auto mix = [share](int a, int b) { return qRound(a + (b - a) * share); };
    return {mix(under.red(), over.red()), mix(under.green(), over.green()), mix(under.blue(), over.blue())};
}

constexpr double CurrentRowShare = 0.4;

int textMargin(const QStyleOptionViewItem &option) {
    const QStyle *style = option.widget ? option.widget->style() : QApplication::style();
    return style->pixelMetric(QStyle::PM_FocusFrameHMargin, &option, option.widget) + 1;
}

/// Where the style puts a text of that size.
QRect textPlace(const QStyleOptionViewItem &option, const QSize &size) {
    const int margin = textMargin(option);
    return QStyle::alignedRect(option.direction, option.displayAlignment, size,
                               option.rect.adjusted(margin, 0, -margin, 0));
}

FittedText fitInto(const QStyleOptionViewItem &option) {
    const QSize room(qMax(option.rect.width() - 2 * textMargin(option), 0), option.rect.height());
    return fitText(option.text, option.font, room, option.features.testFlag(QStyleOptionViewItem::WrapText));
}

} // namespace

GridDelegate::GridDelegate(const GridModel &model, const GridLook &look, GridView *view)
    : QStyledItemDelegate(view)
    , m_model(model)
    , m_look(look)
    , m_view(view) {}

void GridDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const {
    QStyleOptionViewItem shown = option;
    initStyleOption(&shown, index);
    const FittedText fitted = fit(shown);
    shown.text = fitted.lines.join(QChar::LineSeparator);
    shown.features.setFlag(QStyleOptionViewItem::WrapText, false);
    m_view->style()->drawControl(QStyle::CE_ItemViewItem, &shown, painter, m_view);
    if (fitted.isBareMark()) {
        const bool selected = shown.state.testFlag(QStyle::State_Selected);
        drawCutMark(*painter, shown.rect,
                    shown.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    }
    if (m_view->currentIndex() == index && m_view->hasFocus()) paintFocus(*painter, option, index);
}

/// Styles differ in whether they show the focus of a cell that a mouse click brought.
void GridDelegate::paintFocus(QPainter &painter, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const {
    const QColor back = (option.state & QStyle::State_Selected) ? option.palette.color(QPalette::Highlight)
                                                                : background(index, option.palette);
    painter.save();
    painter.setPen(QPen(legibleText(back, option.palette.color(QPalette::HighlightedText)), 1, Qt::DotLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(option.rect.adjusted(1, 1, -2, -2));
    painter.restore();
}

bool GridDelegate::isCut(const QModelIndex &index) const {
    QStyleOptionViewItem option;
    m_view->initViewItemOption(&option);
    option.rect = m_view->visualRect(index);
    initStyleOption(&option, index);
    return fit(option).cut;
}

/// Where the edge of the view would cut the text, the part of the cell that is in sight is all the room there
/// is, and becomes the option's place.
FittedText GridDelegate::fit(QStyleOptionViewItem &option) const {
    const FittedText fitted = fitInto(option);
    const QRect inSight = option.rect & m_view->viewport()->rect();
    const QRect text = textPlace(option, fitted.size);
    const bool wide = text.left() < inSight.left() || text.right() > inSight.right();
    const bool tall =
        fitted.lines.size() > 1 && (text.top() < inSight.top() || text.bottom() > inSight.bottom());
    if (inSight.isEmpty() || (!wide && !tall)) return fitted;
    if (wide) option.rect.setLeft(inSight.left()), option.rect.setRight(inSight.right());
    if (tall) option.rect.setTop(inSight.top()), option.rect.setBottom(inSight.bottom());
    return fitInto(option);
}

void GridDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    const bool wraps = m_model.column(index.column()).WordWrap();
    option->features.setFlag(QStyleOptionViewItem::WrapText, wraps);
    if (!m_view->rowsGrow()) option->text.replace(QChar::LineSeparator, QLatin1Char(' '));
    if (wraps) option->text = withUnbrokenNumbers(option->text, option->fontMetrics, QWIDGETSIZE_MAX);

    // One cell is always selected, the current one: while the keyboard is elsewhere it would read as a
    // choice.
    if (!m_view->hasFocus() && !m_view->severalCellsSelected())
        option->state.setFlag(QStyle::State_Selected, false);
    option->state.setFlag(QStyle::State_HasFocus, false);

    const QColor back = background(index, option->palette);
    option->backgroundBrush = back;
    const QColor text = legibleText(back, option->palette.color(QPalette::Text));
    option->palette.setColor(QPalette::Text, text);
}

QColor GridDelegate::background(const QModelIndex &index, const QPalette &palette) const {
    QColor colour = palette.color(QPalette::Base);
    if (m_look.alternating) {
        const bool odd = index.row() % 2 == 0;
        const QColor own = (odd ? m_look.oddRow : m_look.evenRow).BackColor;
        if (own.isValid()) colour = own;
    }
    if (const QVariant own = index.data(Qt::BackgroundRole); own.isValid()) colour = own.value<QColor>();
    if (m_look.marquee == MarqueeStyle::Row && m_view->currentIndex().row() == index.row())
        colour = mixed(colour, palette.color(QPalette::Highlight), CurrentRowShare);
    return colour;
}
