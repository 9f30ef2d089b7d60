#include "platform/desktop/shell_execute.h"

#include <QFileInfo>

#include "platform/desktop/application_chooser.h"
#include "platform/desktop/desktop_entry.h"

namespace {
ShellSeam *theSeam = nullptr;
}

ShellSeam::ShellSeam() {
    theSeam = this;
}

ShellSeam::~ShellSeam() {
    theSeam = nullptr;
}

int ShellExecute(const QString &file) {
    if (theSeam != nullptr) {
        theSeam->opened.append(file);
        return theSeam->result;
    }
    const QFileInfo info(file);
    if (!info.exists()) return QFileInfo(info.path()).isDir() ? ShellFileNotFound : ShellPathNotFound;
    if (!info.isReadable()) return ShellAccessDenied;
    const auto entry = DesktopEntry::forFile(info.absoluteFilePath());
    if (!entry) return ShellNoAssociation;
    return entry->open(info.absoluteFilePath()) ? ShellStarted : ShellAccessDenied;
}

void ShellOpenAs(const QString &file, QWidget *owner) {
    if (theSeam != nullptr) {
        theSeam->openedAs.append(file);
        return;
    }
    (new ApplicationChooser(QFileInfo(file).absoluteFilePath()))->ShowModal(owner);
}
