#include "platform/forms/grid_header.h"

#include <QEvent>
#include <QPainter>
#include <QStyleOptionHeader>
#include <QSvgRenderer>

#include "platform/forms/grid_model.h"
#include "platform/forms/number_blanks.h"

namespace {
constexpr int Margin = 4;
constexpr int MinimumSection = 8;
} // namespace

GridHeader::GridHeader(const GridModel &model, QWidget *parent)
    : QHeaderView(Qt::Horizontal, parent)
    , m_model(model) {
    setSectionsClickable(true);
    setHighlightSections(false);
    setMinimumSectionSize(MinimumSection);
    // A column that a double click fits to its texts is to read no more than the rows on the screen.
    setResizeContentsPrecision(0);
    connect(this, &QHeaderView::sectionResized, this, &GridHeader::headingsChanged);
}

QSize GridHeader::sizeHint() const {
    int height = fontMetrics().height();
    for (int i = 0; i < m_model.columnCount(); ++i)
        if (!isSectionHidden(i)) height = qMax(height, headingSize(i, sectionSize(i) - 2 * Margin).height());
    return {length(), height + 2 * Margin};
}

void GridHeader::headingsChanged() {
    viewport()->update();
    Q_EMIT geometriesChanged();
}

void GridHeader::paintEvent(QPaintEvent *event) {
    QHeaderView::paintEvent(event);
    const QRect beside = viewport()->rect().adjusted(length() - offset(), 0, 0, 0);
    if (beside.width() <= 0) return;
    // One bar up to the grid's edge, where styles would leave the place beside the last heading bare.
    QPainter painter(viewport());
    QStyleOptionHeader option;
    initStyleOption(&option);
    option.rect = beside.adjusted(0, 0, 1, 0);
    style()->drawControl(QStyle::CE_HeaderSection, &option, &painter, this);
}

void GridHeader::paintSection(QPainter *painter, const QRect &rect, int index) const {
    QStyleOptionHeaderV2 option;
    initStyleOption(&option);
    initStyleOptionForIndex(&option, index);
    option.rect = rect;
    painter->save();
    style()->drawControl(QStyle::CE_HeaderSection, &option, painter, this);

    const QRect inner = rect.adjusted(Margin, Margin, -Margin, -Margin);
    const QColor colour = option.palette.color(QPalette::ButtonText);
    if (m_model.column(index).shownPicture()) {
        paintPicture(painter, inner, index, colour);
    } else {
        painter->setPen(colour);
        const Qt::Alignment alignment = m_model.column(index).HeadAlignment() | Qt::AlignVCenter;
        painter->drawText(inner, int(alignment) | Qt::TextWordWrap,
                          withUnbrokenNumbers(text(index), fontMetrics(), inner.width()));
    }
    painter->restore();
}

QSize GridHeader::sectionSizeFromContents(int index) const {
    return headingSize(index, QWIDGETSIZE_MAX) + QSize(2 * Margin + 1, 2 * Margin);
}

void GridHeader::paintPicture(QPainter *painter, const QRect &rect, int index, const QColor &colour) const {
    const QSize size = headingSize(index, rect.width()).boundedTo(rect.size());
    if (size.isEmpty()) return;
    const qreal scale = painter->device()->devicePixelRatioF();
    QImage image(size * scale, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter pen(&image);
    m_model.column(index).shownPicture()->render(&pen, QRectF(QPointF(0, 0), QSizeF(size * scale)));
    pen.setCompositionMode(QPainter::CompositionMode_SourceIn);
    pen.fillRect(image.rect(), colour);
    pen.end();
    const QRect place = QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, size, rect);
    painter->drawImage(place, image);
}

QSize GridHeader::headingSize(int index, int width) const {
    if (const QSvgRenderer *picture = m_model.column(index).shownPicture()) {
        const QSize natural = picture->defaultSize();
        return natural.width() <= width
                   ? natural
                   : natural.scaled(qMax(width, 1), natural.height(), Qt::KeepAspectRatio);
    }
    if (static_cast<int>(m_measured.size()) != m_model.columnCount())
        m_measured.resize(static_cast<std::size_t>(m_model.columnCount()));
    Measured &measured = m_measured[static_cast<std::size_t>(index)];
    if (const QString heading = text(index); measured.width != width || measured.text != heading) {
        const QRect bounds(0, 0, qMax(width, 1), QWIDGETSIZE_MAX);
        const QRect place = fontMetrics().boundingRect(bounds, int(Qt::AlignLeft) | Qt::TextWordWrap,
                                                       withUnbrokenNumbers(heading, fontMetrics(), width));
        measured = {heading, width, place.size()};
    }
    return measured.size;
}

void GridHeader::changeEvent(QEvent *event) {
    QHeaderView::changeEvent(event);
    if (event->type() == QEvent::FontChange) m_measured.clear();
}

QString GridHeader::text(int index) const {
    return m_model.headerData(index, Qt::Horizontal, Qt::DisplayRole).toString();
}
