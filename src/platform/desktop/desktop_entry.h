// An application as the desktop knows it, from its .desktop file.
#pragma once

#include <optional>

#include <QList>
#include <QString>
#include <QStringList>

struct DesktopEntry {
    /// Such as "org.gnome.Evince.desktop".
    QString id;
    QString name;
    /// The command line with its field codes.
    QString exec;
    bool terminal = false;
    /// Not meant for a list of applications; it may still be the default of a type.
    bool hidden = false;

    /// None where no folder of the desktop holds it, or its program is not installed.
    static std::optional<DesktopEntry> find(const QString &id);
    /// All that a person may choose, by name.
    static QList<DesktopEntry> all();
    /// The application for a file's type, or for the nearest type that it derives from.
    static std::optional<DesktopEntry> forFile(const QString &file);

    /// Program and arguments that open `file`.
    QStringList command(const QString &file) const;
    /// False where the program could not be started.
    bool open(const QString &file) const;
};
