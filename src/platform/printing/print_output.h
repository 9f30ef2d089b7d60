// Prints a document on paper.
#pragma once

#include "platform/printing/document.h"

class QPrinter;

namespace Printing {

/// Prints what the printer's settings say: page ranges (all pages where none is set), their order, copies,
/// and the paper, on which the pages keep their proportions. Raises 482 where the printer doesn't start or
/// fails; the file of one that prints into a file is then gone.
void printDocument(const Document &document, QPrinter &printer);

} // namespace Printing
