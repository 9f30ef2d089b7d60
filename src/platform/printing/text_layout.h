// Breaks texts into lines and measures them, in twips and alike for every output.
#pragma once

#include <QFont>

#include "platform/printing/document.h"

namespace Printing {

/// One pixel of the font is one twip.
QFont twipsFont(const TextFont &font);

/// Breaks the element's text to the width of its box, at words if `wordWrap` and inside a word only where it
/// is wider than the box. The lines wait at the box's upper left corner until arrangeLines().
void breakLines(Element &element, bool wordWrap);

/// The height that the lines and the space around them take; 0 without text.
int neededHeight(const Element &element);

/// Drops what does not fit into the box, and marks the place with an ellipsis.
void cutLinesToBox(Element &element);

/// Moves the lines to where the alignments want them in the box.
void arrangeLines(Element &element);

} // namespace Printing
