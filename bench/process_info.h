// What the system knows of a process, and of the processes that it started.
#pragma once

#include <QtGlobal>

namespace Bench {

struct Memory {
    double resident = 0;
    /// The most that it ever was.
    double peak = 0;
};

/// Megabytes, children included; what processes share is counted in each of them.
Memory memoryOf(qint64 process);

/// Seconds of processor time so far, children that still run included.
double processorTimeOf(qint64 process);

} // namespace Bench
