#include "start/program_start.h"

#include <QIcon>

#include "data/modDBase.h"
#include "data/program_version.h"
#include "platform/forms/application.h"
#include "platform/forms/default_instance.h"
#include "platform/forms/event_procedure.h"
#include "platform/forms/forms.h"
#include "platform/runtime/regional_settings.h"
#include "search/frmSearch.h"
#include "shell/mdiVelmar.h"
#include "start/frmSplash.h"
#include "start/MainCommands.h"
#include "workbench/WorkbenchWindow.h"

namespace ProgramStart {

namespace {

void keepSettings() {
    auto *window = LoadedInstance<mdiVelmar>();
    if (window == nullptr) return;
    if (auto *search = LoadedInstance<frmSearch>()) search->keepCriteria();
    window->WriteSettings();
    for (FormBase &form : Forms())
        if (auto *tool = form.as<WorkbenchWindow>()) tool->keepSettings();
}

void endProgram() {
    if (modDBase::dbMain()) modDBase::CloseDBase();
    keepSettings();
}

} // namespace

void installActions() {
    mdiVelmar::installActions([](mdiVelmar &window) { return std::make_unique<MainCommands>(window); });
}

void prepare(Application &application, const QString &binaryFolder) {
    ProgramVersion::apply(binaryFolder);
    installActions();
    RegionalSettings::setCurrent(RegionalSettings::fromSystem());
    Application::setDesktopFileName("velmar-ped");
    Application::setWindowIcon(QIcon(":/velmar/app/velmar-ped.svg"));
    application.setEndHook(endProgram);
    application.endOnRequest(keepSettings);
}

void begin() {
    EventProcedure::run([] { DefaultInstance<frmSplash>(); });
}

} // namespace ProgramStart
