// A condition of a search by value as it is written on a command line.
#pragma once

#include "values/value_search.h"

namespace ConditionText {

/// "Rp02 >= 150 at 300", "Rp02 >= 150 at 300 thickness 40": a property's name, one of >=, <=, > and <, the
/// limit, °C, mm. The error tells which part is not understood.
Typed<ValueCondition> read(const QString &text, const QVector<Property> &properties);

/// What read() understands, where only one limit is given; both stand beside each other.
QString of(const ValueCondition &condition);

} // namespace ConditionText
