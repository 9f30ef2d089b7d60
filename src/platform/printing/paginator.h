// Puts the bands of the endless page onto pages.
#pragma once

#include "platform/printing/band.h"
#include "platform/printing/report.h"

namespace Printing {

class Paginator {
public:
    /// Raises Format for the page headers and footers of each page.
    static Document paginate(Report &report, const Bands &bands);

private:
    Paginator(Report &report, const Bands &bands)
        : m_report(report)
        , m_bands(bands) {}

    void run();
    void beginPage();
    void continueOnNewPage(const Band &band);
    void place(const Band &band);
    void placeElements(const Band &band, bool repeated);
    Band pageSections(SectionType type);
    void putOnPage(const std::vector<Element> &elements, int top);
    void fillInPageTotal();
    std::vector<int> freeHeights(bool withKeepTogether) const;

    Report &m_report;
    const Bands &m_bands;
    const std::shared_ptr<PackedStore> m_store = std::make_shared<PackedStore>();
    Document m_document;
    int m_y = 0;      // from the paper's upper edge
    int m_top = 0;    // of the body
    int m_bottom = 0; // of the body
    bool m_isFresh = true;
    bool m_isContinued = false;
};

} // namespace Printing
