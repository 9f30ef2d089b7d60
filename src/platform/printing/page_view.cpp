#include "platform/printing/page_view.h"

#include <cmath>

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include "platform/printing/page_painter.h"
#include "platform/runtime/twips.h"

namespace Printing {

namespace {

constexpr int PageDistance = 16; // pixels around each page
constexpr double SmallestZoom = 0.1;
constexpr double LargestZoom = 5;
constexpr double WheelStep = 1.2;
constexpr int ImageMemory = 128 * 1024; // kilobytes
constexpr int ScrollStep = 48;
const QColor Ground(0x8A, 0x8F, 0x96);
const QColor PageShadow(0x5A, 0x5E, 0x64);
const QColor MatchColour(255, 221, 0, 110);
const QColor CurrentMatchColour(255, 128, 0, 150);

} // namespace

PageView::PageView(const Document &document, QWidget *parent)
    : QAbstractScrollArea(parent)
    , m_document(document)
    , m_images(ImageMemory) {
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::NoFrame);
    viewport()->setCursor(Qt::OpenHandCursor);
    verticalScrollBar()->setSingleStep(ScrollStep);
    horizontalScrollBar()->setSingleStep(ScrollStep);
}

QSize PageView::pageSize() const {
    const QSizeF twips(m_document.pageSettings.PaperWidth, m_document.pageSettings.PaperHeight);
    return (twips * (m_zoom / TwipsPerPixel)).toSize();
}

QRect PageView::pageRect(int page) const {
    const QSize size = pageSize();
    const int free = viewport()->width() - size.width();
    const int left = free > 2 * PageDistance ? free / 2 : PageDistance - horizontalScrollBar()->value();
    const int top = PageDistance + page * (size.height() + PageDistance) - verticalScrollBar()->value();
    return {QPoint(left, top), size};
}

void PageView::setZoom(double zoom) {
    m_fit = Fit::None;
    applyZoom(zoom, viewport()->rect().center());
}

void PageView::setFit(Fit fit) {
    m_fit = fit;
    applyFit();
}

void PageView::applyFit() {
    if (m_fit == Fit::None || m_document.pages.empty()) return;
    const double width = double(m_document.pageSettings.PaperWidth) / TwipsPerPixel;
    const double height = double(m_document.pageSettings.PaperHeight) / TwipsPerPixel;
    // Whether there is a scroll bar follows from the zoom, so the zoom must not follow from that.
    const QSize room = maximumViewportSize() -
                       QSize(verticalScrollBar()->sizeHint().width() + 2 * PageDistance, 2 * PageDistance);
    const double byWidth = room.width() / width;
    const double byHeight = room.height() / height;
    applyZoom(m_fit == Fit::Width ? byWidth : std::min(byWidth, byHeight), viewport()->rect().topLeft());
}

void PageView::applyZoom(double zoom, const QPoint &anchor) {
    const int current = currentPage();
    const QRect page = pageRect(current);
    const double across = double(anchor.x() - page.left()) / page.width();
    const double down = double(anchor.y() - page.top()) / page.height();

    m_zoom = std::clamp(zoom, SmallestZoom, LargestZoom);
    m_images.clear();
    updateScrollBars();
    const QRect zoomed = pageRect(current);
    QScrollBar *horizontal = horizontalScrollBar();
    QScrollBar *vertical = verticalScrollBar();
    horizontal->setValue(horizontal->value() + zoomed.left() + qRound(across * zoomed.width()) - anchor.x());
    vertical->setValue(vertical->value() + zoomed.top() + qRound(down * zoomed.height()) - anchor.y());
    viewport()->update();
    Q_EMIT zoomChanged();
}

void PageView::updateScrollBars() {
    const QSize size = pageSize();
    const QSize view = viewport()->size();
    const int height = PageDistance + int(m_document.pages.size()) * (size.height() + PageDistance);
    verticalScrollBar()->setPageStep(view.height());
    verticalScrollBar()->setRange(0, std::max(0, height - view.height()));
    horizontalScrollBar()->setPageStep(view.width());
    horizontalScrollBar()->setRange(0, std::max(0, size.width() + 2 * PageDistance - view.width()));
}

int PageView::pageInView() const {
    const int last = std::max(0, int(m_document.pages.size()) - 1);
    const QScrollBar *scrollBar = verticalScrollBar();
    if (scrollBar->value() > 0 && scrollBar->value() == scrollBar->maximum()) return last;
    const int pageStep = pageSize().height() + PageDistance;
    return std::min((scrollBar->value() + pageStep / 2) / pageStep, last);
}

void PageView::goToPage(int page) {
    page = std::clamp(page, 0, std::max(0, int(m_document.pages.size()) - 1));
    verticalScrollBar()->setValue(page * (pageSize().height() + PageDistance));
    // Where several pages are in view, the scroll bar can't reach each of them.
    setCurrentPage(page);
}

void PageView::setMatches(std::vector<TextMatch> matches) {
    m_matches = std::move(matches);
    m_currentMatch = -1;
    viewport()->update();
}

void PageView::setCurrentMatch(int index) {
    m_currentMatch = index;
    viewport()->update();
    if (index < 0) return;
    const TextMatch &match = m_matches[std::size_t(index)];
    const QPointF middle = matchAreas(m_document, match).front().center() * (m_zoom / TwipsPerPixel);
    const QPoint place = pageRect(match.page).topLeft() + middle.toPoint();
    if (!viewport()->rect().contains(place)) {
        const QPoint away = place - viewport()->rect().center();
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() + away.x());
        verticalScrollBar()->setValue(verticalScrollBar()->value() + away.y());
    }
    setCurrentPage(match.page);
}

const QImage &PageView::image(int page) {
    if (!m_images.contains(page)) {
        const double ratio = devicePixelRatioF();
        auto *painted = new QImage(pageImage(m_document, page, m_zoom * ratio));
        painted->setDevicePixelRatio(ratio);
        // A page larger than the memory would be thrown away at once.
        m_images.insert(page, painted, std::min(ImageMemory, int(painted->sizeInBytes() / 1024)));
    }
    return *m_images.object(page);
}

void PageView::paintEvent(QPaintEvent *event) {
    QPainter painter(viewport());
    painter.fillRect(event->rect(), Ground);
    for (int page = 0; page < int(m_document.pages.size()); ++page) {
        const QRect area = pageRect(page);
        if (!area.adjusted(0, 0, 3, 3).intersects(event->rect())) continue;
        painter.fillRect(area.translated(3, 3), PageShadow);
        painter.drawImage(area, image(page));
        paintMatches(painter, page, area);
    }
}

void PageView::paintMatches(QPainter &painter, int page, const QRect &area) {
    const double scale = m_zoom / TwipsPerPixel;
    for (std::size_t i = 0; i < m_matches.size(); ++i) {
        if (m_matches[i].page != page) continue;
        for (const QRectF &match : matchAreas(m_document, m_matches[i]))
            painter.fillRect(QRectF(area.topLeft() + match.topLeft() * scale, match.size() * scale),
                             int(i) == m_currentMatch ? CurrentMatchColour : MatchColour);
    }
}

void PageView::setCurrentPage(int page) {
    if (page == m_currentPage) return;
    m_currentPage = page;
    Q_EMIT currentPageChanged(page);
}

void PageView::resizeEvent(QResizeEvent *event) {
    QAbstractScrollArea::resizeEvent(event);
    if (m_fit == Fit::None)
        updateScrollBars();
    else
        applyFit();
    setCurrentPage(pageInView());
}

void PageView::scrollContentsBy(int dx, int dy) {
    Q_UNUSED(dx)
    Q_UNUSED(dy)
    viewport()->update();
    setCurrentPage(pageInView());
}

void PageView::keyPressEvent(QKeyEvent *event) {
    QScrollBar *vertical = verticalScrollBar();
    switch (event->key()) {
    case Qt::Key_Home:
        vertical->setValue(vertical->minimum());
        break;
    case Qt::Key_End:
        vertical->setValue(vertical->maximum());
        break;
    case Qt::Key_Space:
        vertical->triggerAction(event->modifiers().testFlag(Qt::ShiftModifier)
                                    ? QAbstractSlider::SliderPageStepSub
                                    : QAbstractSlider::SliderPageStepAdd);
        break;
    default:
        // The base knows the arrows and Page Up and Down.
        QAbstractScrollArea::keyPressEvent(event);
    }
}

void PageView::wheelEvent(QWheelEvent *event) {
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        setZoom(m_zoom * std::pow(WheelStep, event->angleDelta().y() / 120.0));
        event->accept();
    } else {
        QAbstractScrollArea::wheelEvent(event);
    }
}

void PageView::mousePressEvent(QMouseEvent *event) {
    if (event->button() != Qt::LeftButton) return;
    m_dragStart = event->pos();
    viewport()->setCursor(Qt::ClosedHandCursor);
}

void PageView::mouseMoveEvent(QMouseEvent *event) {
    if (!event->buttons().testFlag(Qt::LeftButton)) return;
    const QPoint moved = event->pos() - m_dragStart;
    m_dragStart = event->pos();
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - moved.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() - moved.y());
}

void PageView::mouseReleaseEvent(QMouseEvent *) {
    viewport()->setCursor(Qt::OpenHandCursor);
}

} // namespace Printing
