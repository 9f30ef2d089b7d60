// What a damaged file can cost at most.
#pragma once

namespace limits {

/// A gigabyte of memory, no core file. A process that wants more gets none, and ends.
void set();

/// Ten seconds of processor time from now on. To be called when something has been achieved.
void allowProcessorTime();

} // namespace limits
