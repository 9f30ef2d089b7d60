#include "platform/desktop/desktop_entry.h"

#include <algorithm>

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QMimeDatabase>
#include <QProcess>
#include <QSet>
#include <QStandardPaths>
#include <QUrl>

namespace {

using Group = QHash<QString, QString>;

/// Key and value of each line of one group.
Group readGroup(const QString &path, const QString &group) {
    Group result;
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) return result;
    bool inside = false;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        if (line.startsWith(QLatin1Char('['))) inside = line == QLatin1Char('[') + group + QLatin1Char(']');
        const qsizetype equals = line.indexOf(QLatin1Char('='));
        if (!inside || equals < 0 || line.startsWith(QLatin1Char('#'))) continue;
        const QString key = line.left(equals).trimmed();
        if (!result.contains(key)) result.insert(key, line.mid(equals + 1).trimmed());
    }
    return result;
}

QString localName(const Group &entry) {
    const QString locale = QLocale().name();
    for (const QString &language : {locale, locale.section(QLatin1Char('_'), 0, 0)})
        if (const QString name = entry.value(QStringLiteral("Name[%1]").arg(language)); !name.isEmpty())
            return name;
    return entry.value(QStringLiteral("Name"));
}

QStringList split(const QString &exec) {
    QStringList arguments;
    QString argument;
    bool quoted = false, begun = false;
    for (qsizetype i = 0; i < exec.size(); ++i) {
        const QChar character = exec[i];
        if (character == QLatin1Char('"')) {
            quoted = !quoted;
            begun = true;
        } else if (quoted && character == QLatin1Char('\\') && i + 1 < exec.size()) {
            argument += exec[++i];
        } else if (!quoted && character.isSpace()) {
            if (begun) arguments.append(argument);
            argument.clear();
            begun = false;
        } else {
            argument += character;
            begun = true;
        }
    }
    if (begun) arguments.append(argument);
    return arguments;
}

bool isInstalled(const QString &exec) {
    const QStringList arguments = split(exec);
    return !arguments.isEmpty() && !QStandardPaths::findExecutable(arguments.first()).isEmpty();
}

std::optional<DesktopEntry> read(const QString &path, const QString &id) {
    const Group group = readGroup(path, QStringLiteral("Desktop Entry"));
    DesktopEntry entry;
    entry.id = id;
    entry.name = localName(group);
    entry.exec = group.value(QStringLiteral("Exec"));
    entry.terminal = group.value(QStringLiteral("Terminal")) == QLatin1String("true");
    entry.hidden = group.value(QStringLiteral("NoDisplay")) == QLatin1String("true");
    const bool deleted = group.value(QStringLiteral("Hidden")) == QLatin1String("true");
    const bool application = group.value(QStringLiteral("Type")) == QLatin1String("Application");
    if (deleted || !application || !isInstalled(entry.exec)) return {};
    return entry;
}

QStringList applicationFolders() {
    QStringList folders = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    for (QString &folder : folders)
        folder += QLatin1String("/applications");
    return folders;
}

/// The files in which a person or the system chose applications, the most personal one first.
QStringList choiceFiles() {
    const QStringList folders =
        QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation) + applicationFolders();
    const QStringList desktops =
        qEnvironmentVariable("XDG_CURRENT_DESKTOP").toLower().split(QLatin1Char(':'), Qt::SkipEmptyParts);
    QStringList files;
    for (const QString &folder : folders) {
        for (const QString &desktop : desktops)
            files.append(QStringLiteral("%1/%2-mimeapps.list").arg(folder, desktop));
        files.append(folder + QLatin1String("/mimeapps.list"));
    }
    return files;
}

QStringList idsIn(const QString &file, const QString &group, const QString &type) {
    return readGroup(file, group).value(type).split(QLatin1Char(';'), Qt::SkipEmptyParts);
}

std::optional<DesktopEntry> forType(const QString &type) {
    QStringList candidates;
    QSet<QString> removed;
    for (const QString &file : choiceFiles())
        candidates += idsIn(file, QStringLiteral("Default Applications"), type);
    QStringList associated;
    for (const QString &file : choiceFiles()) {
        associated += idsIn(file, QStringLiteral("Added Associations"), type);
        for (const QString &id : idsIn(file, QStringLiteral("Removed Associations"), type))
            removed.insert(id);
    }
    for (const QString &folder : applicationFolders())
        associated += idsIn(folder + QLatin1String("/mimeinfo.cache"), QStringLiteral("MIME Cache"), type);
    associated.removeIf([&](const QString &id) { return removed.contains(id); });
    for (const QString &id : candidates + associated)
        if (const auto entry = DesktopEntry::find(id)) return entry;
    return {};
}

} // namespace

std::optional<DesktopEntry> DesktopEntry::find(const QString &id) {
    for (const QString &folder : applicationFolders()) {
        // A dash may stand for a folder.
        QString name = id;
        for (qsizetype dash = -1;;) {
            const QString path = folder + QLatin1Char('/') + name;
            if (QFileInfo::exists(path)) return read(path, id);
            dash = name.indexOf(QLatin1Char('-'), dash + 1);
            if (dash < 0) break;
            name[dash] = QLatin1Char('/');
        }
    }
    return {};
}

QList<DesktopEntry> DesktopEntry::all() {
    QList<DesktopEntry> entries;
    QSet<QString> seen;
    for (const QString &folder : applicationFolders()) {
        QDirIterator files(folder, {QStringLiteral("*.desktop")}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            const QString id = path.mid(folder.size() + 1).replace(QLatin1Char('/'), QLatin1Char('-'));
            if (seen.contains(id)) continue;
            seen.insert(id);
            const auto entry = read(path, id);
            if (entry && !entry->hidden) entries.append(*entry);
        }
    }
    std::sort(entries.begin(), entries.end(), [](const DesktopEntry &one, const DesktopEntry &other) {
        return one.name.localeAwareCompare(other.name) < 0;
    });
    return entries;
}

std::optional<DesktopEntry> DesktopEntry::forFile(const QString &file) {
    const QMimeType type = QMimeDatabase().mimeTypeForFile(file);
    QStringList types = QStringList(type.name()) + type.aliases() + type.allAncestors();
    // Everything derives from a mere row of bytes: who can open that can open nothing in particular.
    types.removeAll(QStringLiteral("application/octet-stream"));
    for (const QString &name : types)
        if (const auto entry = forType(name)) return entry;
    return {};
}

QStringList DesktopEntry::command(const QString &file) const {
    QStringList result;
    bool takesFile = false;
    for (const QString &argument : split(exec)) {
        QString filled;
        bool dropped = false;
        for (qsizetype i = 0; i < argument.size(); ++i) {
            if (argument[i] != QLatin1Char('%') || i + 1 == argument.size()) {
                filled += argument[i];
                continue;
            }
            const char code = argument[++i].toLatin1();
            if (code == 'f' || code == 'F') filled += file;
            if (code == 'u' || code == 'U') filled += QUrl::fromLocalFile(file).toString(QUrl::FullyEncoded);
            if (code == 'c') filled += name;
            if (code == '%') filled += QLatin1Char('%');
            if (code == 'f' || code == 'F' || code == 'u' || code == 'U') takesFile = true;
            if (code == 'i' || code == 'k') dropped = true;
        }
        // A code that stands for nothing any more would else be an empty file name.
        if (!dropped && (!filled.isEmpty() || argument.isEmpty())) result.append(filled);
    }
    if (!takesFile) result.append(file);
    if (terminal) result = QStringList{QStringLiteral("x-terminal-emulator"), QStringLiteral("-e")} + result;
    return result;
}

bool DesktopEntry::open(const QString &file) const {
    QStringList arguments = command(file);
    const QString program = arguments.takeFirst();
    return QProcess::startDetached(program, arguments, QFileInfo(file).absolutePath());
}
