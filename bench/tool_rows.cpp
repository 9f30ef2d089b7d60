// The tools that work on the selected grades: comparing ten of them, and the values of one over temperature.
#include <benchmark/benchmark.h>

#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

#include "bench/keys.h"
#include "bench/other_program.h"
#include "bench/program.h"
#include "bench/rows.h"
#include "platform/forms/default_instance.h"
#include "workbench/frmCompare.h"
#include "workbench/frmValueSheet.h"

namespace Bench {

namespace {

constexpr int ToolRuns = 5;
constexpr int ToolKeys = 40;
constexpr Goal Frame{1000.0 / 60};

/// The richest grades of the database, selected, no window of theirs open.
class SelectedProgram {
public:
    SelectedProgram(const QString &database, int count)
        : m_grades(richestGrades(database, count)) // by a program of its own, before this one
        , m_program(database) {
        paint();
        m_program.select(m_grades);
        paint();
    }

    template <class Window>
    Window &open(const char *command) const {
        m_program.command(command);
        paint();
        return DefaultInstance<Window>();
    }
    frmCompare &comparison() const { return open<frmCompare>("mnuToolsElem(0)"); }
    frmValueSheet &sheet() const { return open<frmValueSheet>("mnuToolsElem(3)"); }

private:
    QVector<int> m_grades;
    Program m_program;
};

/// The grades are selected; nothing of them has been read.
template <class Window>
void untilPainted(benchmark::State &state, const QString &database, int grades,
                  Window &(SelectedProgram::*open)() const) {
    Samples samples;
    for ([[maybe_unused]] auto _ : state) {
        const SelectedProgram program(database, grades);
        Window *window = nullptr;
        state.SetIterationTime(samples.take([&] { window = &(program.*open)(); }));
        if (!window->cmdSave->isEnabled()) state.SkipWithError("the window shows nothing");
        window->Unload();
        paint();
    }
    samples.report(state, {});
}

void keyInComparison(benchmark::State &state, const QString &database, int page, bool thickness) {
    const SelectedProgram program(database, 10);
    frmCompare &window = program.comparison();
    window.tabPages->setCurrentIndex(page);
    window.txtTemperature->setText("200,1");
    window.txtThickness->setText("10,1");
    paint();
    measureKeys(state, Frame, thickness ? *window.txtThickness : *window.txtTemperature);
    window.Unload();
    paint();
}

/// A thousand rows, the most that there are.
void keyInSheet(benchmark::State &state, const QString &database) {
    const SelectedProgram program(database, 1);
    frmValueSheet &window = program.sheet();
    window.txtFrom->setText("1,1");
    window.txtStep->setText("0,4");
    window.txtTo->setText("400");
    paint();
    measureKeys(state, Frame, *window.txtFrom);
    if (!window.cmdSave->isEnabled()) state.SkipWithError("the window shows nothing");
    window.Unload();
    paint();
}

} // namespace

void addToolRows(const QString &database) {
    const auto add = [](const char *name, int runs, auto run) {
        benchmark::RegisterBenchmark(name, run)->Iterations(runs)->UseManualTime();
    };
    add("compare ten rich grades, nothing read before, painted", ToolRuns,
        [=](benchmark::State &state) { untilPainted(state, database, 10, &SelectedProgram::comparison); });
    const auto addKey = [&](const char *name, int page, bool thickness) {
        add(name, ToolKeys,
            [=](benchmark::State &state) { keyInComparison(state, database, page, thickness); });
    };
    addKey("compare ten, a key of the temperature, painted", 0, false);
    addKey("compare ten, a key of the thickness, painted", 0, true);
    addKey("compare ten, a key of the temperature, painted, graph", 1, false);
    add("values over temperature of a rich grade, nothing read before, painted", ToolRuns,
        [=](benchmark::State &state) { untilPainted(state, database, 1, &SelectedProgram::sheet); });
    add("values over temperature, a key of 1,000 rows, painted", ToolKeys,
        [=](benchmark::State &state) { keyInSheet(state, database); });
}

} // namespace Bench
