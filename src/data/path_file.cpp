#include "data/path_file.h"

#include "data/modFileHandler.h"
#include "platform/runtime/drives.h"
#include "platform/runtime/runtime_error.h"
#include "platform/runtime/text_file.h"

namespace PathFile {

namespace {

/// A folder that takes no file leaves the path unknown, no more.
void createEmpty(const QString &file) {
    try {
        TextFile::writeLines(file, {});
    } catch (const RuntimeError &) {
        return;
    }
}

} // namespace

QString ReadPathFile(const QString &pathFile) {
    const QString file = modFileHandler::GetUserPath(pathFile);
    try {
        const QStringList lines = TextFile::readLines(file);
        return lines.isEmpty() ? QString() : lines.first();
    } catch (const RuntimeError &) {
        createEmpty(file); // the first start: the file exists from here on, and the path is not known
        return {};
    }
}

void WritePathFile(const QString &pathFile, const QString &path) {
    TextFile::writeLines(modFileHandler::GetUserPath(pathFile), {path});
}

QString NetworkPath(const QString &path, bool &pathChanged) {
    try {
        const QString drive = Drives::DriveName(path);
        const QString share = Drives::ShareName(drive);
        if (share.isEmpty() || share.compare(drive, Qt::CaseInsensitive) == 0) return path;
        pathChanged = true;
        return path.toLower().replace(drive.toLower(), share);
    } catch (const RuntimeError &) {
        return {};
    }
}

} // namespace PathFile
