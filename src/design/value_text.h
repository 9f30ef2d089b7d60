// A table's values are texts, often with something before or behind the number.
#pragma once

#include <array>
#include <optional>

#include <QString>

/// `bDecimalPoint`: the system writes 1.5 as "1.5". `bCommaGroup`: it reads "1,5" as fifteen.
namespace ValueText {

/// A digit, ".", "," or "-".
bool IsNumberChar(QChar ch);

struct Parts {
    QString prefix;
    /// In the system's decimal notation; empty in a text without a number.
    QString number;
    QString suffix;
};

/// The parts of the lower and the upper cell. A lower cell without prefix or suffix takes those of the upper.
std::array<Parts, 2> SplitValueText(const std::array<QString, 2> &values, bool bDecimalPoint);

/// The first number of a cell, for a chart: "," becomes "." under a decimal point. Empty without one.
QString GetNumberText(const QString &text, bool bDecimalPoint);

/// The number in a cell or a design value, whatever its decimal sign; none for "-", "+", "x" and any text
/// that has no number or more than one.
std::optional<double> numberIn(const QString &text);

/// Two decimals behind a comma, whatever the system's sign, rounded half away from zero on the decimal text.
QString designValueText(double y);

} // namespace ValueText
