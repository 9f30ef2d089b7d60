// Prints a document on paper.
#pragma once

#include "platform/printing/document.h"

class QPrinter;

namespace Printing {

/// Prints the printer's page range, all pages where none is set. Raises 482 where the printer doesn't start
/// or fails; the file of one that prints into a file is then gone.
void printDocument(const Document &document, QPrinter &printer);

} // namespace Printing
