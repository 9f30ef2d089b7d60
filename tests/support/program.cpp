#include "tests/support/program.h"

#include <QFile>

#include "data/Material.h"
#include "data/modDBase.h"
#include "data/modFileHandler.h"
#include "data/program_version.h"
#include "data/queries.h"
#include "material/frmMaterial2.h"
#include "platform/dao/database.h"
#include "platform/dao/recordset.h"
#include "platform/forms/default_instance.h"
#include "platform/forms/screen.h"
#include "platform/runtime/text_file.h"
#include "shell/mdiVelmar.h"
#include "start/program_start.h"
#include "tests/support/gui.h"

namespace {

TestProgram::Given givenDatabase(const std::function<void(const QString &)> &putDatabase,
                                 char16_t decimalSign, char16_t groupSign) {
    TestProgram::Given given;
    given.putDatabase = putDatabase;
    given.decimalSign = decimalSign;
    given.groupSign = groupSign;
    return given;
}

} // namespace

void TestProgram::putSample(const QString &path) {
    QFile::copy(SOURCE_FOLDER "/sample/Velmar_PED.mdb", path);
}

TestProgram::TestProgram(const std::function<void(const QString &)> &putDatabase, char16_t decimalSign,
                         char16_t groupSign)
    : TestProgram(givenDatabase(putDatabase, decimalSign, groupSign)) {}

TestProgram::TestProgram(const Given &given)
    : m_settings(given.decimalSign, given.groupSign)
    , m_appDataBefore(qgetenv("APPDATA")) {
    qputenv("APPDATA", m_appData.path().toUtf8());
    ProgramVersion::apply(m_folder.path());
    ProgramStart::installActions();
    Screen::setSizeForTest(given.screen, given.freeArea);
    given.putDatabase(m_folder.filePath("Velmar_PED.mdb"));
    if (given.pmaIndex)
        QFile::copy(SOURCE_FOLDER "/sample/PMA_Index.mdb", m_folder.filePath("PMA_Index.mdb"));
    modFileHandler::SetupFileEnvironment();
    if (!given.settings.isEmpty())
        TextFile::writeLines(modFileHandler::GetUserPath("Settings.vlp"), given.settings);
    mdiVelmar::instance();
}

TestProgram::~TestProgram() {
    end();
    Screen::setSizeForTest({});
    if (m_appDataBefore.isNull())
        qunsetenv("APPDATA");
    else
        qputenv("APPDATA", m_appDataBefore);
}

QString TestProgram::userFolder() const {
    return modFileHandler::GetUserFolder();
}

void TestProgram::end() {
    if (auto *window = LoadedInstance<mdiVelmar>()) window->Unload();
    deleteUnloaded();
    modDBase::reset();
}

void TestProgram::restart() {
    end();
    modFileHandler::SetupFileEnvironment();
    mdiVelmar::instance();
}

std::shared_ptr<Material> TestProgram::material(int matID) const {
    const auto grade = modDBase::dbMain()->OpenRecordset(Queries::sqlSelectedMaterials({matID}));
    const auto standards = modDBase::dbMain()->OpenRecordset(Queries::sqlAllStandards());
    standards->FindFirst("standard = '" + grade->Fields("standard").toString() + "'");
    auto material = std::make_shared<Material>();
    material->SetProperties(*grade, *standards);
    return material;
}

frmMaterial2 &TestProgram::open(const std::shared_ptr<Material> &material) const {
    auto *window = NewForm<frmMaterial2>();
    window->setCaption("Name: " + material->Name());
    window->SetMaterial(material);
    window->Show();
    return *window;
}
