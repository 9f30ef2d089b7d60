#include "bench/program.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QHash>

#include "data/modDBase.h"
#include "data/modFileHandler.h"
#include "data/program_version.h"
#include "material/frmMaterial2.h"
#include "platform/dao/database.h"
#include "platform/dao/recordset.h"
#include "platform/forms/default_instance.h"
#include "platform/forms/forms.h"
#include "platform/forms/screen.h"
#include "search/frmSearch.h"
#include "shell/mdiVelmar.h"
#include "start/program_start.h"

namespace Bench {

namespace {

constexpr int GradesLookedAt = 120;
const char *const KeyedTables[] = {"MechPropData", "CreepProperties", "Rp02",       "Rp10",
                                   "Rm",           "ImpEnergy",       "ModElast",   "ThermExp",
                                   "ThermCond",    "SpecThermCap",    "SpecElecRes"};

[[noreturn]] void giveUp(const QString &why) {
    std::fprintf(stderr, "velmar_bench: %s\n", qPrintable(why));
    std::exit(1);
}

/// More tables first, then more rows.
int richness(Database &database, int matID) {
    int tables = 0;
    int rows = 0;
    for (const char *table : KeyedTables) {
        const auto found =
            database.OpenRecordset(QStringLiteral("select * from %1 where matID = %2").arg(table).arg(matID));
        if (found->RecordCount() > 0) ++tables;
        rows += found->RecordCount();
    }
    return tables * 10000 + rows;
}

QVector<int> gradesByRichness(const QString &path) {
    const Program program(path);
    const auto database = modDBase::dbMain();
    const auto grades = database->OpenRecordset("select * from materials order by matID");
    QVector<std::pair<int, int>> found;
    for (; !grades->Eof() && found.size() < GradesLookedAt; grades->MoveNext()) {
        const int matID = grades->Fields("matID").toInt();
        found.emplaceBack(-richness(*database, matID), matID);
    }
    std::sort(found.begin(), found.end());
    QVector<int> result;
    for (const auto &[order, matID] : found)
        result << matID;
    return result;
}

} // namespace

void paint() {
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

Folders::Folders(const QString &database)
    : m_userBefore(qgetenv("APPDATA")) {
    qputenv("APPDATA", m_user.path().toUtf8());
    ProgramVersion::apply(m_folder.path());
    ProgramStart::installActions();
    Screen::setSizeForTest({1280, 1024});
    QFile::link(QFileInfo(database).absoluteFilePath(), m_folder.filePath("Velmar_PED.mdb"));
    modFileHandler::SetupFileEnvironment();
}

Folders::~Folders() {
    Screen::setSizeForTest({});
    qputenv("APPDATA", m_userBefore);
}

Program::Program(const QString &database)
    : m_folders(database) {
    m_boxes.setUnexpectedHandler([](const QString &message) { giveUp("unexpected box: " + message); });
    mdiVelmar::instance();
}

Program::~Program() {
    if (auto *window = LoadedInstance<mdiVelmar>()) window->Unload();
    paint();
    modDBase::reset();
}

frmSearch &Program::search() const {
    return DefaultInstance<frmSearch>();
}

void Program::select(const QVector<int> &matIDs) const {
    frmSearch &window = search();
    for (const int matID : matIDs) {
        window.dtaMaterials->recordset()->FindFirst(QStringLiteral("matID = %1").arg(matID));
        window.cmdSelectMat->click();
    }
    paint();
}

void Program::showSelected() const {
    search().cmdSelections(0)->click();
    paint();
}

QVector<frmMaterial2 *> Program::windows() const {
    QVector<frmMaterial2 *> result;
    for (FormBase &form : Forms())
        if (auto *window = dynamic_cast<frmMaterial2 *>(&form)) result << window;
    return result;
}

void Program::command(const QString &entry) const {
    auto *action = mdiVelmar::instance().findChild<QAction *>(entry);
    if (action == nullptr || !action->isEnabled()) giveUp("no such command: " + entry);
    action->trigger();
}

QVector<int> richestGrades(const QString &path, int count) {
    static QHash<QString, QVector<int>> found;
    if (!found.contains(path)) found[path] = gradesByRichness(path);
    return found[path].first(qMin<qsizetype>(count, found[path].size()));
}

} // namespace Bench
