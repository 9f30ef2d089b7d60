// A key in a box of a window, with what it sets going and its painting.
#pragma once

#include "bench/samples.h"

class QLineEdit;

namespace Bench {

/// At the end of what the box holds, digit for digit, a number each time that it has not held before: what is
/// remembered of a number helps none of them. One run an iteration.
void measureKeys(benchmark::State &state, const Goal &goal, QLineEdit &box);

} // namespace Bench
