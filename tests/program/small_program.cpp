#include "tests/program/small_program.h"

#include <stdexcept>

#include <QDir>
#include <QFile>
#include <sqlite3.h>

#include "data/Material.h"
#include "data/modDBase.h"
#include "data/queries.h"
#include "material/frmMaterial2.h"
#include "platform/dao/database.h"
#include "platform/dao/recordset.h"
#include "platform/forms/default_instance.h"
#include "platform/runtime/app.h"
#include "shell/mdiVelmar.h"
#include "shell/modFileHandler.h"
#include "tests/support/gui.h"

namespace {

/// The sample's tables, without its rows.
QStringList tableDefinitions() {
    QStringList definitions;
    for (const QFileInfo &file : QDir(SOURCE_FOLDER "/sample/csv").entryInfoList({"*.csv"})) {
        QFile text(file.filePath());
        if (!text.open(QIODevice::ReadOnly)) throw std::runtime_error("no sample table");
        const QString heads = QString::fromUtf8(text.readLine()).trimmed().replace(':', ' ');
        definitions << QStringLiteral("create table %1 (%2)").arg(file.baseName(), heads);
    }
    return definitions;
}

void makeDatabase(const QString &path, const QStringList &statements) {
    sqlite3 *file = nullptr;
    if (sqlite3_open(path.toUtf8().constData(), &file) != SQLITE_OK) throw std::runtime_error("no database");
    for (const QString &statement : statements)
        if (sqlite3_exec(file, statement.toUtf8().constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(file) + (": " + statement).toStdString());
    sqlite3_close(file);
}

} // namespace

SmallProgram::SmallProgram(const QStringList &inserts, char16_t decimalSign, char16_t groupSign)
    : m_settings(decimalSign, groupSign) {
    QStringList statements = QStringList("begin") + tableDefinitions();
    statements << "insert into standard values (1, 'S', 'd', '2020-01-01', 0)";
    for (int matID = 1; matID <= 10; ++matID)
        statements << QStringLiteral("insert into materials values (%1, 'Grade %1', '1.%1', null, null, "
                                     "'2020-01-01', 'S', null, null, null)")
                          .arg(matID);
    for (const QString &insert : inserts)
        statements << "insert into " + insert;
    statements << "commit";
    makeDatabase(m_folder.filePath("Velmar_PED.mdb"), statements);
    qunsetenv("APPDATA");
    App::current().path = m_folder.path();
    modFileHandler::SetupFileEnvironment();
    mdiVelmar::instance();
}

SmallProgram::~SmallProgram() {
    mdiVelmar::instance().Unload();
    deleteUnloaded();
    modDBase::reset();
}

frmMaterial2 &SmallProgram::open(int matID) const {
    const auto grade = modDBase::dbMain()->OpenRecordset(Queries::sqlSelectedMaterials({matID}));
    auto material = std::make_shared<Material>();
    material->SetProperties(*grade, *modDBase::dbMain()->OpenRecordset(Queries::sqlAllStandards()));
    auto *window = NewForm<frmMaterial2>();
    window->setCaption(material->Name());
    window->SetMaterial(material);
    window->Show();
    mdiVelmar::instance().SetCurrentMaterial(material);
    return *window;
}
