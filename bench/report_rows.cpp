// Reports into files.
#include <benchmark/benchmark.h>

#include <memory>

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

double printBatch(const QString &database, const QVector<int> &grades, Samples &samples) {
    Program program(database);
    paint();
    selectForBatch(program, grades);
    return samples.take([&] { printBatch(program); });
}

void batch(benchmark::State &state, const QString &database) {
    const QVector<int> grades = richestGrades(database, 30);
    Samples samples;
    for ([[maybe_unused]] auto _ : state)
        state.SetIterationTime(printBatch(database, grades, samples));
    samples.report(state, {2000});
}

/// The same grades one by one, in a run of the program in which nothing was read of them either: a batch
/// reads their tables as well. Each one's window is open before the clock starts, as for the report of one
/// grade.
void saveOneByOne(const QString &database, const QVector<int> &grades, Samples &samples) {
    Program program(database);
    paint();
    Samples each;
    for (const int grade : grades) {
        program.select({grade});
        program.showSelected();
        each.take([&] {
            readyForReport(program);
            saveReport(program, 0);
        });
        backToEmptySearch(program);
    }
    samples.addSumOf(each);
}

/// Three rows of one run: thirty reports one by one, the batch, and how many times the first the second is.
struct Pair {
    Samples oneByOne;
    Samples together;
};

void addPairRows(const QString &database) {
    const auto pair = std::make_shared<Pair>();
    const auto add = [](const char *name, int runs, auto run) {
        benchmark::RegisterBenchmark(name, run)->Iterations(runs)->UseManualTime();
    };
    add("thirty full reports to PDF one by one, nothing read of them", Batches,
        [pair, database](benchmark::State &state) {
            const QVector<int> grades = richestGrades(database, 30);
            for ([[maybe_unused]] auto _ : state) {
                saveOneByOne(database, grades, pair->oneByOne);
                state.SetIterationTime(pair->oneByOne.clock().back());
                printBatch(database, grades, pair->together);
            }
            pair->oneByOne.report(state, {});
        });
    add("batch print of the same thirty, in turn with them", 1, [pair](benchmark::State &state) {
        for ([[maybe_unused]] auto _ : state)
            state.SetIterationTime(0);
        if (!pair->together.clock().empty()) pair->together.reportBeside(state, {0, 1}, pair->oneByOne);
    });
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
    addPairRows(database);
}

} // namespace Bench
