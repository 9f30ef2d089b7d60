// Writes a document as plain text on a character grid.
#pragma once

#include "platform/printing/document.h"

namespace Printing {

/// The content in its logical order as one long page, with the page header before it and the page footer
/// behind it. The columns of a table stand under each other; cells are broken at words so that no line gets
/// wider than 132 characters, and a table whose longest words are wider than that goes on below itself, with
/// its first column again. Only a single cell may be wider.
QString gridText(const Document &document);

/// In UTF-8, lines end with a line feed. Raises what writeWholeFile() raises.
void saveText(const Document &document, const QString &path);

} // namespace Printing
