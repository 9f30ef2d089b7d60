#include "shell/provider.h"

#include <QFile>
#include <QStringList>

namespace Provider {

QString text() {
    QFile file(QStringLiteral(":/velmar/provider.txt"));
    if (!file.open(QIODevice::ReadOnly)) return {};
    QStringList shown;
    for (const QString &line : QString::fromUtf8(file.readAll()).split('\n')) {
        const QString value = line.section(':', 1).trimmed();
        if (!line.startsWith('#') && !value.isEmpty()) shown += value;
    }
    return shown.join('\n');
}

} // namespace Provider
