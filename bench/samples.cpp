#include "bench/samples.h"

#include <algorithm>

#include "bench/table_reporter.h"

namespace Bench {

double median(std::vector<double> values) {
    if (values.empty()) return 0;
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

void Samples::append(const Samples &other) {
    m_clock.insert(m_clock.end(), other.m_clock.begin(), other.m_clock.end());
    m_cpu.insert(m_cpu.end(), other.m_cpu.begin(), other.m_cpu.end());
}

void Samples::report(benchmark::State &state, const Goal &goal) const {
    state.counters[Counter::Median] = median(m_clock) * 1000;
    state.counters[Counter::Slowest] = *std::max_element(m_clock.begin(), m_clock.end()) * 1000;
    state.counters[Counter::Cpu] = median(m_cpu) * 1000;
    if (goal.milliseconds > 0) state.counters[Counter::Goal] = goal.milliseconds;
}

void Samples::report(benchmark::State &state, const Goal &goal, const Samples &other) const {
    report(state, goal);
    if (other.m_clock.empty()) return;
    // A machine that grows slower in the meantime slows both of a pair down.
    std::vector<double> ratios;
    for (std::size_t i = 0; i < std::min(m_clock.size(), other.m_clock.size()); ++i)
        ratios.push_back(m_clock[i] / other.m_clock[i]);
    state.counters[Counter::Other] = median(other.m_clock) * 1000;
    state.counters[Counter::Ratio] = median(ratios);
    if (goal.ratio > 0) state.counters[Counter::RatioGoal] = goal.ratio;
}

void reportMegabytes(benchmark::State &state, const Goal &goal, double megabytes) {
    state.counters[Counter::Megabytes] = megabytes;
    if (goal.megabytes > 0) state.counters[Counter::Goal] = goal.megabytes;
}

} // namespace Bench
