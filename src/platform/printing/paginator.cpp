#include "platform/printing/paginator.h"

#include "platform/printing/band_cut.h"
#include "platform/printing/composer.h"
#include "platform/printing/rows.h"
#include "platform/printing/text_layout.h"

namespace Printing {

namespace {

// What a section that is kept together may leave empty: this part of a page.
constexpr int LargestEmptyShare = 3;

int smallestPiece(const Band &band) {
    const std::vector<int> places = cutPlaces(band);
    return places.empty() ? band.height : places.front();
}

int firstPiece(const Band &band) {
    return band.isBreakable || band.keepHeight > 0 ? smallestPiece(band) : band.height;
}

// Distance above what begins a further page is lost.
Band withoutSpaceAbove(Band band) {
    if (band.elements.empty()) return band;
    int space = band.height;
    for (const Element &element : band.elements)
        space = std::min(space, element.box.top());
    for (Element &element : band.elements)
        element.box.translate(0, -space);
    band.height -= space;
    return band;
}

int heightOfHeadings(const Band &band) {
    int height = 0;
    for (const auto &heading : band.headings)
        height += heading->height;
    return height;
}

} // namespace

Document Paginator::paginate(Report &report, const Bands &bands) {
    Paginator paginator(report, bands);
    paginator.run();
    return std::move(paginator.m_document);
}

void Paginator::run() {
    m_document.pageSettings = m_report.PageSetup;
    beginPage();
    const std::vector<int> needed = freeHeights(false);
    const std::vector<int> wished = freeHeights(true);
    for (std::size_t i = 0; i < m_bands.size(); ++i) {
        const Band &band = *m_bands[i];
        if (band.pageBreakBefore && !m_isFresh) beginPage();
        if (band.elements.empty()) {
            if (m_isFresh && m_isContinued) continue;
            m_y = std::min(m_y + band.height, m_bottom);
            m_isFresh = false;
            continue;
        }
        const int available = m_bottom - m_top - heightOfHeadings(band);
        const bool leavesMuchEmpty = m_bottom - m_y > (m_bottom - m_top) / LargestEmptyShare;
        const int wanted = wished[i] <= available && !leavesMuchEmpty ? wished[i]
                           : needed[i] <= available                   ? needed[i]
                                                                      : firstPiece(band);
        if (m_y + wanted > m_bottom && !m_isFresh) continueOnNewPage(band);
        place(band);
    }
    fillInPageTotal();
}

// For each band: the height that must be free where it begins, for itself and what it keeps with.
std::vector<int> Paginator::freeHeights(bool withKeepTogether) const {
    std::vector<int> heights(m_bands.size());
    for (std::size_t i = m_bands.size(); i-- > 0;) {
        const Band &band = *m_bands[i];
        // A distance belongs to what is above it and to what is below it.
        const bool wishes = band.keepWithNext || band.elements.empty();
        const bool keeps = wishes && i + 1 < m_bands.size() && !m_bands[i + 1]->pageBreakBefore;
        heights[i] = keeps ? band.height + heights[i + 1] : firstPiece(band);
        if (withKeepTogether) heights[i] = std::max(heights[i], band.keepHeight);
    }
    return heights;
}

void Paginator::beginPage() {
    m_document.pages.push_back({PackedList<Element>(m_store)});
    const PageSettings &paper = m_document.pageSettings;
    const Band header = pageSections(SectionType::PageHeader);
    const Band footer = pageSections(SectionType::PageFooter);
    m_top = paper.TopMargin + header.height;
    m_bottom = paper.PaperHeight - paper.BottomMargin - footer.height;
    putOnPage(header.elements, paper.TopMargin);
    putOnPage(footer.elements, m_bottom);
    if (m_document.pages.size() == 1) {
        m_document.pageHeader = rowsOf(header.elements);
        m_document.pageFooter = rowsOf(footer.elements);
        m_document.pageHeaderHeight = header.height;
        m_document.pageFooterHeight = footer.height;
    }
    m_y = m_top;
    m_isFresh = true;
    m_isContinued = false;
}

void Paginator::continueOnNewPage(const Band &band) {
    beginPage();
    m_isContinued = true;
    // Headings that would leave no room for what they head are left out.
    if (heightOfHeadings(band) + firstPiece(band) > m_bottom - m_top) return;
    for (const auto &heading : band.headings)
        placeElements(*heading, true);
}

void Paginator::place(const Band &band) {
    const auto atPlace = [this](const Band &piece) {
        return m_isContinued && m_y == m_top ? withoutSpaceAbove(piece) : piece;
    };
    Band rest = atPlace(band);
    while (m_y + rest.height > m_bottom) {
        const int room = m_bottom - m_y;
        int place = 0;
        for (const int candidate : cutPlaces(rest))
            if (candidate <= room) place = candidate;
        if (place == 0) {
            if (m_isFresh) break;
            continueOnNewPage(rest);
            rest = atPlace(rest);
            continue;
        }
        auto [above, below] = cutBand(rest, place);
        placeElements(above, false);
        continueOnNewPage(below);
        // A row for which the page has no room beside its captions goes without them.
        const Band captioned = withCaptions(above, below);
        rest = m_y + smallestPiece(captioned) <= m_bottom ? captioned : below;
    }
    placeElements(rest, false);
}

void Paginator::placeElements(const Band &band, bool repeated) {
    const int page = int(m_document.pages.size()) - 1;
    if (!repeated) {
        for (const Element &element : band.elements)
            if (element.HeadingLevel > 0 && !element.text.isEmpty()) {
                const QString &text = element.OutlineText.isEmpty() ? element.text : element.OutlineText;
                m_document.headings.push_back(
                    {text.simplified(), element.HeadingLevel, page, m_y + element.box.top()});
            }
        m_isFresh = false;
    }
    putOnPage(band.elements, m_y);
    m_y += band.height;
}

Band Paginator::pageSections(SectionType type) {
    Band band;
    for (const auto &section : m_report.m_sections) {
        if (section->Type != type) continue;
        for (const auto &control : section->Controls) {
            auto *field = dynamic_cast<Field *>(control.get());
            // The total is known later; until then the number stands for it.
            if (field && field->Summary != PageValue::None)
                field->Text = QString::number(m_document.pages.size());
        }
        Composer::format(m_report, *section);
        if (!section->Visible) continue;
        const SectionLayout layout = layOutSection(*section);
        for (const PlacedControl &placed : layout.controls) {
            band.elements.push_back(placed.element);
            band.elements.back().box.translate(0, band.height);
        }
        band.height += layout.height;
    }
    sortForReading(band.elements);
    return band;
}

void Paginator::putOnPage(const std::vector<Element> &elements, int top) {
    const QPoint offset(m_document.pageSettings.LeftMargin, top);
    for (const Element &element : elements)
        m_document.pages.back().elements.append(element, offset);
}

void Paginator::fillInPageTotal() {
    const QString total = QString::number(m_document.pages.size());
    const auto fillIn = [&total](std::vector<Element> &elements) {
        for (Element &element : elements) {
            if (element.pageValue != PageValue::PageTotal) continue;
            element.text = total;
            breakLines(element, false);
            arrangeLines(element);
        }
    };
    for (Page &page : m_document.pages) {
        std::vector<Element> elements = page.elements;
        fillIn(elements);
        page.elements.clear();
        for (const Element &element : elements)
            page.elements.append(element);
        page.elements.squeeze();
    }
    for (std::vector<Row> *rows : {&m_document.pageHeader, &m_document.pageFooter})
        for (Row &row : *rows)
            fillIn(row.cells);
}

} // namespace Printing
