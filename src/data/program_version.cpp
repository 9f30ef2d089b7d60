#include "data/program_version.h"

#include <QDir>
#include <QFileInfo>

#include "platform/runtime/app.h"

namespace ProgramVersion {

void apply(const QString &binaryFolder) {
    App &app = App::current();
    const QString installed = QDir::cleanPath(binaryFolder + "/" + DATA_FROM_BINARY);
    app.isPathShared = QFileInfo(installed).isDir();
    app.path = app.isPathShared ? installed : binaryFolder;
    app.helperPath = app.isPathShared ? QDir::cleanPath(binaryFolder + "/" + HELPERS_FROM_BINARY) : QString();
    app.exeName = "velmar-ped";
    app.title = "Velmar-PED";
    app.major = PROGRAM_VERSION_MAJOR;
    app.minor = PROGRAM_VERSION_MINOR;
    app.revision = PROGRAM_VERSION_REVISION;
    app.legalCopyright = "Harmotek. Free software under the GNU General Public License, version 3 or later.";
}

} // namespace ProgramVersion
