// Paints a page of a document anywhere: screen, printer, PDF, image.
#pragma once

#include "platform/printing/document.h"

class QPageSize;
class QPainter;

namespace Printing {

/// The painter's coordinates are twips from the paper's upper left corner. What lies outside its clip is
/// passed over.
void paintPage(QPainter &painter, const Page &page);

QPageSize paperSize(const PageSettings &settings);

/// The page on white ground, `scale` pixels to each of 15 twips.
QImage pageImage(const Document &document, int page, double scale);

} // namespace Printing
