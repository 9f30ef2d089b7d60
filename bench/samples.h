// What was measured of one thing that a user waits for, and what was aimed at.
#pragma once

#include <chrono>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/process_info.h"

namespace Bench {

/// Of a sorted copy; 0 of nothing.
double median(std::vector<double> values);

/// 0 where there is none.
struct Goal {
    double milliseconds = 0;
    /// Times as long as the other program takes.
    double ratio = 0;
    double megabytes = 0;
};

/// Times in seconds. Medians are told, since the machine is never ours alone, and beside the time on the
/// clock the processor's time of this process.
class Samples {
public:
    template <class Action>
    double take(Action &&action) {
        const double cpuBefore = processorTime();
        const auto before = std::chrono::steady_clock::now();
        action();
        const std::chrono::duration<double> clock = std::chrono::steady_clock::now() - before;
        m_clock.push_back(clock.count());
        m_cpu.push_back(processorTime() - cpuBefore);
        return clock.count();
    }
    void add(double clock, double cpu) {
        m_clock.push_back(clock);
        m_cpu.push_back(cpu);
    }
    void append(const Samples &other);
    /// As one sample.
    void addSumOf(const Samples &parts);

    const std::vector<double> &clock() const { return m_clock; }
    const std::vector<double> &cpu() const { return m_cpu; }

    void report(benchmark::State &state, const Goal &goal) const;
    /// With the other program's times, taken in turn with these.
    void report(benchmark::State &state, const Goal &goal, const Samples &other) const;
    /// The same where the others are samples of this program, which have a row of their own.
    void reportBeside(benchmark::State &state, const Goal &goal, const Samples &other) const;

private:
    std::vector<double> m_clock;
    std::vector<double> m_cpu;
};

/// One run of `action` for each iteration of the benchmark, after one of `prepare`, which does not count.
template <class Action, class Prepare>
void measure(benchmark::State &state, const Goal &goal, Action &&action, Prepare &&prepare) {
    Samples samples;
    for ([[maybe_unused]] auto _ : state) {
        prepare();
        state.SetIterationTime(samples.take(action));
    }
    samples.report(state, goal);
}

template <class Action>
void measure(benchmark::State &state, const Goal &goal, Action &&action) {
    measure(state, goal, action, [] {});
}

void reportMegabytes(benchmark::State &state, const Goal &goal, double megabytes);

} // namespace Bench
