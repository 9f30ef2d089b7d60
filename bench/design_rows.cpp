// A key in the box of the design temperature, which all open windows follow.
#include <benchmark/benchmark.h>

#include <QTest>

#include "bench/program.h"
#include "bench/rows.h"
#include "bench/samples.h"
#include "material/frmMaterial2.h"

namespace Bench {

namespace {

constexpr int Strokes = 40;

void stroke(benchmark::State &state, const QString &database, const Goal &goal, bool painted) {
    const QVector<int> grades = richestGrades(database, 10);
    const Program program(database);
    paint();
    program.select(grades);
    program.showSelected();
    program.command("mnuViewElem(6)");
    paint();
    QLineEdit *box = program.windows().last()->txtDesignTemp;
    box->setFocus();

    static const char Keys[] = "150350";
    std::size_t next = 0;
    Samples samples;
    for ([[maybe_unused]] auto _ : state) {
        // every third digit begins a new temperature, in the place of the old one
        if (next % 3 == 0) box->selectAll();
        paint();
        const char key = Keys[next++ % (sizeof Keys - 1)];
        state.SetIterationTime(samples.take([&] {
            QTest::keyClick(box, key);
            if (painted) paint();
        }));
    }
    samples.report(state, goal);
}

} // namespace

void addDesignRows(const QString &database) {
    const auto add = [&](const char *name, const Goal &goal, bool painted) {
        benchmark::RegisterBenchmark(name,
                                     [=](benchmark::State &state) { stroke(state, database, goal, painted); })
            ->Iterations(Strokes)
            ->UseManualTime();
    };
    add("a design temperature key, ten windows", {2}, false);
    add("a design temperature key, ten windows, painted", {1000.0 / 60}, true);
}

} // namespace Bench
