#include "bench/table_reporter.h"

#include <cstdio>
#include <optional>
#include <string>

namespace Bench {

namespace {

using Run = benchmark::BenchmarkReporter::Run;

void line(const std::string &what, const std::string &median, const std::string &slowest,
          const std::string &cpu, const std::string &goal, const std::string &other, const std::string &ratio,
          const std::string &verdict) {
    std::printf("| %-58s | %10s | %10s | %9s | %14s | %9s | %6s | %-6s |\n", what.c_str(), median.c_str(),
                slowest.c_str(), cpu.c_str(), goal.c_str(), other.c_str(), ratio.c_str(), verdict.c_str());
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

void printRun(const Run &run) {
    const std::string what =
        run.run_name.function_name + (run.report_label.empty() ? "" : ", " + run.report_label);
    if (run.error_occurred) {
        std::printf("| %-58s | %s |\n", what.c_str(), run.error_message.c_str());
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
    line(what, text(shown, unit), text(counter(run, Counter::Slowest)), text(counter(run, Counter::Cpu)),
         goals, text(counter(run, Counter::Other)), text(ratio, "x"), verdict);
}

} // namespace

bool TableReporter::ReportContext(const Context &context) {
    const auto &cpu = context.cpu_info;
    std::printf("%d processors of %.0f MHz, load", cpu.num_cpus, cpu.cycles_per_second / 1e6);
    for (const double load : cpu.load_avg)
        std::printf(" %.2f", load);
    std::printf("; milliseconds, medians\n\n");
    line("what the user waits for", "median", "slowest", "CPU", "goal", "mdbtools", "ratio", "");
    line(std::string(58, '-'),
         "---------:", "---------:", "--------:", "-------------:", "--------:", "-----:", "------");
    return true;
}

void TableReporter::ReportRuns(const std::vector<Run> &runs) {
    for (const Run &run : runs)
        if (run.run_type == Run::RT_Iteration) printRun(run);
}

} // namespace Bench
