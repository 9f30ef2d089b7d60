#include "platform/printing/document_search.h"

#include <algorithm>

#include <QFontMetricsF>

#include "platform/printing/text_layout.h"

namespace Printing {

namespace {

// How much of the line is the element's own text: an ellipsis may stand for the rest.
int ownLength(const Element &element, const TextLine &line) {
    const QStringView own = QStringView(element.text).mid(line.start);
    const auto end = std::mismatch(line.text.begin(), line.text.end(), own.begin(), own.end()).first;
    return int(end - line.text.begin());
}

std::vector<QRectF> areasOf(const Element &element, const TextMatch &match) {
    const QFontMetricsF metrics(twipsFont(element.Font));
    std::vector<QRectF> areas;
    for (const TextLine &line : element.lines) {
        const int first = std::max(match.start - line.start, 0);
        const int last = std::min(match.start + match.length - line.start, ownLength(element, line));
        if (first >= last) continue;
        const double left = metrics.horizontalAdvance(line.text.left(first));
        const double right = metrics.horizontalAdvance(line.text.left(last));
        areas.emplace_back(element.box.left() + line.left + left, element.box.top() + line.top, right - left,
                           line.height);
    }
    return areas;
}

} // namespace

std::vector<TextMatch> findText(const Document &document, const QString &text) {
    std::vector<TextMatch> matches;
    if (text.isEmpty()) return matches;
    for (int page = 0; page < int(document.pages.size()); ++page) {
        int i = -1;
        for (const Element &element : document.pages[std::size_t(page)].elements) {
            ++i;
            if (element.lines.empty()) continue;
            QString searched = element.text;
            searched.replace(QLatin1Char('\n'), QLatin1Char(' '));
            for (qsizetype at = searched.indexOf(text, 0, Qt::CaseInsensitive); at >= 0;
                 at = searched.indexOf(text, at + text.size(), Qt::CaseInsensitive))
                if (const TextMatch match{page, i, int(at), int(text.size())};
                    !areasOf(element, match).empty())
                    matches.push_back(match);
        }
    }
    return matches;
}

std::vector<QRectF> matchAreas(const Document &document, const TextMatch &match) {
    return areasOf(document.pages[std::size_t(match.page)].elements[std::size_t(match.element)], match);
}

} // namespace Printing
