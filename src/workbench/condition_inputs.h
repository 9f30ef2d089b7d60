// A condition as it is typed into boxes, understood.
#pragma once

#include "values/value_search.h"

struct ConditionTexts {
    QString temperature;
    QString thickness;
    QString least;
    QString greatest;
};

namespace ConditionInputs {

/// The error holds a sentence for each box that is not understood.
Typed<ValueCondition> condition(const Property &property, const ConditionTexts &typed);

/// "Rp0,2 at 300 °C in 40 mm".
QString heading(const ValueCondition &condition);
/// The unit without brackets; empty without one.
QString unit(const Property &property);

} // namespace ConditionInputs
