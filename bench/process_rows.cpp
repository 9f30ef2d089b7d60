// What only a process of its own can tell: the time from its start, and its memory.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <QThread>

#include "bench/other_program.h"
#include "bench/process_info.h"
#include "bench/program.h"
#include "bench/rows.h"
#include "bench/samples.h"
#include "data/modFileHandler.h"
#include "platform/runtime/text_file.h"

namespace Bench {

namespace {

constexpr int Starts = 9;
constexpr int MemoryRuns = 3;
/// The start window stays for three seconds when nobody presses a key.
constexpr int IdleAfter = 6000;

/// What the process of a scene says: two figures, and how long it took to say them.
struct SceneResult {
    double first = 0;
    int second = 0;
};

SceneResult playScene(const QString &scene, const QString &database, const QVector<int> &grades) {
    QStringList arguments{"--scene=" + scene, database};
    for (const int grade : grades)
        arguments << QString::number(grade);
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), arguments);
    QByteArray line;
    while (!line.contains('\n') && process.waitForReadyRead(120000))
        line += process.readAllStandardOutput();
    SceneResult result;
    if (std::sscanf(line.constData(), "%lf %d", &result.first, &result.second) != 2) {
        std::fprintf(stderr, "velmar_bench: the scene %s failed\n", qPrintable(scene));
        std::exit(1);
    }
    process.closeReadChannel(QProcess::StandardOutput);
    process.waitForFinished();
    return result;
}

void memory(benchmark::State &state, const QString &scene, const QString &database, int gradeCount,
            const Goal &goal) {
    const QVector<int> grades = gradeCount > 0 ? richestGrades(database, gradeCount) : QVector<int>();
    std::vector<double> values;
    int pages = 0;
    for ([[maybe_unused]] auto _ : state) {
        const SceneResult result = playScene(scene, database, grades);
        values.push_back(result.first);
        pages = result.second;
        state.SetIterationTime(0);
    }
    reportMegabytes(state, goal, median(values));
    if (pages > 0) state.SetLabel(std::to_string(pages) + " pages");
}

/// From the start of a process, with a key pressed at the start window.
void start(benchmark::State &state, const QString &database) {
    measure(state, {}, [&] { playScene("start", database, {}); });
}

/// The program itself, with nobody at its keys, once it has nothing more to do.
struct IdleProgram {
    IdleProgram(const QString &database) {
        const Folders folders(database);
        TextFile::writeLines(modFileHandler::GetUserPath("PathSet.vlp"),
                             {QFileInfo(database).absoluteFilePath()});
        QProcess process;
        process.start(QCoreApplication::applicationDirPath() + "/velmar-ped", {});
        process.waitForStarted();
        QThread::msleep(IdleAfter);
        processorTime = processorTimeOf(process.processId());
        resident = memoryOf(process.processId()).resident;
        process.kill();
        process.waitForFinished();
    }

    double processorTime = 0;
    double resident = 0;
};

/// The program without windows, from its start to the last design value of the richest grade.
void valuesStart(benchmark::State &state, const QString &database) {
    const int grade = richestGrades(database, 1).first();
    const QStringList call{"--database", database, "values", QStringLiteral("#%1").arg(grade), "--at", "310"};
    Samples ours;
    Samples other;
    for ([[maybe_unused]] auto _ : state) {
        state.SetIterationTime(
            ours.take([&] { runToEnd(QCoreApplication::applicationDirPath() + "/velmar-values", call); }));
        if (!othersRead(database)) continue;
        const OtherSelect select(database, QStringLiteral("select * from Rp02 where matID = %1").arg(grade));
        other.take([&] { select.run(); });
    }
    ours.report(state, {60, 1}, other);
}

void programTime(benchmark::State &state, const QString &database) {
    Samples samples;
    for ([[maybe_unused]] auto _ : state) {
        const IdleProgram idle(database);
        samples.add(idle.processorTime, idle.processorTime);
        state.SetIterationTime(0);
    }
    samples.report(state, {});
}

void programMemory(benchmark::State &state, const QString &database) {
    for ([[maybe_unused]] auto _ : state) {
        reportMegabytes(state, {}, IdleProgram(database).resident);
        state.SetIterationTime(0);
    }
}

} // namespace

void addProcessRows(const QString &database, const QString &sample) {
    const auto add = [](const char *name, int runs, auto run) {
        benchmark::RegisterBenchmark(name, run)->Iterations(runs)->UseManualTime();
    };
    const auto addMemory = [&](const char *name, const QString &scene, const QString &path, int grades,
                               const Goal &goal) {
        add(name, MemoryRuns, [=](benchmark::State &state) { memory(state, scene, path, grades, goal); });
    };
    add("sample: process start to painted search window", Starts,
        [sample](benchmark::State &state) { start(state, sample); });
    add("process start to painted search window", Starts,
        [database](benchmark::State &state) { start(state, database); });
    add("sample: velmar-values, process start to the last design value", Starts,
        [sample](benchmark::State &state) { valuesStart(state, sample); });
    add("velmar-values, process start to the last design value", Starts,
        [database](benchmark::State &state) { valuesStart(state, database); });
    add("sample: the program itself until idle, processor time", MemoryRuns,
        [sample](benchmark::State &state) { programTime(state, sample); });
    add("sample: the program itself, idle at its list, memory", 1,
        [sample](benchmark::State &state) { programMemory(state, sample); });

    addMemory("sample: memory with ten windows", "ten", sample, 10, {0, 0, 120});
    addMemory("sample: memory with ten windows, all tables seen", "ten-all", sample, 10, {0, 0, 120});
    addMemory("memory with the list", "list", database, 0, {0, 0, 220});
    addMemory("memory with ten windows, all tables seen", "ten-all", database, 10, {0, 0, 220});
    addMemory("find by value, all properties read: peak above the memory before", "values", database, 0,
              {0, 0, 100});
    addMemory("batch print of ten: peak above the memory before", "batch", database, 10, {});
    addMemory("batch print of twenty: peak above the memory before", "batch", database, 20, {});
    addMemory("batch print of thirty: peak above the memory before", "batch", database, 30, {});
}

} // namespace Bench
