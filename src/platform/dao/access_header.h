// The first page of an Access file: its version and its password.
#pragma once

#include <optional>

#include <QByteArray>
#include <QString>

class AccessHeader {
public:
    enum class Version { Jet3, Jet4, Ace }; // Access 97; 2000 to 2003; 2007 and later

    /// Nothing for a file that is no Access file or cannot be read.
    static std::optional<AccessHeader> read(const QString &path);
    /// `start` is the file's first 256 bytes or more.
    static std::optional<AccessHeader> fromBytes(const QByteArray &start);

    Version version() const { return m_version; }
    /// Empty for a file without one.
    const QString &password() const { return m_password; }
    /// Capitals count. A file without a password takes any.
    bool accepts(const QString &password) const { return m_password.isEmpty() || password == m_password; }

private:
    Version m_version = Version::Jet4;
    QString m_password;
};
