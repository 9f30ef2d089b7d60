// Texts of the database engine are alike whatever their capitals: folding, comparison, order.
#pragma once

#include <QByteArray>

/// One code point without its capital form.
char32_t foldedCodePoint(char32_t codePoint);

/// UTF-8, folded code point by code point, written over `folded`.
void foldText(const char *text, qsizetype size, QByteArray &folded);

/// The code point at `at` of valid UTF-8; moves `at` behind it.
char32_t takeCodePoint(const char *&at, const char *end);

/// The engine's order of two UTF-8 texts: by base letters first, so that accented letters stand beside their
/// plain ones, and then by the accents. Capitals do not count; accents do.
int compareTexts(const char *left, qsizetype leftSize, const char *right, qsizetype rightSize);
