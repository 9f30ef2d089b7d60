#include "design/interpolation.h"

#include <cmath>

#include "data/source_array.h"
#include "design/value_text.h"
#include "platform/runtime/conversions.h"
#include "platform/runtime/runtime_error.h"

namespace {

const QString BelowRange = QStringLiteral("-");
const QString AboveRange = QStringLiteral("+");
const QString NoValue = QStringLiteral("x");

// Temperatures are compared in single precision, as the typed one is held.
float temperatureOfRow(const SourceArray &source, int row) {
    return CSng(source.text(row, 0));
}

// The two rows around the temperature, and whether it is a row's own.
struct Bracket {
    int lower;
    int upper;
    bool atLower;
    bool atUpper;
};

Bracket bracketOf(const SourceArray &source, const Interpolation::Temperature &temperature) {
    int upper = 2;
    while (upper < source.rowCount() && temperatureOfRow(source, upper) <= temperature.value)
        ++upper;
    const bool atLower = temperatureOfRow(source, upper - 1) == temperature.value;
    // By the text, not the number: 100,0 typed against a row of 100 is interpolated.
    const bool atUpper = !atLower && source.text(upper, 0) == temperature.text;
    return {upper - 1, upper, atLower, atUpper};
}

QString cellBetween(const SourceArray &source, const Bracket &rows, int column, float temperature,
                    bool bDecimalPoint) {
    const QString &lowerText = source.text(rows.lower, column);
    // A table of one row has no upper one.
    const QString &upperText = rows.upper > source.rowCount() ? lowerText : source.text(rows.upper, column);
    const auto [low, high] = ValueText::SplitValueText({lowerText, upperText}, bDecimalPoint);
    QString number;
    if (rows.atLower) {
        number = low.number;
    } else if (rows.atUpper) {
        number = high.number;
    } else if (!low.number.isEmpty() && !high.number.isEmpty()) {
        number = ValueText::designValueText(
            Interpolation::onTheLine(static_cast<double>(temperature), CDbl(source.text(rows.lower, 0)),
                                     CDbl(source.text(rows.upper, 0)), CDbl(low.number), CDbl(high.number)));
    }
    // The lower row's decoration, also around the upper row's own number: it looks as the values on the way
    // there.
    return number.isEmpty() ? NoValue : low.prefix + number + low.suffix;
}

} // namespace

Interpolation::Temperature Interpolation::typedTemperature(const QString &text, bool bCommaGroup) {
    QString number = text;
    // The box holds a comma, which such a system would read past.
    if (bCommaGroup) number.replace(QLatin1Char(','), QLatin1Char('.'));
    return {text, CSng(number)};
}

// Slope first, then the distance, then the sum: another order rounds otherwise.
double Interpolation::onTheLine(double t, double t0, double t1, double y0, double y1) {
    if (t1 == t0) throw RuntimeError(11);
    const double y = y0 + (t - t0) * ((y1 - y0) / (t1 - t0));
    if (!std::isfinite(y)) throw RuntimeError(6);
    return y;
}

void Interpolation::designValues(const SourceArray &source, const Temperature &temperature,
                                 bool bDecimalPoint, const SetCell &set) {
    const bool below = temperatureOfRow(source, 1) > temperature.value;
    const bool above = !below && temperatureOfRow(source, source.rowCount()) < temperature.value;
    if (below || above) {
        for (int column = 1; column <= source.lastColumn(); ++column)
            set(column, below ? BelowRange : AboveRange);
        return;
    }
    const Bracket rows = bracketOf(source, temperature);
    for (int column = 1; column <= source.lastColumn(); ++column)
        set(column, cellBetween(source, rows, column, temperature.value, bDecimalPoint));
}
