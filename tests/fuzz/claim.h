// What holds whatever the input is.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace fuzz {

/// Ends the run where a claim does not hold; libFuzzer keeps the input.
inline void expect(bool holds, const char *claim) {
    if (holds) return;
    std::fprintf(stderr, "does not hold: %s\n", claim);
    std::abort();
}

} // namespace fuzz
