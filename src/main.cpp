// The program: says who it is, shows the start window, and runs until its last window is gone.
#include <QDir>
#include <QIcon>

#include "data/modDBase.h"
#include "platform/forms/application.h"
#include "platform/forms/default_instance.h"
#include "platform/runtime/app.h"
#include "platform/runtime/regional_settings.h"
#include "shell/frmSplash.h"
#include "shell/mdiVelmar.h"
#include "shell/program_version.h"

namespace {

/// What is kept when a run-time error ends the program.
void endProgram() {
    if (modDBase::dbMain()) modDBase::CloseDBase();
    if (auto *window = LoadedInstance<mdiVelmar>()) window->WriteSettings();
}

} // namespace

int main(int argc, char **argv) {
    Application application(argc, argv);
    ProgramVersion::apply(Application::applicationDirPath());
    RegionalSettings::setCurrent(RegionalSettings::fromSystem());
    Application::setDesktopFileName("velmar-ped");
    Application::setWindowIcon(QIcon(":/velmar/app/velmar-ped.svg"));
    application.setEndHook(endProgram);
    Application::guarded([] { DefaultInstance<frmSplash>(); });
    return application.run();
}
