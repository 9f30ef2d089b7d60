// The values of one table at a design temperature.
#pragma once

#include <functional>

#include <QString>

class SourceArray;

/// The flags are those of ValueText.
namespace Interpolation {

struct Temperature {
    /// As it stands in the box.
    QString text;
    /// In °C.
    float value = 0;
};

/// Raises 13 for a text that is no number, 6 beyond a single.
Temperature typedTemperature(const QString &text, bool bCommaGroup);

/// The value at `t` on the line through (t0, y0) and (t1, y1). Raises 11 where t0 is t1, 6 beyond a double.
double onTheLine(double t, double t0, double t1, double y0, double y1);

using SetCell = std::function<void(int column, const QString &cell)>;

/// Gives `set` the cells of columns 1 to the table's last, one after the other: "-" below and "+" above the
/// table's temperatures, "x" where a neighbouring cell has no number, at a row's own temperature the cell as
/// it stands, else the value on the straight line between the two rows around it, with two decimals.
///
/// Raises 13 (a cell or temperature that does not convert), 6, 11, and 9 for a table without rows; the cells
/// before the failing one have been given then.
void designValues(const SourceArray &source, const Temperature &temperature, bool bDecimalPoint,
                  const SetCell &set);

} // namespace Interpolation
