// Breaks texts into lines and measures them, in twips and alike for every output.
#pragma once

#include <QFont>

#include "platform/printing/document.h"

namespace Printing {

/// One pixel of the font is one twip.
QFont twipsFont(const TextFont &font);

/// Whether the element needs its width for the text and has none to leave beside it.
bool isNarrow(const Element &element);

/// With line feeds for line ends, and without control characters other than these and tabs.
QString printableText(QString text);

/// The element's text with no-break spaces where its box has room for a whole number.
QString unbrokenText(const Element &element);

/// Breaks the element's text to the width of its box, at blanks if `wordWrap`. In a cell the font gets
/// smaller where a word is wider than the box, as long as it stays readable; otherwise such a word is broken.
/// The lines wait at the box's upper left corner until arrangeLines().
void breakLines(Element &element, bool wordWrap);

/// The height that the lines and the space around them take; 0 without text.
int neededHeight(const Element &element);

/// Drops what does not fit into the box, and marks the place with an ellipsis.
void cutLinesToBox(Element &element);

/// Moves the lines to where the alignments want them in the box.
void arrangeLines(Element &element);

} // namespace Printing
