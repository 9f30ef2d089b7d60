// For a test in which a run-time error passes through Qt's windows on its way to the application.
#pragma once

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

/// Qt is compiled without exceptions: what its functions hold on their stacks when an error passes through
/// them, the event and its text, stays behind. In the program the error is the end of the run. The leak
/// check does not count what the call allocates.
template <typename Call>
void raisingThroughQt(Call call) {
#ifdef __SANITIZE_ADDRESS__
    const __lsan::ScopedDisabler notCounted;
#endif
    call();
}
