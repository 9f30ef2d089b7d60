// The round numbers along an axis.
#pragma once

#include <QString>

struct AxisScale {
    double first = 0;
    double step = 1;
    /// At least 1.
    int steps = 1;

    double last() const { return first + step * steps; }
    double tick(int index) const { return first + step * index; }
    /// With the decimals that the step needs, in the notation of the regional settings.
    QString label(int index) const;
    /// From 0 at `first` to 1 at last().
    double part(double value) const { return (value - first) / (step * steps); }

    /// Steps of 1, 2 or 5 times a power of ten, about as many as wanted; the ends lie at or beyond the two
    /// numbers, which are finite and may be the same.
    static AxisScale of(double least, double greatest, int wanted);
};
