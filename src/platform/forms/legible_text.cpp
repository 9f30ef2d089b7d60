#include "platform/forms/legible_text.h"

#include <algorithm>
#include <cmath>

namespace {

double linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &colour) {
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

/// From 1 (the same) to 21 (black on white); small print needs 4.5.
double contrast(const QColor &a, const QColor &b) {
    const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

} // namespace

QColor legibleText(const QColor &background, const QColor &preferred) {
    if (contrast(background, preferred) >= 4.5) return preferred;
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    return contrast(background, black) >= contrast(background, white) ? black : white;
}
