#include "platform/printing/page_painter.h"

#include <QPageSize>
#include <QPaintEngine>
#include <QPainter>

#include "platform/printing/text_layout.h"
#include "platform/runtime/twips.h"

namespace Printing {

namespace {

// 0.4 points: a hairline that a laser printer still draws black.
constexpr double HairlineWidth = 8;

// Pixels can't show less than one of them; a fraction would come out grey.
QPen hairline(const QPainter &painter, const QColor &colour) {
    const bool isRaster = painter.paintEngine()->type() == QPaintEngine::Raster;
    QPen pen(colour, HairlineWidth, Qt::SolidLine, Qt::SquareCap);
    if (isRaster && painter.transform().m11() * HairlineWidth < 1) {
        pen.setWidth(1);
        pen.setCosmetic(true);
    }
    return pen;
}

void paintBorder(QPainter &painter, const Element &element) {
    const QRectF box = element.box;
    const BorderStyles &border = element.Border;
    if (border.TopStyle != 0) painter.drawLine(box.topLeft(), box.topRight());
    if (border.RightStyle != 0) painter.drawLine(box.topRight(), box.bottomRight());
    if (border.BottomStyle != 0) painter.drawLine(box.bottomLeft(), box.bottomRight());
    if (border.LeftStyle != 0) painter.drawLine(box.topLeft(), box.bottomLeft());
    if (element.isRule) painter.drawLine(box.topLeft(), box.bottomRight());
}

void paintText(QPainter &painter, const Element &element) {
    if (element.lines.empty()) return;
    painter.setFont(twipsFont(element.Font));
    painter.setPen(element.ForeColor);
    for (const TextLine &line : element.lines)
        painter.drawText(QPointF(element.box.topLeft() + QPoint(line.left, line.top + line.ascent)),
                         line.text);
}

} // namespace

// Grounds, then pictures, then frames, then texts: so no ground covers its neighbour's frame or a picture.
void paintPage(QPainter &painter, const Page &page) {
    painter.save();
    const QRectF clip = painter.hasClipping() ? painter.clipBoundingRect() : QRectF();
    const std::vector<Element> elements = page.elements;
    std::vector<const Element *> visible;
    for (const Element &element : elements) {
        const QRectF reach =
            QRectF(element.box).adjusted(-HairlineWidth, -HairlineWidth, HairlineWidth, HairlineWidth);
        if (clip.isNull() || clip.intersects(reach)) visible.push_back(&element);
    }

    painter.setRenderHint(QPainter::Antialiasing, false);
    for (const Element *element : visible)
        if (element->BackStyle != 0) painter.fillRect(element->box, element->BackColor);
    for (const Element *element : visible)
        element->picture.paint(painter, element->box);
    for (const Element *element : visible) {
        if (!element->Border.any() && !element->isRule) continue;
        painter.setPen(hairline(painter, element->isRule ? element->ForeColor : QColor(Qt::black)));
        paintBorder(painter, *element);
    }
    painter.setRenderHint(QPainter::TextAntialiasing);
    for (const Element *element : visible)
        paintText(painter, *element);
    painter.restore();
}

QPageSize paperSize(const PageSettings &settings) {
    return QPageSize(QSizeF(settings.PaperWidth, settings.PaperHeight) / TwipsPerPoint, QPageSize::Point);
}

QImage pageImage(const Document &document, int page, double scale) {
    const QSizeF twips(document.pageSettings.PaperWidth, document.pageSettings.PaperHeight);
    const double pixelsPerTwip = scale / TwipsPerPixel;
    QImage image = blankImage((twips * pixelsPerTwip).toSize());
    QPainter painter(&image);
    painter.scale(pixelsPerTwip, pixelsPerTwip);
    paintPage(painter, document.pages[std::size_t(page)]);
    return image;
}

} // namespace Printing
