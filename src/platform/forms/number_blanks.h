// Blanks in numbers, and where lines may break.
#pragma once

#include <QFontMetricsF>
#include <QString>

/// `text` without line breaks at the blanks inside a number, as in "100 000 h". Each character keeps its
/// place.
QString withUnbrokenNumbers(const QString &text);

/// The same for a display in lines that are `width` wide; a number that no line is long enough for is broken.
QString withUnbrokenNumbers(const QString &text, const QFontMetricsF &metrics, double width);
