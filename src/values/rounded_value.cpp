#include "values/rounded_value.h"

#include <cmath>

#include "design/value_text.h"

namespace {

/// Beyond it hundredths are too near to the last of 15 digits.
constexpr double MostPlain = 1e6;

/// What the last of the 15 digits of `size` counts.
double lastDigit(double size) {
    double unit = 1e-14;
    while (size >= 10) {
        size /= 10;
        unit *= 10;
    }
    return unit;
}

double ofText(double y) {
    return ValueText::numberIn(ValueText::designValueText(y)).value_or(y);
}

} // namespace

double roundedValue(double y) {
    const double size = std::abs(y);
    if (!(size < MostPlain)) return ofText(y);
    const double below = std::floor(size * 100);
    const double half = (below + 0.5) / 100;
    // The text is a half, and goes up, from half a digit below it on.
    const double digits = (size - half) / lastDigit(size);
    if (digits > -0.9 && digits < -0.1) return ofText(y);
    return std::copysign((digits < -0.5 ? below : below + 1) / 100, y);
}
