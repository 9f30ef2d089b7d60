// Blanks in numbers, and where lines may break.
#pragma once

#include <QFontMetricsF>
#include <QString>

/// `text` for a display in lines that are `width` wide: no line breaks at the blanks inside a number, as in
/// "100 000 h", unless the number has no line that is long enough. Each character keeps its place.
QString withUnbrokenNumbers(const QString &text, const QFontMetricsF &metrics, double width);
