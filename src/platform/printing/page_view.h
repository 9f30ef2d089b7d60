// The pages of a document under each other, at any zoom.
#pragma once

#include <QAbstractScrollArea>
#include <QCache>

#include "platform/printing/document_search.h"

namespace Printing {

class PageView : public QAbstractScrollArea {
    Q_OBJECT
public:
    enum class Fit { None, Width, Page };

    /// `document` outlives the view.
    explicit PageView(const Document &document, QWidget *parent = nullptr);

    /// 1 shows a page at the size that it has on a screen of 96 dots an inch.
    double zoom() const { return m_zoom; }
    /// Keeps the middle of the view in its place. Limited to 0.1 to 5.
    void setZoom(double zoom);
    Fit fit() const { return m_fit; }
    /// Width and Page follow the view's size until a zoom is set.
    void setFit(Fit fit);

    /// From 0: the page gone to last or, after scrolling, the one that fills the upper part of the view.
    int currentPage() const { return m_currentPage; }
    void goToPage(int page);

    void setMatches(std::vector<TextMatch> matches);
    /// Shown in a stronger colour and scrolled into view; -1 is none.
    void setCurrentMatch(int index);

Q_SIGNALS:
    void currentPageChanged(int page);
    void zoomChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QSize pageSize() const;
    QRect pageRect(int page) const; // in the viewport
    /// The page's point that is seen at `anchor` stays there.
    void applyZoom(double zoom, const QPoint &anchor);
    void applyFit();
    void updateScrollBars();
    int pageInView() const;
    void setCurrentPage(int page);
    const QImage &image(int page);
    void paintMatches(QPainter &painter, int page, const QRect &area);

    const Document &m_document;
    double m_zoom = 1;
    Fit m_fit = Fit::Width;
    int m_currentPage = 0;
    std::vector<TextMatch> m_matches;
    int m_currentMatch = -1;
    QCache<int, QImage> m_images; // cost in kilobytes
    QPoint m_dragStart;
};

} // namespace Printing
