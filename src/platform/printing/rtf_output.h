// Writes a document as a rich text file.
#pragma once

#include "platform/printing/document.h"

namespace Printing {

/// The content in its logical order, with headings, tables whose heading rows repeat, pictures, and the page
/// header and footer with page fields; the reader makes up the pages. All characters outside ASCII are
/// written by their number.
QByteArray rtfText(const Document &document);

/// Raises what writeWholeFile() raises.
void saveRtf(const Document &document, const QString &path);

} // namespace Printing
