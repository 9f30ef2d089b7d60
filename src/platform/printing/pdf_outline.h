// Adds to a PDF what the PDF writer of Qt has no words for: the outline and the author.
#pragma once

#include <QByteArray>

#include "platform/printing/document.h"

namespace Printing {

/// `pdf`, as QPdfWriter wrote it for the document, with an incremental update behind it: an outline of the
/// headings that a reader opens with the file, and the author. Raises 321 for a file of another make.
QByteArray withOutline(const QByteArray &pdf, const Document &document);

} // namespace Printing
