#include "platform/dao/text_folding.h"

#include <algorithm>
#include <compare>
#include <vector>

#include <QString>

namespace {

bool isAscii(char sign) {
    return static_cast<signed char>(sign) >= 0;
}

char foldedAscii(char sign) {
    return sign >= 'A' && sign <= 'Z' ? static_cast<char>(sign + ('a' - 'A')) : sign;
}

char32_t baseLetter(char32_t codePoint) {
    while (QChar::decompositionTag(codePoint) == QChar::Canonical)
        codePoint = QChar::decomposition(codePoint).toUcs4().front();
    return codePoint;
}

bool isAccent(char32_t codePoint) {
    return QChar::category(codePoint) == QChar::Mark_NonSpacing;
}

std::vector<char32_t> foldedCodePoints(const char *text, qsizetype size) {
    std::vector<char32_t> codePoints;
    const char *const end = text + size;
    while (text < end)
        codePoints.push_back(foldedCodePoint(takeCodePoint(text, end)));
    return codePoints;
}

std::vector<char32_t> baseLetters(const std::vector<char32_t> &codePoints) {
    std::vector<char32_t> letters;
    for (char32_t codePoint : codePoints)
        if (!isAccent(codePoint)) letters.push_back(baseLetter(codePoint));
    return letters;
}

int sign(std::strong_ordering order) {
    return order < 0 ? -1 : order > 0 ? 1 : 0;
}

int compareFully(const char *left, qsizetype leftSize, const char *right, qsizetype rightSize) {
    const std::vector<char32_t> leftPoints = foldedCodePoints(left, leftSize);
    const std::vector<char32_t> rightPoints = foldedCodePoints(right, rightSize);
    const int order = sign(baseLetters(leftPoints) <=> baseLetters(rightPoints));
    return order != 0 ? order : sign(leftPoints <=> rightPoints);
}

} // namespace

char32_t foldedCodePoint(char32_t codePoint) {
    if (codePoint < 0x80) return static_cast<char32_t>(foldedAscii(static_cast<char>(codePoint)));
    return QChar::toCaseFolded(codePoint);
}

void foldText(const char *text, qsizetype size, QByteArray &folded) {
    folded.resize(size);
    char *out = folded.data();
    for (qsizetype i = 0; i < size; ++i) {
        if (isAscii(text[i])) {
            out[i] = foldedAscii(text[i]);
            continue;
        }
        folded.truncate(i);
        const QString rest = QString::fromUtf8(text + i, size - i);
        QString foldedRest;
        for (char32_t codePoint : rest.toUcs4())
            foldedRest += QChar::fromUcs4(foldedCodePoint(codePoint));
        folded += foldedRest.toUtf8();
        return;
    }
}

char32_t takeCodePoint(const char *&at, const char *end) {
    const auto byte = [&] { return static_cast<unsigned char>(*at++); };
    const unsigned char first = byte();
    if (first < 0x80) return first;
    const int more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : 1;
    char32_t codePoint = first & (0x3F >> more);
    for (int i = 0; i < more && at < end; ++i)
        codePoint = (codePoint << 6) | (byte() & 0x3F);
    return codePoint;
}

int compareTexts(const char *left, qsizetype leftSize, const char *right, qsizetype rightSize) {
    const qsizetype common = std::min(leftSize, rightSize);
    for (qsizetype i = 0; i < common; ++i) {
        if (!isAscii(left[i]) || !isAscii(right[i])) return compareFully(left, leftSize, right, rightSize);
        const char l = foldedAscii(left[i]);
        const char r = foldedAscii(right[i]);
        if (l != r) return l < r ? -1 : 1;
    }
    if (leftSize == rightSize) return 0;
    const bool leftIsLonger = leftSize > rightSize;
    // What follows could be an accent of the last common letter: then the base letters decide.
    if (!isAscii(leftIsLonger ? left[common] : right[common]))
        return compareFully(left, leftSize, right, rightSize);
    return leftIsLonger ? 1 : -1;
}
