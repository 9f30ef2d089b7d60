#include "platform/dao/like_pattern.h"

#include <algorithm>

#include "platform/dao/text_folding.h"
#include "platform/runtime/runtime_error.h"

LikePattern::LikePattern(const QString &pattern) {
    const QList<uint> codePoints = pattern.toUcs4();
    for (qsizetype i = 0; i < codePoints.size();) {
        const char32_t codePoint = codePoints[i];
        if (codePoint == '[') {
            takeList(codePoints, i);
            continue;
        }
        ++i;
        if (codePoint == '*') {
            if (m_elements.empty() || m_elements.back().kind != Element::Kind::Star)
                m_elements.push_back({Element::Kind::Star, 0, false, {}});
        } else if (codePoint == '?') {
            m_elements.push_back({Element::Kind::AnyCharacter, 0, false, {}});
        } else if (codePoint == '#') {
            m_elements.push_back({Element::Kind::Digit, 0, false, {}});
        } else {
            m_elements.push_back({Element::Kind::Character, foldedCodePoint(codePoint), false, {}});
        }
    }
    findContainedText();
}

void LikePattern::findContainedText() {
    if (m_elements.empty() || m_elements.front().kind != Element::Kind::Star) return;
    if (m_elements.back().kind != Element::Kind::Star) return;
    QString text;
    for (std::size_t i = 1; i + 1 < m_elements.size(); ++i) {
        if (m_elements[i].kind != Element::Kind::Character) return;
        text += QChar::fromUcs4(m_elements[i].character);
    }
    m_containedText = text.toUtf8();
}

void LikePattern::takeList(const QList<uint> &pattern, qsizetype &at) {
    const qsizetype end = pattern.indexOf(uint(']'), at);
    if (end < 0) throw RuntimeError(93);
    Element list{Element::Kind::List, 0, false, {}};
    qsizetype i = at + 1;
    if (i + 1 < end && pattern[i] == '!') {
        list.negated = true;
        ++i;
    }
    for (; i < end; ++i) {
        Range range{foldedCodePoint(pattern[i]), foldedCodePoint(pattern[i])};
        if (i + 2 < end && pattern[i + 1] == '-') {
            range.last = foldedCodePoint(pattern[i + 2]);
            if (range.last < range.first) throw RuntimeError(93);
            i += 2;
        }
        list.ranges.push_back(range);
    }
    at = end + 1;
    // "[]" stands for no character at all.
    if (!list.ranges.empty()) m_elements.push_back(std::move(list));
}

bool LikePattern::Element::accepts(char32_t codePoint) const {
    switch (kind) {
    case Kind::AnyCharacter:
        return true;
    case Kind::Digit:
        return codePoint >= '0' && codePoint <= '9';
    case Kind::Character:
        return codePoint == character;
    case Kind::List:
        return negated != std::any_of(ranges.begin(), ranges.end(), [codePoint](const Range &range) {
                   return codePoint >= range.first && codePoint <= range.last;
               });
    case Kind::Star:
        break;
    }
    return false;
}

bool LikePattern::matches(const char *folded, qsizetype size) const {
    const char *at = folded;
    const char *const end = folded + size;
    std::size_t element = 0;
    // Where to go on after a failure: behind the last star, with one more character given to it.
    std::optional<std::size_t> afterStar;
    const char *starEnd = at;
    while (true) {
        if (element < m_elements.size() && m_elements[element].kind == Element::Kind::Star) {
            afterStar = ++element;
            starEnd = at;
            if (element == m_elements.size()) return true;
            continue;
        }
        if (at == end && element == m_elements.size()) return true;
        if (at < end && element < m_elements.size()) {
            const char *next = at;
            if (m_elements[element].accepts(takeCodePoint(next, end))) {
                at = next;
                ++element;
                continue;
            }
        }
        if (!afterStar || starEnd == end) return false;
        takeCodePoint(starEnd, end);
        at = starEnd;
        element = *afterStar;
    }
}
