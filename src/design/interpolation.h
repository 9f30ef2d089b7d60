// The values of one table at a design temperature.
#pragma once

#include <QStringList>

class SourceArray;

namespace Interpolation {

/// The cell texts of columns 1 to the table's last: "-" below and "+" above the table's temperatures, "x"
/// where a neighbouring cell has no number, at a row's own temperature the cell as it stands, else the value
/// on the straight line between the two rows around the temperature, with two decimals.
///
/// `temperature` is the text of the box in °C, neither empty nor a lone sign. The flags are those of
/// ValueText. Raises 13 (a temperature or number text that does not convert), 6, 9 (a table without
/// rows), 11.
QStringList designValues(const SourceArray &source, const QString &temperature, bool bDecimalPoint,
                         bool bCommaGroup);

} // namespace Interpolation
