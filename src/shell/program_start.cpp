#include "shell/program_start.h"

#include <QIcon>

#include "data/modDBase.h"
#include "platform/forms/application.h"
#include "platform/forms/default_instance.h"
#include "platform/runtime/regional_settings.h"
#include "search/frmSearch.h"
#include "shell/frmSplash.h"
#include "shell/mdiVelmar.h"
#include "shell/program_version.h"

namespace ProgramStart {

namespace {

void keepSettings() {
    auto *window = LoadedInstance<mdiVelmar>();
    if (window == nullptr) return;
    if (auto *search = LoadedInstance<frmSearch>()) search->keepCriteria();
    window->WriteSettings();
}

void endProgram() {
    if (modDBase::dbMain()) modDBase::CloseDBase();
    keepSettings();
}

} // namespace

void prepare(Application &application, const QString &binaryFolder) {
    ProgramVersion::apply(binaryFolder);
    RegionalSettings::setCurrent(RegionalSettings::fromSystem());
    Application::setDesktopFileName("velmar-ped");
    Application::setWindowIcon(QIcon(":/velmar/app/velmar-ped.svg"));
    application.setEndHook(endProgram);
    application.endOnRequest(keepSettings);
}

void begin() {
    Application::guarded([] { DefaultInstance<frmSplash>(); });
}

} // namespace ProgramStart
