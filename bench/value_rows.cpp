// Finding grades by value: the first answer, which reads the table of a property, and every further one.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

#include "bench/keys.h"
#include "bench/other_program.h"
#include "bench/program.h"
#include "bench/rows.h"
#include "bench/samples.h"
#include "data/database_names.h"
#include "platform/dao/database.h"
#include "platform/dao/db_engine.h"
#include "platform/forms/default_instance.h"
#include "values/value_search.h"
#include "workbench/frmFindValue.h"

namespace Bench {

namespace {

constexpr int Readings = 5;
constexpr int Keys = 40;

std::shared_ptr<Database> opened(const QString &database) {
    return DBEngine::instance().OpenDatabase(database, true, true, ";Pwd=" + DatabasePassword);
}

/// At least so much, at the temperature and in any thickness.
ValueCondition condition(const Property &property, double least, int temperature) {
    return {property, QString::number(temperature), {}, {ValueLimit{least}, {}}};
}

Property propertyNamed(Database &database, const QString &name) {
    const auto property = Properties::named(Properties::all(database), name);
    if (property) return *property;
    std::fprintf(stderr, "velmar_bench: %s\n", qPrintable(property.error));
    std::exit(1);
}

/// Of a program that has its database open: the grades, the table, the answer.
void firstAnswer(benchmark::State &state, const QString &database, const QString &name) {
    Samples ours;
    Samples other;
    for ([[maybe_unused]] auto _ : state) {
        const std::shared_ptr<Database> open = opened(database);
        const Property property = propertyNamed(*open, name);
        ValueResult result;
        state.SetIterationTime(ours.take([&] {
            ValueSearch search(*open);
            search.read(property.key);
            result = search.find({{}, {condition(property, 1, 100)}});
        }));
        benchmark::DoNotOptimize(result);
        if (othersRead(database)) other.take([&] { exportTable(database, property.key); });
    }
    ours.report(state, {0, 1}, other);
}

/// A digit typed at the end of the least value or of the temperature of one condition; the others stay.
void furtherKey(benchmark::State &state, const QString &database, const QStringList &names,
                bool temperature) {
    const std::shared_ptr<Database> open = opened(database);
    ValueSearch search(*open);
    ValueQuery query;
    for (const QString &name : names) {
        query.conditions << condition(propertyNamed(*open, name), 1, 300);
        search.read(query.conditions.last().property.key);
    }
    search.find(query);
    Samples samples;
    int key = 0;
    for ([[maybe_unused]] auto _ : state) {
        ++key;
        query.conditions.first() = temperature
                                       ? condition(query.conditions.first().property, 1, 100 + 7 * key)
                                       : condition(query.conditions.first().property, key, 300);
        state.SetIterationTime(samples.take([&] {
            const ValueResult result = search.find(query);
            for (int place = 0; place < std::min<int>(50, static_cast<int>(result.grades.size())); ++place)
                benchmark::DoNotOptimize(search.found(query, result, place, 0));
            benchmark::DoNotOptimize(search.summary(query, result));
        }));
    }
    samples.report(state, {1000.0 / 60});
}

/// In the real window, with its painting.
void keyInWindow(benchmark::State &state, const QString &database, const QString &boxName, bool diagram) {
    const Program program(database);
    paint();
    program.command("mnuToolsElem(1)");
    auto &window = DefaultInstance<frmFindValue>();
    window.tabPages->setCurrentIndex(diagram ? 1 : 0);
    window.txtTemperature(0)->setText("200,1");
    window.txtLeast(0)->setText("10,1");
    paint();
    measureKeys(state, {1000.0 / 60}, *window.findChild<QLineEdit *>(boxName));
    if (window.lblSummary->text().startsWith("0 ") || !window.cmdSave->isEnabled())
        state.SkipWithError("the window found nothing");
    window.Unload();
    paint();
}

} // namespace

void addValueRows(const QString &database) {
    const auto add = [](const QString &name, int runs, auto run) {
        benchmark::RegisterBenchmark(qPrintable(name), run)->Iterations(runs)->UseManualTime();
    };
    for (const char *name : {"Rp02", "Rm", "ModElast"})
        add(QStringLiteral("find by value, the first answer: ") + name, Readings,
            [=](benchmark::State &state) { firstAnswer(state, database, name); });
    const auto addKey = [&](const char *name, const QStringList &properties, bool temperature) {
        add(name, Keys,
            [=](benchmark::State &state) { furtherKey(state, database, properties, temperature); });
    };
    const QStringList five{"Rp02", "ModElast", "ThermExp/ThermExp", "ThermCond", "SpecThermCap/SpecThermCap"};
    addKey("find by value, a key of the least value", {"Rp02"}, false);
    addKey("find by value, a key of the temperature", {"Rp02"}, true);
    addKey("find by value, the same with five conditions", five, true);
    for (const bool diagram : {false, true})
        for (const char *box : {"txtLeast(0)", "txtTemperature(0)"})
            add(QStringLiteral("find by value, a key in %1 with painting, %2")
                    .arg(box == QStringLiteral("txtLeast(0)") ? "the least value" : "the temperature",
                         diagram ? "diagram" : "list"),
                Keys, [=](benchmark::State &state) { keyInWindow(state, database, box, diagram); });
}

} // namespace Bench
