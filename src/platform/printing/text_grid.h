// Sets the rows of a table in columns of characters.
#pragma once

#include <QStringList>

#include "platform/printing/document.h"

namespace Printing {

constexpr int LineCharacters = 132;

/// Greedy, at blanks. A word that is wider stays whole.
QStringList wrapText(const QString &text, int width);

/// The lines of a table (bars between its columns; a rule below its heading, beside rows of several lines,
/// and above captions that head one row alone) or of aligned rows.
QStringList gridLines(const Block &block);

} // namespace Printing
