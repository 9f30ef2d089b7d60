// Finds an element of a document by its text.
#pragma once

#include "platform/printing/document.h"

struct Place {
    int page = -1;
    QRect box;
};

/// The first whose first line is `text`, from `fromPage` on; a null box if there is none.
inline Place locate(const Printing::Document &document, const QString &text, int fromPage = 0) {
    for (int page = fromPage; page < int(document.pages.size()); ++page)
        for (const Printing::Element &element : document.pages[std::size_t(page)].elements)
            if (element.text.section(QLatin1Char('\n'), 0, 0) == text) return {page, element.box};
    return {};
}
