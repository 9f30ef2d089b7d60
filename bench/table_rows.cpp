// The tables of a grade: the first showing of each, with nothing read before, and later ones.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <memory>
#include <vector>

#include <QCoreApplication>
#include <QElapsedTimer>

#include "bench/other_program.h"
#include "bench/program.h"
#include "bench/rows.h"
#include "bench/samples.h"
#include "data/Material.h"
#include "data/table_vocabulary.h"
#include "material/frmMaterial2.h"

namespace Bench {

namespace {

constexpr int FirstShowings = 5;
constexpr int LaterShowings = 15;
const Goal FirstGoal{60, 2};
const Goal LaterGoal{3};
const Goal FrameGoal{16.7};
constexpr int RestInMilliseconds = 2000;
constexpr int ShowingsAfterRest = 5;

/// Of one table's first showing; `other` holds the other program's times.
struct Showing {
    Samples plain;
    Samples painted;
    Samples other;
};

/// What other programs are asked for: the rows of the grade in that table.
QString rowsOf(const QString &key, const Material &material) {
    if (key == QLatin1String("ChemComp"))
        return QStringLiteral("select * from Chemical where standard = '%1' and name = '%2' and numbr = '%3'")
            .arg(material.Standard(), material.Name(), material.Number());
    const QString table = key == QLatin1String("MechProp")    ? "MechPropData"
                          : key == QLatin1String("CreepProp") ? "CreepProperties"
                          : key == QLatin1String("AddInfo")   ? "GetInfo"
                                                              : key;
    return QStringLiteral("select * from %1 where matID = %2").arg(table).arg(material.ID());
}

/// A new run of the program each time, so that nothing of the table has been read.
void firstShowing(benchmark::State &state, const QString &database, const QString &key, Showing &showing) {
    const QVector<int> grade = richestGrades(database, 1);
    for ([[maybe_unused]] auto _ : state) {
        const Program program(database);
        paint();
        program.select(grade);
        program.showSelected();
        frmMaterial2 &window = *program.windows().first();
        state.SetIterationTime(showing.plain.take([&] { window.ShowTable(key); }));
        Samples painting;
        painting.take([] { paint(); });
        showing.painted.add(showing.plain.clock().back() + painting.clock().back(),
                            showing.plain.cpu().back() + painting.cpu().back());
        if (!othersRead(database)) continue;
        const OtherSelect select(database, rowsOf(key, *window.mMat()));
        showing.other.take([&] { select.run(); });
    }
    showing.plain.report(state, FirstGoal, showing.other);
}

/// Of all tables: the median, or the slowest one.
void summary(benchmark::State &state, const std::vector<std::shared_ptr<Showing>> &showings,
             Samples Showing::*samples, bool worst) {
    for ([[maybe_unused]] auto _ : state)
        state.SetIterationTime(0);
    Samples ours, others;
    const Showing *slowest = nullptr;
    for (const auto &showing : showings) {
        const Samples &shown = (*showing).*samples;
        if (shown.clock().empty()) continue;
        ours.add(median(shown.clock()), median(shown.cpu()));
        if (!showing->other.clock().empty())
            others.add(median(showing->other.clock()), median(showing->other.cpu()));
        if (slowest == nullptr || median(shown.clock()) > median((slowest->*samples).clock()))
            slowest = showing.get();
    }
    if (slowest == nullptr) return state.SkipWithError("the tables were not measured");
    if (worst)
        (slowest->*samples).report(state, FirstGoal, slowest->other);
    else
        ours.report(state, FirstGoal, others);
}

/// Each table's, in a run of its own that has stood at its list for a while.
void showingAfterRest(benchmark::State &state, const QString &database) {
    const QVector<int> grade = richestGrades(database, 1);
    std::vector<Samples> tables(TableVocabulary::TableCount);
    int first = 0;
    for ([[maybe_unused]] auto _ : state) {
        const Program program(database);
        paint();
        QElapsedTimer rest;
        rest.start();
        while (rest.elapsed() < RestInMilliseconds)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
        program.select(grade);
        program.showSelected();
        frmMaterial2 &window = *program.windows().first();
        paint();
        double total = 0;
        for (int i = 0; i < TableVocabulary::TableCount; ++i) {
            // What several tables share is paid by another one each time.
            const int table = (first + i) % TableVocabulary::TableCount;
            total += tables[static_cast<std::size_t>(table)].take([&] {
                window.ShowTable(TableVocabulary::GetShortTableName(table));
                paint();
            });
        }
        state.SetIterationTime(total);
        first += 3;
    }
    const auto slowest =
        std::max_element(tables.begin(), tables.end(), [](const Samples &a, const Samples &b) {
            return median(a.clock()) < median(b.clock());
        });
    slowest->report(state, FrameGoal);
}

void laterShowing(benchmark::State &state, const QString &database, bool painted, bool worst) {
    const QVector<int> grade = richestGrades(database, 1);
    const Program program(database);
    paint();
    program.select(grade);
    program.showSelected();
    frmMaterial2 &window = *program.windows().first();
    window.CheckTablesForRecords();
    paint();

    std::vector<Samples> tables(TableVocabulary::TableCount);
    for ([[maybe_unused]] auto _ : state) {
        double total = 0;
        for (int i = 0; i < TableVocabulary::TableCount; ++i) {
            const QString key = TableVocabulary::GetShortTableName(i);
            total += tables[static_cast<std::size_t>(i)].take([&] {
                window.ShowTable(key);
                if (painted) paint();
            });
            paint();
        }
        state.SetIterationTime(total);
    }
    Samples all;
    std::size_t slowest = 0;
    for (std::size_t i = 0; i < tables.size(); ++i) {
        all.append(tables[i]);
        if (median(tables[i].clock()) > median(tables[slowest].clock())) slowest = i;
    }
    (worst ? tables[slowest] : all).report(state, painted ? Goal{} : LaterGoal);
}

} // namespace

void addTableRows(const QString &database) {
    auto showings = std::vector<std::shared_ptr<Showing>>();
    for (int i = 1; i < TableVocabulary::TableCount; ++i) {
        const QString key = TableVocabulary::GetShortTableName(i);
        auto showing = std::make_shared<Showing>();
        showings.push_back(showing);
        benchmark::RegisterBenchmark(
            qPrintable("- first showing of " + key),
            [=](benchmark::State &state) { firstShowing(state, database, key, *showing); })
            ->Iterations(FirstShowings)
            ->UseManualTime();
    }
    const auto addSummary = [&](const char *name, Samples Showing::*samples, bool worst) {
        benchmark::RegisterBenchmark(
            name, [=](benchmark::State &state) { summary(state, showings, samples, worst); })
            ->Iterations(1)
            ->UseManualTime();
    };
    addSummary("first showing of a table, nothing read before, median", &Showing::plain, false);
    addSummary("first showing of a table, nothing read before, worst", &Showing::plain, true);
    addSummary("first showing of a table, painted, worst", &Showing::painted, true);

    benchmark::RegisterBenchmark("first showing of a table, two seconds after the list stood, painted, worst",
                                 [=](benchmark::State &state) { showingAfterRest(state, database); })
        ->Iterations(ShowingsAfterRest)
        ->UseManualTime();

    const auto addLater = [&](const char *name, bool painted, bool worst) {
        benchmark::RegisterBenchmark(
            name, [=](benchmark::State &state) { laterShowing(state, database, painted, worst); })
            ->Iterations(LaterShowings)
            ->UseManualTime();
    };
    addLater("a later showing of a table, median", false, false);
    addLater("a later showing of a table, worst", false, true);
    addLater("a later showing of a table, painted, worst", true, true);
}

} // namespace Bench
