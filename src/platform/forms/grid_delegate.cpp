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

int textWidth(const QStyleOptionViewItem &option) {
    const QStyle *style = option.widget ? option.widget->style() : QApplication::style();
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, &option, option.widget) + 1;
    return option.rect.width() - 2 * margin;
}

/// Where not even the mark of a cut text has room, the cell would look empty, as if it held no value.
void makeRoomForEllipsis(QStyleOptionViewItem &option) {
    const int room = textWidth(option);
    const QFontMetrics metrics(option.font);
    const int needed = metrics.horizontalAdvance(QChar(0x2026));
    if (room <= 0 || room >= needed || metrics.horizontalAdvance(option.text) <= room) return;
    option.font.setPixelSize(std::max(1, QFontInfo(option.font).pixelSize() * room / needed));
    option.fontMetrics = QFontMetrics(option.font);
}

} // namespace

GridDelegate::GridDelegate(const GridModel &model, const GridLook &look, GridView *view)
    : QStyledItemDelegate(view)
    , m_model(model)
    , m_look(look)
    , m_view(view) {}

void GridDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const {
    QStyledItemDelegate::paint(painter, option, index);
    if (m_view->currentIndex() != index || !m_view->hasFocus()) return;
    // Styles differ in whether they show the focus of a cell that a mouse click brought.
    const QColor back = (option.state & QStyle::State_Selected) ? option.palette.color(QPalette::Highlight)
                                                                : background(index, option.palette);
    painter->save();
    painter->setPen(QPen(legibleText(back, option.palette.color(QPalette::HighlightedText)), 1, Qt::DotLine));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(option.rect.adjusted(1, 1, -2, -2));
    painter->restore();
}

void GridDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    const bool wraps = m_model.column(index.column()).WordWrap();
    option->features.setFlag(QStyleOptionViewItem::WrapText, wraps);
    if (!m_view->rowsGrow()) option->text.replace(QChar::LineSeparator, QLatin1Char(' '));
    if (wraps)
        option->text = withUnbrokenNumbers(option->text, option->fontMetrics, textWidth(*option));
    else
        makeRoomForEllipsis(*option);

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
    if (m_look.marquee == MarqueeStyle::Row && m_view->currentIndex().row() == index.row())
        colour = mixed(colour, palette.color(QPalette::Highlight), CurrentRowShare);
    return colour;
}
