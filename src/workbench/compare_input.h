// What stands in the boxes of the comparison.
#pragma once

#include <optional>

#include "values/typed.h"

struct CompareInput {
    /// In °C, as GradeValues::at takes it.
    Typed<QString> temperature;
    /// In mm.
    Typed<std::optional<double>> thickness;

    bool isWhole() const { return temperature && thickness; }
};
