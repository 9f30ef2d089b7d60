// The number of the run-time error that a call raises.
#pragma once

#include "platform/runtime/runtime_error.h"

/// 0 when the call returns.
template <typename Call>
int errorOf(Call call) {
    try {
        call();
    } catch (const RuntimeError &error) {
        return error.number();
    }
    return 0;
}
