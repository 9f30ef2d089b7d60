// From the file to the list, and from the list to ten windows.
#include <benchmark/benchmark.h>

#include <memory>

#include "bench/other_program.h"
#include "bench/program.h"
#include "bench/rows.h"
#include "bench/samples.h"
#include "data/modDBase.h"
#include "platform/dao/database.h"
#include "platform/dao/db_engine.h"
#include "platform/dao/recordset.h"

namespace Bench {

namespace {

constexpr int Runs = 9;

void openWithWindows(benchmark::State &state, const QString &database) {
    Samples ours;
    Samples other;
    for ([[maybe_unused]] auto _ : state) {
        std::unique_ptr<Program> program;
        state.SetIterationTime(ours.take([&] {
            program = std::make_unique<Program>(database);
            paint();
        }));
        if (othersRead(database)) other.take([&] { exportTable(database, "materials"); });
    }
    ours.report(state, {400, 3}, other);
}

void openData(benchmark::State &state, const QString &database) {
    Samples ours;
    Samples other;
    for ([[maybe_unused]] auto _ : state) {
        std::shared_ptr<Database> opened;
        std::shared_ptr<Recordset> rows;
        state.SetIterationTime(ours.take([&] {
            opened = DBEngine::instance().OpenDatabase(database, true, true, ";Pwd=rolvek");
            rows = opened->OpenRecordset("select * from materials order by standard,name");
        }));
        if (othersRead(database)) other.take([&] { exportTable(database, "materials"); });
    }
    ours.report(state, {}, other);
}

void showTen(benchmark::State &state, const QString &database) {
    const QVector<int> grades = richestGrades(database, 10);
    Samples samples;
    for ([[maybe_unused]] auto _ : state) {
        const Program program(database);
        paint();
        program.select(grades);
        state.SetIterationTime(samples.take([&] { program.showSelected(); }));
    }
    samples.report(state, {300});
}

} // namespace

void addOpeningRows(const QString &database) {
    const auto add = [](const char *name, auto run) {
        benchmark::RegisterBenchmark(name, run)->Iterations(Runs)->UseManualTime();
    };
    add("open the file until the whole list stands, painted",
        [database](benchmark::State &state) { openWithWindows(state, database); });
    add("- the rows alone, in order, without windows",
        [database](benchmark::State &state) { openData(state, database); });
    add("show ten grades from the search window, painted",
        [database](benchmark::State &state) { showTen(state, database); });
}

} // namespace Bench
