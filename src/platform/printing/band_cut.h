// Where a band may be cut in two, and the cutting.
#pragma once

#include <utility>

#include "platform/printing/band.h"

namespace Printing {

/// Ascending distances from the band's top: between lines of text and between elements, but behind no heading
/// or caption and not so that one line of several stands alone. Empty for what has no such place.
std::vector<int> cutPlaces(const Band &band);

/// The parts above and below `place`.
std::pair<Band, Band> cutBand(const Band &band, int place);

/// The part below, where rows of cells go on in it with their title and their captions once more.
Band withCaptions(const Band &above, const Band &below);

} // namespace Printing
