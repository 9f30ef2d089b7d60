// The table that a run prints: a line for each thing that a user waits for.
#pragma once

#include <benchmark/benchmark.h>

namespace Bench {

/// What a benchmark tells the table, by the names of its counters. Times in milliseconds.
namespace Counter {
inline constexpr const char *Median = "median";
inline constexpr const char *Slowest = "slowest";
inline constexpr const char *Cpu = "cpu";
inline constexpr const char *Goal = "goal";
inline constexpr const char *Other = "other";
inline constexpr const char *Ratio = "ratio";
inline constexpr const char *RatioGoal = "ratio goal";
inline constexpr const char *Megabytes = "megabytes";
} // namespace Counter

class TableReporter : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context &context) override;
    void ReportRuns(const std::vector<Run> &runs) override;
};

} // namespace Bench
