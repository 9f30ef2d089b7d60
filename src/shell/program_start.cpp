#include "shell/program_start.h"

#include <QIcon>

#include "data/modDBase.h"
#include "platform/forms/application.h"
#include "platform/forms/default_instance.h"
#include "platform/runtime/regional_settings.h"
#include "shell/frmSplash.h"
#include "shell/mdiVelmar.h"
#include "shell/program_version.h"

namespace ProgramStart {

namespace {

void endProgram() {
    if (modDBase::dbMain()) modDBase::CloseDBase();
    if (auto *window = LoadedInstance<mdiVelmar>()) window->WriteSettings();
}

} // namespace

void prepare(Application &application, const QString &binaryFolder) {
    ProgramVersion::apply(binaryFolder);
    RegionalSettings::setCurrent(RegionalSettings::fromSystem());
    Application::setDesktopFileName("velmar-ped");
    Application::setWindowIcon(QIcon(":/velmar/app/velmar-ped.svg"));
    application.setEndHook(endProgram);
}

void begin() {
    Application::guarded([] { DefaultInstance<frmSplash>(); });
}

} // namespace ProgramStart
