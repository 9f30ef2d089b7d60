#include "pma/modDocument.h"

#include <QFileInfo>

#include "platform/desktop/shell_execute.h"
#include "platform/forms/msg_box.h"

namespace modDocument {

namespace {

QString errorText(int code) {
    switch (code) {
    case 2:
        return "File not found";
    case 3:
        return "Path not found";
    case 5:
        return "Access denied";
    case 8:
        return "Out of memory";
    case 11:
        return "Invalid EXE file or error in EXE image";
    case 26:
        return "A sharing violation occurred";
    case 27:
        return "Incomplete or invalid file association";
    case 28:
        return "DDE Time out";
    case 29:
        return "DDE transaction failed";
    case 30:
        return "DDE busy";
    case 32:
        return "DLL not found";
    default:
        return "Unknown error";
    }
}

} // namespace

bool FileExists(const QString &path) {
    const QFileInfo file(path);
    return file.exists() && !file.isDir();
}

QString OpenDocument(QWidget *window, const QString &fileName) {
    const int result = ShellExecute(fileName);
    if (result >= ShellStarted) return {};
    if (result == ShellNoAssociation) {
        ShellOpenAs(fileName, window);
        return {};
    }
    const QString text = errorText(result);
    MsgBox(text);
    return text;
}

} // namespace modDocument
