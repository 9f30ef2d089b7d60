#include "platform/printing/band_cut.h"

#include <algorithm>

namespace Printing {

namespace {

// A cell up to this height is not cut: any page has room for it.
constexpr int HighestWholeCell = 5000;

struct Span {
    int top;
    int bottom;
};

int bottomOf(const Element &element) {
    return element.box.top() + element.box.height();
}

bool isCaption(const Element &element) {
    return element.Border.any() && element.BackStyle != 0;
}

bool isTitle(const Element &element) {
    return element.KeepWithNext && !element.Border.any();
}

// Of what stands below; the band's end where nothing does.
int topBelow(const Band &band, const Element &heading) {
    const int top = bottomOf(heading);
    int found = band.height;
    for (const Element &element : band.elements)
        if (element.box.top() >= top) found = std::min(found, element.box.top());
    return found;
}

// What must not be cut, from top to bottom.
std::vector<Span> solidSpans(const Band &band) {
    std::vector<Span> spans;
    for (const Element &element : band.elements) {
        const int top = element.box.top();
        const std::size_t count = element.lines.size();
        if (element.HeadingLevel > 0 || element.KeepWithNext || isCaption(element)) {
            spans.push_back({top, topBelow(band, element) + 1});
            continue;
        }
        if (count == 0 || (element.Border.any() && element.box.height() <= HighestWholeCell)) {
            spans.push_back({top, bottomOf(element)});
            continue;
        }
        for (std::size_t i = 0; i < count; ++i) {
            const std::size_t first = i == 1 ? 0 : i;
            const std::size_t last = i == count - 2 ? count - 1 : i;
            spans.push_back({i == 0 ? top : top + element.lines[first].top,
                             i + 1 == count ? bottomOf(element)
                                            : top + element.lines[last].top + element.lines[last].height});
        }
    }
    std::sort(spans.begin(), spans.end(), [](const Span &a, const Span &b) { return a.top < b.top; });
    return spans;
}

// The captions right above the cells that go on; none where a cell has none of its own width.
std::vector<Element> captionsOf(const Band &above, const Band &below) {
    std::vector<Element> captions;
    for (const Element &cell : below.elements) {
        if (cell.box.top() != 0) continue;
        const Element *nearest = nullptr;
        for (const Element &element : above.elements)
            if (isCaption(element) && element.box.left() == cell.box.left() &&
                element.box.width() == cell.box.width() &&
                (!nearest || element.box.top() > nearest->box.top()))
                nearest = &element;
        if (!cell.Border.any() || isCaption(cell) || !nearest) return {};
        captions.push_back(*nearest);
    }
    return captions;
}

// The title of the cells that go on.
const Element *titleOf(const Band &above, const Band &below) {
    const bool cellsGoOn = std::any_of(below.elements.begin(), below.elements.end(), [](const Element &cell) {
        return cell.box.top() == 0 && cell.Border.any();
    });
    if (!cellsGoOn) return nullptr;
    const auto title = std::find_if(above.elements.rbegin(), above.elements.rend(), isTitle);
    return title == above.elements.rend() ? nullptr : &*title;
}

} // namespace

std::vector<int> cutPlaces(const Band &band) {
    std::vector<int> places;
    int bottom = 0;
    for (const Span &span : solidSpans(band)) {
        if (span.top >= bottom && bottom > 0) places.push_back(bottom);
        bottom = std::max(bottom, span.bottom);
    }
    return places;
}

std::pair<Band, Band> cutBand(const Band &band, int place) {
    Band above = band;
    Band below = band;
    above.elements.clear();
    below.elements.clear();
    above.height = place;
    below.height = band.height - place;
    below.pageBreakBefore = false;
    for (const Element &element : band.elements) {
        const int top = element.box.top();
        if (bottomOf(element) <= place) {
            above.elements.push_back(element);
        } else if (top >= place) {
            below.elements.push_back(element);
            below.elements.back().box.translate(0, -place);
        } else {
            const auto cut =
                std::find_if(element.lines.begin(), element.lines.end(),
                             [&](const TextLine &line) { return top + line.top + line.height > place; });
            Element upper = element;
            upper.box.setHeight(place - top);
            upper.lines.assign(element.lines.begin(), cut);
            Element lower = element;
            lower.box = QRect(element.box.left(), 0, element.box.width(), bottomOf(element) - place);
            lower.lines.assign(cut, element.lines.end());
            const int start = lower.lines.empty() ? int(element.text.size()) : lower.lines.front().start;
            upper.text = element.text.left(start);
            lower.text = element.text.mid(start);
            for (TextLine &line : lower.lines) {
                line.start -= start;
                line.top -= place - top;
            }
            above.elements.push_back(upper);
            below.elements.push_back(lower);
        }
    }
    return {above, below};
}

Band withCaptions(const Band &above, const Band &below) {
    std::vector<Element> repeated = captionsOf(above, below);
    int height = repeated.empty() ? 0 : repeated.front().box.height();
    for (Element &caption : repeated)
        caption.box.moveTop(0);
    if (const Element *title = titleOf(above, below)) {
        const int distance = topBelow(above, *title) - title->box.top();
        for (Element &caption : repeated)
            caption.box.moveTop(distance);
        repeated.insert(repeated.begin(), *title);
        repeated.front().box.moveTop(0);
        height += distance;
    }
    Band result = below;
    for (Element &element : result.elements)
        element.box.translate(0, height);
    result.elements.insert(result.elements.begin(), repeated.begin(), repeated.end());
    result.height += height;
    return result;
}

} // namespace Printing
