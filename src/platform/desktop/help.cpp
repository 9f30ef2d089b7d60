#include "platform/desktop/help.h"

#include <memory>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QPointer>

#include "platform/desktop/help_viewer.h"
#include "platform/forms/msg_box.h"

namespace {

/// The file as the system writes its name, empty where there is none.
QString findHelpFile(const QString &file) {
    const QFileInfo info(file);
    QString name = info.fileName();
    if (info.suffix().compare(QLatin1String("chm"), Qt::CaseInsensitive) == 0)
        name = info.completeBaseName() + QLatin1String(".qch");
    for (const QFileInfo &candidate : info.dir().entryInfoList(QDir::Files | QDir::Readable))
        if (candidate.fileName().compare(name, Qt::CaseInsensitive) == 0) return candidate.absoluteFilePath();
    return {};
}

} // namespace

void HtmlHelp(const QString &file, HelpCommand command, const QString &topic) {
    static QPointer<HelpViewer> viewer;
    const QString path = findHelpFile(file);
    if (path.isEmpty()) {
        MsgBox(QStringLiteral("Cannot find the help file '%1'.").arg(file), vbExclamation);
        return;
    }
    if (!viewer || viewer->file() != path) {
        auto made = std::make_unique<HelpViewer>(path);
        if (!made->failure().isEmpty()) {
            MsgBox(QStringLiteral("Cannot open the help file '%1': %2.").arg(file, made->failure()),
                   vbExclamation);
            return;
        }
        delete viewer;
        viewer = made.release();
        QObject::connect(qApp, &QCoreApplication::aboutToQuit, viewer.data(), &QWidget::close);
    }
    viewer->open(command, topic);
}
