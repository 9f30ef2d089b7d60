#include "platform/forms/common_dialog.h"

#include <algorithm>

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QRegularExpression>
#include <QStandardPaths>

#include "platform/forms/help_context.h"
#include "platform/forms/modal_seam.h"
#include "platform/forms/modality.h"
#include "platform/forms/msg_box.h"
#include "platform/forms/pointer_pause.h"
#include "platform/runtime/runtime_error.h"

namespace {

bool endsInOneOf(const QStringList &extensions, const QString &name) {
    return std::any_of(extensions.begin(), extensions.end(), [&name](const QString &extension) {
        return name.endsWith(extension, Qt::CaseInsensitive);
    });
}

QString withOneOf(const QStringList &extensions, const QString &name, qsizetype chosen) {
    if (endsInOneOf(extensions, name)) return name;
    return CommonDialog::withExtension(name, extensions.value(chosen, extensions.value(0)));
}

/// Qt puts its default suffix behind a name without a dot alone, and a number such as "1.0345" holds one. Put
/// there in time, the whole name is what Qt asks about before it is replaced.
class FileDialog : public QFileDialog {
public:
    using QFileDialog::QFileDialog;

    /// One for all filters, or one for each.
    QStringList extensions;

    void accept() override {
        auto *edit = findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        if (edit && !extensions.isEmpty() && !QFileInfo(directory(), edit->text()).isDir())
            edit->setText(withOneOf(extensions, edit->text(), nameFilters().indexOf(selectedNameFilter())));
        QFileDialog::accept();
    }
};

QString nearestFolder(const QString &path) {
    QString folder = QFileInfo(path).path();
    while (!QDir(folder).exists())
        folder = QFileInfo(folder).path();
    return folder;
}

bool mayReplace(const QString &path, const QString &title) {
    if (!QFileInfo::exists(path)) return true;
    const QString question = QStringLiteral("%1\r\n\r\nalready exists. Do you want to replace it?");
    return MsgBox(question.arg(QDir::toNativeSeparators(path)), vbYesNo + vbExclamation, title) == vbYes;
}

} // namespace

QString CommonDialog::localPath(const QString &path) {
#ifdef Q_OS_WIN
    return path;
#else
    static const QRegularExpression drive(QStringLiteral("^[A-Za-z]:[\\\\/]*"));
    const QRegularExpressionMatch match = drive.match(path);
    if (!match.hasMatch()) return path;
    const QString rest = path.mid(match.capturedLength()).replace(QLatin1Char('\\'), QLatin1Char('/'));
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return rest.isEmpty() ? documents : documents + QLatin1Char('/') + rest;
#endif
}

QStringList CommonDialog::nameFilters(const QString &filter) {
    QStringList result;
    const QStringList pieces = filter.split(QLatin1Char('|'));
    for (qsizetype i = 0; i + 1 < pieces.size(); i += 2) {
        // Qt reads the pattern from the brackets at the end of the text, so the text's own must go.
        QString text = pieces[i].trimmed();
        const qsizetype bracket = text.lastIndexOf(QLatin1Char('('));
        if (bracket >= 0 && text.endsWith(QLatin1Char(')'))) text = text.left(bracket).trimmed();
        QString pattern = pieces[i + 1];
        pattern.replace(QLatin1Char(';'), QLatin1Char(' '));
        result.append(QStringLiteral("%1 (%2)").arg(text, pattern));
    }
    return result;
}

QString CommonDialog::withExtension(const QString &name, const QString &extension) {
    return name.isEmpty() || name.endsWith(extension, Qt::CaseInsensitive) ? name : name + extension;
}

void CommonDialog::ShowOpen() {
    take(choose(false, InitDir, FileName));
}

void CommonDialog::ShowSave() {
    QString folder = InitDir;
    QString name = FileName;
    for (;;) {
        const QString chosen = choose(true, folder, name);
        if (chosen.isEmpty()) return take(chosen);
        const QString path = withOneOf(extensions(), chosen, 0);
        const QString parent = QFileInfo(path).path();
        if (!QDir(parent).exists())
            MsgBox(QDir::toNativeSeparators(parent) + QStringLiteral("\r\n\r\nThis folder does not exist."),
                   vbExclamation, DialogTitle);
        else if (path == chosen || mayReplace(path, DialogTitle))
            return take(path);
        // The words of the person are offered again, in the folder that there is.
        folder = nearestFolder(path);
        name = chosen;
    }
}

/// To save.
QStringList CommonDialog::extensions() const {
    if (!FilterExt) return {DefaultExt};
    QStringList extensions;
    const QStringList pieces = Filter.split(QLatin1Char('|'));
    for (qsizetype i = 1; i < pieces.size(); i += 2)
        extensions << pieces[i].section(QLatin1Char(';'), 0, 0).section(QLatin1Char('*'), 1);
    return extensions;
}

QString CommonDialog::choose(bool save, const QString &folder, const QString &name) const {
    ModalSeam *seam = ModalSeam::active();
    if (!seam) return ask(save, localPath(folder), localPath(name));
    ModalSeam::Request request;
    request.kind = save ? ModalSeam::Kind::SaveFile : ModalSeam::Kind::OpenFile;
    request.title = DialogTitle;
    request.initDir = folder;
    request.fileName = name;
    request.filter = Filter;
    request.defaultExt = DefaultExt;
    return seam->takeFile(request);
}

void CommonDialog::take(const QString &chosen) {
    if (!chosen.isEmpty())
        FileName = QDir::toNativeSeparators(chosen);
    else if (CancelError)
        throw RuntimeError(32755, QStringLiteral("Cancel was selected."));
}

QString CommonDialog::ask(bool save, const QString &folder, const QString &name) const {
    FileDialog dialog(Modality::front(), DialogTitle, folder);
    dialog.setObjectName(QStringLiteral("CommonDialog"));
    if (!Topic.isEmpty()) HelpContext::set(dialog, Topic);
    Modality::narrow(dialog); // now, for where the desktop shows a dialog of its own instead
    dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    if (!Filter.isEmpty()) dialog.setNameFilters(nameFilters(Filter));
    if (save)
        dialog.extensions = extensions();
    else if (!DefaultExt.isEmpty())
        dialog.setDefaultSuffix(DefaultExt.startsWith(QLatin1Char('.')) ? DefaultExt.mid(1) : DefaultExt);
    // A name that holds separators is offered whole, not taken for a folder that would have to exist.
    const bool inFolder = !folder.isEmpty() && name.startsWith(folder + QLatin1Char('/'));
    if (!name.isEmpty()) dialog.selectFile(inFolder ? name.mid(folder.size() + 1) : name);
    const PointerPause pause;
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}
