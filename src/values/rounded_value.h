// The number that a design value shows, without making its text.
#pragma once

/// The number in ValueText::designValueText(y): two decimals, a half away from zero on the decimal text of 15
/// significant digits.
double roundedValue(double y);
