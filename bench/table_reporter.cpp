#include "bench/table_reporter.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>

namespace Bench {

namespace {

using Run = benchmark::BenchmarkReporter::Run;

constexpr std::size_t Columns = 10;
/// A negative width stands to the left.
constexpr std::array<int, Columns> Widths = {-63, 10, 9, 9, 15, 8, 8, 7, 9, -6};

void line(const std::array<std::string, Columns> &cells) {
    for (std::size_t i = 0; i < Columns; ++i)
        std::printf("| %*s ", Widths[i], cells[i].c_str());
    std::printf("|\n");
    std::fflush(stdout);
}

std::optional<double> counter(const Run &run, const char *name) {
    const auto found = run.counters.find(name);
    if (found == run.counters.end()) return {};
    return found->second.value;
}

std::string text(std::optional<double> value, const char *unit = "") {
    if (!value) return {};
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, *value < 100 ? "%.2f%s" : "%.0f%s", *value, unit);
    return buffer;
}

bool misses(std::optional<double> value, std::optional<double> goal) {
    return value && goal && *value > *goal;
}

/// What a run that gave up says; the library's version decides where it does.
template <class AnyRun>
const char *failureOf(const AnyRun &run) {
    if constexpr (requires { run.error_occurred; })
        return run.error_occurred ? run.error_message.c_str() : nullptr;
    else
        return run.skipped ? run.skip_message.c_str() : nullptr;
}

void printRun(const Run &run) {
    const std::string what =
        run.run_name.function_name + (run.report_label.empty() ? "" : ", " + run.report_label);
    if (const char *failure = failureOf(run)) {
        std::printf("| %-63s | %s |\n", what.c_str(), failure);
        return;
    }
    const auto megabytes = counter(run, Counter::Megabytes);
    const auto median = counter(run, Counter::Median);
    const auto ratio = counter(run, Counter::Ratio);
    const auto goal = counter(run, Counter::Goal);
    const auto ratioGoal = counter(run, Counter::RatioGoal);
    const char *unit = megabytes ? " MB" : " ms";
    const auto shown = megabytes ? megabytes : median;

    std::string goals = text(goal, unit);
    if (ratioGoal) goals += (goals.empty() ? "" : ", ") + text(ratioGoal, "x");
    std::string verdict;
    if (goal || (ratio && ratioGoal))
        verdict = misses(shown, goal) || misses(ratio, ratioGoal) ? "misses" : "meets";
    const auto number = [&run](const char *name) { return text(counter(run, name)); };
    line({what, text(shown, unit), number(Counter::Slowest), number(Counter::Cpu), goals,
          number(Counter::Other), number(Counter::OtherCpu), text(ratio, "x"),
          text(counter(run, Counter::CpuRatio), "x"), verdict});
}

} // namespace

bool TableReporter::ReportContext(const Context &context) {
    const auto &cpu = context.cpu_info;
    std::printf("%d processors of %.0f MHz, load", cpu.num_cpus, cpu.cycles_per_second / 1e6);
    for (const double load : cpu.load_avg)
        std::printf(" %.2f", load);
    std::printf("; milliseconds, medians\n\n");
    line({"what the user waits for", "median", "slowest", "CPU", "goal", "mdbtools", "its CPU", "ratio",
          "CPU ratio", ""});
    std::array<std::string, Columns> rule;
    for (std::size_t i = 0; i < Columns; ++i) {
        rule[i] = std::string(static_cast<std::size_t>(std::abs(Widths[i])), '-');
        if (Widths[i] > 0) rule[i].back() = ':';
    }
    line(rule);
    return true;
}

void TableReporter::ReportRuns(const std::vector<Run> &runs) {
    for (const Run &run : runs)
        if (run.run_type == Run::RT_Iteration) printRun(run);
}

} // namespace Bench
