// Where the controls of one section instance come to stand, with the growing and shrinking ones in it.
#pragma once

#include <QHash>

#include "platform/printing/section.h"

namespace Printing {

struct PlacedControl {
    const Control *control = nullptr;
    /// In the instance. Without content for a sub-report and a page break.
    Element element;
};

struct SectionLayout {
    /// The visible ones, from top to bottom as designed, else in the order of the section.
    std::vector<PlacedControl> controls;
    int height = 0;
};

SectionLayout layOutSection(const Section &section, const QHash<const Control *, int> &subReportHeights = {});

} // namespace Printing
