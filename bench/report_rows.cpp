// Reports into files.
#include <benchmark/benchmark.h>

#include "bench/program.h"
#include "bench/reports.h"
#include "bench/rows.h"
#include "bench/samples.h"

namespace Bench {

namespace {

constexpr int Reports = 9;
constexpr int Batches = 3;

void fullReport(benchmark::State &state, const QString &database, const Goal &goal, int format) {
    const QVector<int> grade = richestGrades(database, 1);
    Program program(database);
    paint();
    program.select(grade);
    program.showSelected();
    readyForReport(program);
    measure(state, goal, [&] { saveReport(program, format); });
}

void batch(benchmark::State &state, const QString &database) {
    const QVector<int> grades = richestGrades(database, 30);
    Samples samples;
    for ([[maybe_unused]] auto _ : state) {
        Program program(database);
        paint();
        selectForBatch(program, grades);
        state.SetIterationTime(samples.take([&] { printBatch(program); }));
    }
    samples.report(state, {2000});
}

} // namespace

void addReportRows(const QString &database) {
    const auto add = [&](const char *name, const Goal &goal, int format) {
        benchmark::RegisterBenchmark(
            name, [=](benchmark::State &state) { fullReport(state, database, goal, format); })
            ->Iterations(Reports)
            ->UseManualTime();
    };
    add("full report of one rich grade to PDF", {150}, 0);
    add("full report of one rich grade to RTF", {}, 1);
    add("full report of one rich grade to text", {}, 2);
    benchmark::RegisterBenchmark("batch print of thirty rich grades to PDF",
                                 [=](benchmark::State &state) { batch(state, database); })
        ->Iterations(Batches)
        ->UseManualTime();
}

} // namespace Bench
