#include "bench/samples.h"

#include <algorithm>
#include <numeric>

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

void Samples::addSumOf(const Samples &parts) {
    add(std::accumulate(parts.m_clock.begin(), parts.m_clock.end(), 0.0),
        std::accumulate(parts.m_cpu.begin(), parts.m_cpu.end(), 0.0));
}

void Samples::report(benchmark::State &state, const Goal &goal) const {
    state.counters[Counter::Median] = median(m_clock) * 1000;
    state.counters[Counter::Slowest] = *std::max_element(m_clock.begin(), m_clock.end()) * 1000;
    state.counters[Counter::Cpu] = median(m_cpu) * 1000;
    if (goal.milliseconds > 0) state.counters[Counter::Goal] = goal.milliseconds;
}

void Samples::report(benchmark::State &state, const Goal &goal, const Samples &other) const {
    reportBeside(state, goal, other);
    if (other.m_clock.empty()) return;
    state.counters[Counter::Other] = median(other.m_clock) * 1000;
    state.counters[Counter::OtherCpu] = median(other.m_cpu) * 1000;
}

void Samples::reportBeside(benchmark::State &state, const Goal &goal, const Samples &other) const {
    report(state, goal);
    if (other.m_clock.empty()) return;
    // A machine that grows slower in the meantime slows both of a pair down.
    const auto ratio = [](const std::vector<double> &ours, const std::vector<double> &others) {
        std::vector<double> ratios;
        for (std::size_t i = 0; i < std::min(ours.size(), others.size()); ++i)
            if (others[i] > 0) ratios.push_back(ours[i] / others[i]);
        return median(ratios);
    };
    state.counters[Counter::Ratio] = ratio(m_clock, other.m_clock);
    state.counters[Counter::CpuRatio] = ratio(m_cpu, other.m_cpu);
    if (goal.ratio > 0) state.counters[Counter::RatioGoal] = goal.ratio;
}

void reportMegabytes(benchmark::State &state, const Goal &goal, double megabytes) {
    state.counters[Counter::Megabytes] = megabytes;
    if (goal.megabytes > 0) state.counters[Counter::Goal] = goal.megabytes;
}

} // namespace Bench
