// Finds a text in the pages of a document.
#pragma once

#include <vector>

#include "platform/printing/document.h"

namespace Printing {

struct TextMatch {
    int page = 0;
    int element = 0;
    int start = 0;
    int length = 0;
};

/// In reading order; capitals don't count, a line end is a blank. What is not to be seen is not found: a text
/// behind an ellipsis, the blank at which a line was broken. Empty for an empty text.
std::vector<TextMatch> findText(const Document &document, const QString &text);

/// The match on its page, in twips: one rectangle for each line that it touches, and at least one for what
/// findText() found.
std::vector<QRectF> matchAreas(const Document &document, const TextMatch &match);

} // namespace Printing
