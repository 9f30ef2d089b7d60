#include "bench/scenes.h"

#include <cstdio>

#include <QFile>
#include <QTest>

#include "bench/process_info.h"
#include "bench/program.h"
#include "bench/reports.h"
#include "data/modDBase.h"
#include "data/table_vocabulary.h"
#include "material/frmMaterial2.h"
#include "platform/forms/default_instance.h"
#include "start/frmSplash.h"
#include "values/value_search.h"

namespace Bench {

namespace {

qint64 thisProcess() {
    return QCoreApplication::applicationPid();
}

void tell(double first, int second) {
    std::printf("%f %d\n", first, second);
    std::fflush(stdout);
}

void start(const QString &database) {
    const Folders folders(database);
    auto &splash = DefaultInstance<frmSplash>();
    paint();
    QTest::keyClick(&splash, Qt::Key_Space);
    paint();
    tell(0, 0);
    std::_Exit(0);
}

void list(const QString &database) {
    const Program program(database);
    paint();
    tell(memoryOf(thisProcess()).resident, 0);
}

/// The richest grades are looked for by another process, which leaves nothing behind in this one's memory.
void ten(const QString &database, const QVector<int> &grades, bool allTables) {
    const Program program(database);
    paint();
    program.select(grades);
    program.showSelected();
    if (allTables)
        for (frmMaterial2 *window : program.windows())
            window->CheckTablesForRecords();
    paint();
    tell(memoryOf(thisProcess()).resident, 0);
}

/// From here on the peak counts anew.
double residentBeforePeak() {
    const double resident = memoryOf(thisProcess()).resident;
    QFile reset("/proc/self/clear_refs");
    if (reset.open(QFile::WriteOnly)) reset.write("5");
    return resident;
}

void values(const QString &database) {
    const Program program(database);
    paint();
    const double before = residentBeforePeak();
    ValueSearch search(*modDBase::dbMain());
    for (const QString &key : TableVocabulary::designKeys())
        search.read(key);
    tell(memoryOf(thisProcess()).peak - before, 0);
}

void batch(const QString &database, const QVector<int> &grades) {
    Program program(database);
    paint();
    selectForBatch(program, grades);
    const double before = residentBeforePeak();
    const int pages = printBatch(program);
    tell(memoryOf(thisProcess()).peak - before, pages);
}

} // namespace

int runScene(const QString &scene, const QString &database, const QVector<int> &grades) {
    if (scene == QLatin1String("start"))
        start(database);
    else if (scene == QLatin1String("list"))
        list(database);
    else if (scene == QLatin1String("ten"))
        ten(database, grades, false);
    else if (scene == QLatin1String("ten-all"))
        ten(database, grades, true);
    else if (scene == QLatin1String("values"))
        values(database);
    else if (scene == QLatin1String("batch"))
        batch(database, grades);
    else
        return 2;
    return 0;
}

} // namespace Bench
