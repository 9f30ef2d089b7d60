#include "platform/forms/common_dialog.h"

#include <QDir>
#include <QFileDialog>
#include <QRegularExpression>
#include <QStandardPaths>

#include "platform/forms/help_context.h"
#include "platform/forms/modal_seam.h"
#include "platform/forms/modality.h"
#include "platform/forms/pointer_pause.h"
#include "platform/runtime/runtime_error.h"

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

void CommonDialog::show(bool save) {
    QString chosen;
    if (ModalSeam *seam = ModalSeam::active()) {
        ModalSeam::Request request;
        request.kind = save ? ModalSeam::Kind::SaveFile : ModalSeam::Kind::OpenFile;
        request.title = DialogTitle;
        request.initDir = InitDir;
        request.fileName = FileName;
        request.filter = Filter;
        request.defaultExt = DefaultExt;
        chosen = seam->takeFile(request);
    } else {
        chosen = ask(save);
    }
    if (!chosen.isEmpty())
        FileName = QDir::toNativeSeparators(chosen);
    else if (CancelError)
        throw RuntimeError(32755, QStringLiteral("Cancel was selected."));
}

QString CommonDialog::ask(bool save) const {
    const QString folder = localPath(InitDir);
    QFileDialog dialog(Modality::front(), DialogTitle, folder);
    dialog.setObjectName(QStringLiteral("CommonDialog"));
    if (!Topic.isEmpty()) HelpContext::set(dialog, Topic);
    Modality::narrow(dialog); // now, for where the desktop shows a dialog of its own instead
    dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    if (!Filter.isEmpty()) dialog.setNameFilters(nameFilters(Filter));
    if (!DefaultExt.isEmpty())
        dialog.setDefaultSuffix(DefaultExt.startsWith(QLatin1Char('.')) ? DefaultExt.mid(1) : DefaultExt);
    // A name that holds separators is offered whole, not taken for a folder that would have to exist.
    const QString name = localPath(FileName);
    const bool inFolder = !folder.isEmpty() && name.startsWith(folder + QLatin1Char('/'));
    if (!name.isEmpty()) dialog.selectFile(inFolder ? name.mid(folder.size() + 1) : name);
    const PointerPause pause;
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}
