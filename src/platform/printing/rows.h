// Finds out from the places of elements which of them stand side by side, and which rows form a table.
#pragma once

#include "platform/printing/band.h"

namespace Printing {

/// Texts row by row from the top, each row from the left; pictures and rules before them.
void sortForReading(std::vector<Element> &elements);

/// The rows of sorted elements. A picture that stands in a framed cell or beside a single text becomes
/// that element's, any other a row of its own; a rule becomes the nearest row's.
std::vector<Row> rowsOf(const std::vector<Element> &elements);

/// The content in its logical order: rows with borders one below the other are a table.
PackedList<Block> blocksOf(const Bands &bands);

} // namespace Printing
