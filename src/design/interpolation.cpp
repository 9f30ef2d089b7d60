#include "design/interpolation.h"

#include <cmath>

#include "design/source_array.h"
#include "design/value_text.h"
#include "platform/runtime/conversions.h"
#include "platform/runtime/runtime_error.h"

namespace {

const QString NoValue = QStringLiteral("x");

// Temperatures are compared in single precision, as the typed one is held.
float temperatureOfRow(const SourceArray &source, int row) {
    return CSng(source.text(row, 0));
}

float typedTemperature(QString text, bool bCommaGroup) {
    // The box holds a comma, which such a system would read past.
    if (bCommaGroup) text.replace(QLatin1Char(','), QLatin1Char('.'));
    return CSng(text);
}

// The row above the temperature; the row before it is the lower neighbour.
int upperRow(const SourceArray &source, float temperature) {
    int row = 2;
    while (row < source.rowCount() && temperatureOfRow(source, row) <= temperature)
        ++row;
    return row;
}

// Slope first, then the distance, then the sum: another order rounds otherwise.
double onTheLine(double t, double t0, double t1, double y0, double y1) {
    if (t1 == t0) throw RuntimeError(11);
    const double y = y0 + (t - t0) * ((y1 - y0) / (t1 - t0));
    if (!std::isfinite(y)) throw RuntimeError(6);
    return y;
}

} // namespace

QStringList Interpolation::designValues(const SourceArray &source, const QString &temperature,
                                        bool bDecimalPoint, bool bCommaGroup) {
    const float t = typedTemperature(temperature, bCommaGroup);
    const int lastRow = source.rowCount();
    if (temperatureOfRow(source, 1) > t) return QStringList(source.lastColumn(), QStringLiteral("-"));
    if (temperatureOfRow(source, lastRow) < t) return QStringList(source.lastColumn(), QStringLiteral("+"));

    const int upper = upperRow(source, t);
    const int lower = upper - 1;
    const bool atLower = temperatureOfRow(source, lower) == t;
    // By the text, not the number: 100,0 typed against a row of 100 is interpolated.
    const bool atUpper = !atLower && source.text(upper, 0) == temperature;

    QStringList cells;
    for (int column = 1; column <= source.lastColumn(); ++column) {
        const QString &lowerText = source.text(lower, column);
        const QString &upperText = upper > lastRow ? lowerText : source.text(upper, column);
        const auto [low, high] = ValueText::SplitValueText({lowerText, upperText}, bDecimalPoint);
        QString number;
        if (atLower) {
            number = low.number;
        } else if (atUpper) {
            number = high.number;
        } else if (!low.number.isEmpty() && !high.number.isEmpty()) {
            number = ValueText::designValueText(onTheLine(static_cast<double>(t), CDbl(source.text(lower, 0)),
                                                          CDbl(source.text(upper, 0)), CDbl(low.number),
                                                          CDbl(high.number)));
        }
        // The lower row's decoration, also around the upper row's own number: meant so.
        cells << (number.isEmpty() ? NoValue : low.prefix + number + low.suffix);
    }
    return cells;
}
