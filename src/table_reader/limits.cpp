#include "table_reader/limits.h"

#include <sys/resource.h>

namespace limits {

namespace {

constexpr rlim_t Memory = 960u << 20; // the rest of the gigabyte is for the system's own tables
constexpr rlim_t Seconds = 10;

void limit(int resource, rlim_t value) {
    rlimit current = {};
    if (getrlimit(static_cast<__rlimit_resource_t>(resource), &current) != 0) return;
    current.rlim_cur =
        current.rlim_max == RLIM_INFINITY || value < current.rlim_max ? value : current.rlim_max;
    setrlimit(static_cast<__rlimit_resource_t>(resource), &current);
}

} // namespace

void set() {
#ifndef __SANITIZE_ADDRESS__ // which reserves more addresses than that
    limit(RLIMIT_AS, Memory);
#endif
    limit(RLIMIT_CORE, 0);
    allowProcessorTime();
}

void allowProcessorTime() {
    rusage used = {};
    getrusage(RUSAGE_SELF, &used);
    limit(RLIMIT_CPU, static_cast<rlim_t>(used.ru_utime.tv_sec + used.ru_stime.tv_sec) + Seconds);
}

} // namespace limits
