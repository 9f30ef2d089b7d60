// The number in a cell that says nothing else: what spreadsheets and solvers may take for a number.
#pragma once

#include <optional>

#include <QString>

/// A number as it stands in a cell, digit by digit.
struct CellNumber {
    /// With a point: "-11.40".
    QString text;
    int decimals = 0;

    /// The nearest double to `text` times ten to the power of `exponent`; no step in between is rounded.
    double times10(int exponent) const;
    double value() const { return times10(0); }
};

/// Digits, at most one point or comma in the midst of them, and a minus before them; blanks around count for
/// nothing. As in design values, either sign is a decimal sign whatever the regional settings, because a
/// database holds the one and the settings the other. None for any decoration ("(150)", "≤ 16", "150*"), for
/// a zero before further digits, and for more digits than a double keeps.
std::optional<CellNumber> cellNumber(const QString &text);

/// The same for a number in round brackets.
std::optional<CellNumber> bracketedNumber(const QString &text);
