#include "shell/program_version.h"

#include "platform/runtime/app.h"

namespace ProgramVersion {

void apply(const QString &folder) {
    App &app = App::current();
    app.path = folder;
    app.exeName = "velmar-ped";
    app.title = "Velmar-PED";
    app.major = PROGRAM_VERSION_MAJOR;
    app.minor = PROGRAM_VERSION_MINOR;
    app.revision = PROGRAM_VERSION_REVISION;
    app.legalCopyright = "Harmotek. Free software under the GNU General Public License, version 3 or later.";
}

} // namespace ProgramVersion
