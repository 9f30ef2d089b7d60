#include "platform/runtime/drives.h"

#ifdef Q_OS_WIN
#include <QRegularExpression>
#include <QStorageInfo>
#endif

QString Drives::DriveName(const QString &path) {
#ifdef Q_OS_WIN
    static const QRegularExpression drive(QStringLiteral("^[A-Za-z]:"));
    return drive.match(path).captured();
#else
    Q_UNUSED(path)
    return {};
#endif
}

QString Drives::ShareName(const QString &drive) {
#ifdef Q_OS_WIN
    if (drive.isEmpty()) return {};
    const QString device = QString::fromUtf8(QStorageInfo(drive + QLatin1Char('/')).device());
    return device.startsWith(QLatin1String("\\\\?\\")) || !device.startsWith(QLatin1String("\\\\"))
               ? QString()
               : device;
#else
    Q_UNUSED(drive)
    return {};
#endif
}
