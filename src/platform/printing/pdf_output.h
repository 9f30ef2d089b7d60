// Writes a document as a PDF file.
#pragma once

#include "platform/printing/document.h"

namespace Printing {

/// Text in embedded fonts, pictures as vectors where they are made of them, title and author, an outline of
/// the headings. Two runs differ in the date only. Raises what writeWholeFile() raises.
void savePdf(const Document &document, const QString &path);

} // namespace Printing
