#include "data/modFileHandler.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include "platform/runtime/app.h"
#include "platform/runtime/runtime_error.h"

namespace modFileHandler {

namespace {

QString strUserFolder;

const QString FolderOfTheUser = QStringLiteral("/Harmotek/Velmar_PED/");

QString programFolder() {
    return App::current().path + QLatin1Char('/');
}

/// Without "APPDATA" the program's folder serves; where that is not the user's, the desktop has a place for
/// it.
QString folderWithoutAppData() {
    if (CanWriteBesideProgram()) return programFolder();
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + FolderOfTheUser;
}

} // namespace

std::optional<RuntimeError> SetupFileEnvironment() {
    strUserFolder = programFolder();
    try {
        const QString appData = qEnvironmentVariable("APPDATA");
        strUserFolder = appData.isEmpty()
                            ? folderWithoutAppData()
                            : QDir::cleanPath(QDir::fromNativeSeparators(appData)) + FolderOfTheUser;
        if (!QFileInfo::exists(strUserFolder)) {
            MakeFolderPath(strUserFolder);
            CopyProgramFiles();
        }
    } catch (const RuntimeError &error) {
        strUserFolder = programFolder();
        return error;
    }
    return std::nullopt;
}

bool CanWriteBesideProgram() {
    const App &app = App::current();
    return !app.isPathShared && QFileInfo(app.path).isWritable();
}

QString GetUserFolder() {
    return strUserFolder;
}

QString GetUserPath(const QString &name) {
    return strUserFolder + name;
}

void MakeFolderPath(const QString &path) {
    QString folder = path.startsWith(QLatin1Char('/')) ? QStringLiteral("/") : QString();
    const QStringList parts = QDir::fromNativeSeparators(path).split(QLatin1Char('/'), Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        folder += part + QLatin1Char('/');
        const bool isDrive = part.endsWith(QLatin1Char(':'));
        if (!isDrive && !QFileInfo(folder).isDir() && !QDir().mkdir(folder))
            throw RuntimeError(75, RuntimeError::standardDescription(75) + ": '" + folder + '\'');
    }
}

void CopyProgramFiles() {
    const QFileInfoList files = QDir(App::current().path).entryInfoList({"*.vlp"}, QDir::Files);
    for (const QFileInfo &file : files) {
        const QString target = GetUserPath(file.fileName());
        QFile::remove(target);
        if (!QFile::copy(file.filePath(), target)) return;
        // the copy of a read-only file beside the program must still take the user's settings
        QFile::setPermissions(target, QFile::permissions(target) | QFile::WriteOwner);
    }
}

} // namespace modFileHandler
