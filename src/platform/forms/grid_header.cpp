#include "platform/forms/grid_header.h"

#include <algorithm>
#include <numeric>

#include <QEvent>
#include <QPainter>
#include <QStyleOptionHeader>
#include <QSvgRenderer>

#include "platform/forms/grid_model.h"
#include "platform/forms/number_blanks.h"

namespace {
constexpr int HeadingMargin = 4;
constexpr int MinimumSection = 8;

FittedText fitLine(const QString &line, const QFont &font, const QSize &room) {
    return fitText(withUnbrokenNumbers(line, QFontMetricsF(font), room.width()), font, room, true);
}
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
    const std::vector<int> lines = lineHeights();
    int height = qMax(fontMetrics().height(), std::accumulate(lines.begin(), lines.end(), 0));
    for (int i = 0; i < m_model.columnCount(); ++i)
        if (!isSectionHidden(i) && m_model.column(i).shownPicture() != nullptr)
            height = qMax(height, pictureSize(i, sectionSize(i) - 2 * HeadingMargin).height());
    return {length(), height + 2 * HeadingMargin};
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

    const QRect inner = rect.adjusted(HeadingMargin, HeadingMargin, -HeadingMargin, -HeadingMargin);
    const QColor colour = option.palette.color(QPalette::ButtonText);
    if (m_model.column(index).shownPicture()) {
        paintPicture(painter, inner, index, colour);
    } else {
        painter->setPen(colour);
        paintText(painter, rect, index);
    }
    painter->restore();
}

QSize GridHeader::sectionSizeFromContents(int index) const {
    QSize size = pictureSize(index, QWIDGETSIZE_MAX);
    if (m_model.column(index).shownPicture() == nullptr)
        size = fitText(text(index), font(), {QWIDGETSIZE_MAX, QWIDGETSIZE_MAX}, false).size;
    return size + QSize(2 * HeadingMargin + 1, 2 * HeadingMargin);
}

void GridHeader::paintPicture(QPainter *painter, const QRect &rect, int index, const QColor &colour) const {
    const QSize size = pictureSize(index, rect.width()).boundedTo(rect.size());
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

QSize GridHeader::pictureSize(int index, int width) const {
    const QSvgRenderer *picture = m_model.column(index).shownPicture();
    if (picture == nullptr) return {0, 0};
    const QSize natural = picture->defaultSize();
    return natural.width() <= width ? natural
                                    : natural.scaled(qMax(width, 1), natural.height(), Qt::KeepAspectRatio);
}

const GridHeader::Measured &GridHeader::measured(int index, int width) const {
    if (static_cast<int>(m_measured.size()) != m_model.columnCount())
        m_measured.resize(static_cast<std::size_t>(m_model.columnCount()));
    Measured &measured = m_measured[static_cast<std::size_t>(index)];
    const QString heading = text(index);
    if (measured.width == width && measured.text == heading) return measured;
    measured = {heading, width, heading.split(QLatin1Char('\n')), {}};
    for (const QString &line : measured.lines)
        measured.heights.push_back(fitLine(line, font(), {width, QWIDGETSIZE_MAX}).size.height());
    return measured;
}

/// Of the first line of all headings, of the second, and so on: what a reader compares, as units, stands side
/// by side, whichever column needs more room for it.
std::vector<int> GridHeader::lineHeights() const {
    std::vector<int> heights;
    for (int i = 0; i < m_model.columnCount(); ++i) {
        if (isSectionHidden(i) || m_model.column(i).shownPicture() != nullptr) continue;
        const std::vector<int> &own = measured(i, qMax(sectionSize(i) - 2 * HeadingMargin, 0)).heights;
        heights.resize(std::max(heights.size(), own.size()), 0);
        for (std::size_t line = 0; line < own.size(); ++line)
            heights[line] = std::max(heights[line], own[line]);
    }
    return heights;
}

std::vector<GridHeader::PlacedLine> GridHeader::placeLines(int index, const QRect &room,
                                                           const QFont &font) const {
    const std::vector<int> heights = lineHeights();
    QRect place = room;
    place.moveTop((height() - std::accumulate(heights.begin(), heights.end(), 0)) / 2);
    const QStringList lines = text(index).split(QLatin1Char('\n'));
    std::vector<PlacedLine> placed;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        place.setHeight(heights[static_cast<std::size_t>(i)]);
        const FittedText fitted = fitLine(lines[i], font, place.size());
        const Qt::Alignment alignment = m_model.column(index).HeadAlignment() | Qt::AlignTop;
        placed.push_back({QStyle::alignedRect(layoutDirection(), alignment, fitted.size, place), fitted});
        place.moveTop(place.top() + place.height());
    }
    return placed;
}

/// Where the edge of the view would cut a line, the part of the heading that is in sight is all the room.
std::vector<GridHeader::PlacedLine> GridHeader::linesInSight(int index, const QRect &section,
                                                             const QFont &font) const {
    const auto inner = [](const QRect &rect) { return rect.adjusted(HeadingMargin, 0, -HeadingMargin, 0); };
    const QRect inSight = section & viewport()->rect();
    const std::vector<PlacedLine> lines = placeLines(index, inner(section), font);
    const bool whole = std::all_of(lines.begin(), lines.end(), [&inSight](const PlacedLine &line) {
        return line.place.left() >= inSight.left() && line.place.right() <= inSight.right();
    });
    return whole || inSight.width() <= 2 * HeadingMargin ? lines : placeLines(index, inner(inSight), font);
}

void GridHeader::paintText(QPainter *painter, const QRect &section, int index) const {
    for (const PlacedLine &line : linesInSight(index, section, painter->font())) {
        if (line.text.isBareMark()) drawCutMark(*painter, line.place, painter->pen().color());
        QRect place = line.place;
        const int count = static_cast<int>(line.text.lines.size());
        for (int i = 0; i < count; ++i) {
            place.setTop(line.place.top() + line.place.height() * i / count);
            const Qt::Alignment alignment = m_model.column(index).HeadAlignment() | Qt::AlignTop;
            painter->drawText(place, int(alignment) | Qt::TextSingleLine | Qt::TextDontClip,
                              line.text.lines[i]);
        }
    }
}

bool GridHeader::isCut(int index) const {
    const QRect section(sectionViewportPosition(index), 0, sectionSize(index), height());
    if (const QSvgRenderer *picture = m_model.column(index).shownPicture())
        return picture->defaultSize().width() > (section & viewport()->rect()).width() - 2 * HeadingMargin;
    const std::vector<PlacedLine> lines = linesInSight(index, section, font());
    return std::any_of(lines.begin(), lines.end(), [](const PlacedLine &line) { return line.text.cut; });
}

void GridHeader::changeEvent(QEvent *event) {
    QHeaderView::changeEvent(event);
    if (event->type() == QEvent::FontChange) m_measured.clear();
}

QString GridHeader::text(int index) const {
    return m_model.headerData(index, Qt::Horizontal, Qt::DisplayRole).toString();
}
