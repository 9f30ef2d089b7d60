// An application as the desktop knows it, from its .desktop file.
#pragma once

#include <memory>
#include <optional>

#include <QList>
#include <QString>

struct _GAppInfo;

class DesktopEntry {
public:
    /// All that a person may choose, by name.
    static QList<DesktopEntry> all();
    /// The application for a file's type, or for the nearest type that it derives from. One whose program is
    /// not installed is none.
    static std::optional<DesktopEntry> forFile(const QString &file);

    QString name() const;
    /// Returns at once. False where the program could not be started; what becomes of it afterwards is not
    /// told.
    bool open(const QString &file) const;

private:
    /// Takes over the caller's reference.
    explicit DesktopEntry(_GAppInfo *application);

    std::shared_ptr<_GAppInfo> m_application;
};
