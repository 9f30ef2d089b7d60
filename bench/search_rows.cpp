// A key in a search box until list, count and current standard agree.
#include <benchmark/benchmark.h>

#include <cmath>

#include <QTest>

#include "bench/program.h"
#include "bench/rows.h"
#include "bench/samples.h"
#include "platform/dao/recordset.h"
#include "search/frmSearch.h"

namespace Bench {

namespace {

constexpr int SearchStrokes = 41;

enum class Painted { No, Yes };

struct Stroke {
    int box = 1;
    char key = 'P';
};

/// The one key of all boxes that leaves nearest to a tenth of the list.
Stroke narrowingStroke(frmSearch &search) {
    Stroke best;
    double bestDistance = 1;
    const double all = search.lblMatCount->text().toDouble();
    for (const int box : {0, 1, 2, 3, 4}) {
        for (const char *key = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ"; *key != '\0'; ++key) {
            search.txtSearch(box)->setText(QString(QLatin1Char(*key)));
            const double distance = std::abs(search.lblMatCount->text().toDouble() / all - 0.1);
            if (distance < bestDistance) {
                bestDistance = distance;
                best = {box, *key};
            }
        }
        search.txtSearch(box)->clear();
    }
    paint();
    return best;
}

/// List, count and current standard are all of the same search.
bool agree(frmSearch &search) {
    const auto found = search.dtaMaterials->recordset();
    const int count = found->RecordCount();
    if (search.tdbMaterials->RowCount() != count || search.lblMatCount->text().toInt() != count) return false;
    return count == 0 || found->Fields("standard") == search.dtaStandard->recordset()->Fields("standard");
}

/// A key in an empty box leaves a tenth of the list; the key that takes it back leaves the whole list.
void stroke(benchmark::State &state, const QString &database, const Goal &goal, bool narrows,
            Painted painted) {
    const Program program(database);
    paint();
    frmSearch &search = program.search();
    const Stroke key = narrowingStroke(search);
    QLineEdit *box = search.txtSearch(key.box);
    box->setFocus();
    const auto type = [&](bool narrowing) {
        if (narrowing)
            QTest::keyClick(box, key.key);
        else
            QTest::keyClick(box, Qt::Key_Backspace);
        if (painted == Painted::Yes) paint();
    };

    Samples samples;
    for ([[maybe_unused]] auto _ : state) {
        if (!narrows) type(true);
        paint();
        state.SetIterationTime(samples.take([&] { type(narrows); }));
        if (!agree(search)) return state.SkipWithError("list, count and standard differ");
        paint();
        if (narrows) type(false);
    }
    samples.report(state, goal);
}

} // namespace

void addSearchRows(const QString &database) {
    const auto add = [&](const char *name, const Goal &goal, bool narrows, Painted painted) {
        benchmark::RegisterBenchmark(
            name, [=](benchmark::State &state) { stroke(state, database, goal, narrows, painted); })
            ->Iterations(SearchStrokes)
            ->UseManualTime();
    };
    add("a key in a search box, narrowing to a tenth", {4}, true, Painted::No);
    add("a key in a search box, the whole list", {12}, false, Painted::No);
    add("a key in a search box, narrowing to a tenth, painted", {1000.0 / 60}, true, Painted::Yes);
    add("a key in a search box, the whole list, painted", {}, false, Painted::Yes);
}

} // namespace Bench
