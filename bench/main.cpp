// Measures the program over one database and prints a table. See ./run.
#include <cstdio>

#include <QFileInfo>

#include <benchmark/benchmark.h>

#include "bench/rows.h"
#include "bench/scenes.h"
#include "bench/table_reporter.h"
#include "platform/forms/application.h"
#include "platform/runtime/regional_settings.h"
#include "platform/runtime/runtime_error.h"

namespace {

/// The offscreen platform tells at every window what it cannot do.
void handleMessage(QtMsgType, const QMessageLogContext &, const QString &message) {
    if (!message.startsWith("This plugin does not support"))
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

int measure(const QString &database, const QString &sample) {
    Bench::addOpeningRows(database);
    Bench::addSearchRows(database);
    Bench::addTableRows(database);
    Bench::addDesignRows(database);
    Bench::addValueRows(database);
    Bench::addToolRows(database);
    Bench::addReportRows(database);
    Bench::addProcessRows(database, sample);
    Bench::TableReporter table;
    benchmark::RunSpecifiedBenchmarks(&table);
    return 0;
}

int playScene(const QStringList &arguments) {
    QVector<int> grades;
    for (const QString &grade : arguments.mid(3))
        grades << grade.toInt();
    return Bench::runScene(arguments[1].mid(8), arguments[2], grades);
}

} // namespace

int main(int argc, char **argv) {
    qInstallMessageHandler(handleMessage);
    Application application(argc, argv);
    RegionalSettings::setCurrent(RegionalSettings::fromSystem());
    // An error would measure something else than what the line of the table says.
    application.setFaultSeam([](const RuntimeError &error) {
        std::fprintf(stderr, "%s\n", qPrintable(Application::reportText(error)));
        std::_Exit(1);
    });
    benchmark::Initialize(&argc, argv);
    const QStringList arguments = Application::arguments();
    if (arguments.size() > 2 && arguments[1].startsWith("--scene=")) return playScene(arguments);
    if (argc != 3) {
        std::fprintf(stderr, "usage: velmar_bench DATABASE SAMPLE [--benchmark_filter=...]\n");
        return 2;
    }
    return measure(QFileInfo(argv[1]).absoluteFilePath(), QFileInfo(argv[2]).absoluteFilePath());
}
