// Asks the PDF tools of the system about a file.
#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

/// What `tool` prints; what it complains about comes behind it, so that a warning fails a comparison.
inline QString pdfTool(const QString &tool, const QStringList &arguments) {
    QProcess process;
    process.start(tool, arguments);
    if (!process.waitForStarted()) return tool + QStringLiteral(" is not installed");
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput() + process.readAllStandardError());
}
