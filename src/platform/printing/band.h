// A strip of the endless page that is placed on a page as a whole.
#pragma once

#include <memory>
#include <vector>

#include "platform/printing/document.h"

namespace Printing {

/// One section instance, or the part of one above, between or below its sub-reports and page breaks. A band
/// without elements is only distance, which may be lost at a page's foot.
struct Band {
    int height = 0;
    /// Boxes are counted from the print area's left edge and from the band's top; in reading order.
    std::vector<Element> elements;
    bool pageBreakBefore = false;
    bool keepWithNext = false;
    /// May be broken between two lines of text.
    bool isBreakable = false;
    /// This many twips from the band's top belong on one page; 0 where it does not matter.
    int keepHeight = 0;
    bool isRepeatedHeading = false;
    /// Headings that are printed again when a new page begins before this band or within it.
    std::vector<std::shared_ptr<const Band>> headings;
};

using Bands = std::vector<std::shared_ptr<Band>>;

} // namespace Printing
