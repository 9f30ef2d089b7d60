#include "platform/forms/axis_scale.h"

#include <algorithm>
#include <cmath>

#include "platform/runtime/regional_settings.h"

namespace {

double roundStep(double atLeast) {
    const double power = std::pow(10, std::floor(std::log10(atLeast)));
    for (const double factor : {1.0, 2.0, 5.0})
        if (factor * power >= atLeast * (1 - 1e-9)) return factor * power;
    return 10 * power;
}

} // namespace

AxisScale AxisScale::of(double least, double greatest, int wanted) {
    double width = greatest - least;
    // What a double tells apart around them is not enough to draw.
    const double smallest = std::max(std::abs(least), std::abs(greatest)) * 1e-9;
    if (!(width > smallest)) {
        width = std::max(std::abs(least) * 0.1, 1e-6);
        least -= width / 2;
        greatest += width / 2;
    }
    AxisScale scale;
    scale.step = roundStep(width / std::max(wanted, 1));
    scale.first = std::floor(least / scale.step + 1e-9) * scale.step;
    const double steps = std::ceil((greatest - scale.first) / scale.step - 1e-9);
    scale.steps = static_cast<int>(std::clamp(steps, 1.0, 1000.0));
    return scale;
}

QString AxisScale::label(int index) const {
    const int decimals = std::clamp(static_cast<int>(-std::floor(std::log10(step) + 1e-9)), 0, 12);
    QString text = QString::number(tick(index) + 0.0, 'f', decimals);
    if (text.startsWith(u'-') && text.toDouble() == 0) text.remove(0, 1);
    return text.replace(u'.', QChar(RegionalSettings::current().decimalSign));
}
