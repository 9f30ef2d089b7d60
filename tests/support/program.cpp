#include "tests/support/program.h"

#include <QFile>

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

TestProgram::TestProgram() {
    qunsetenv("APPDATA");
    App::current().path = m_folder.path();
    QFile::copy(SOURCE_FOLDER "/sample/Velmar_PED.mdb", m_folder.filePath("Velmar_PED.mdb"));
    modFileHandler::SetupFileEnvironment();
    mdiVelmar::instance();
}

TestProgram::~TestProgram() {
    mdiVelmar::instance().Unload();
    deleteUnloaded();
    modDBase::reset();
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
