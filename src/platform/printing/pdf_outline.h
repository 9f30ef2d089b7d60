// Adds to a PDF what the PDF writer of Qt has no words for: the outline and the author.
#pragma once

#include <QByteArray>

#include "platform/printing/document.h"

namespace Printing {

/// `pdf` with an outline of the document's headings, which a reader opens with the file, with title and
/// author, and with an identifier that is the same for the same texts. Raises 321 for what is no PDF.
QByteArray withOutline(const QByteArray &pdf, const Document &document);

} // namespace Printing
