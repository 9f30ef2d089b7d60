// The one exception of the program: a numbered run-time error.
#pragma once

#include <exception>

#include <QByteArray>
#include <QString>

/// A run-time error with the classic numbers (5, 6, 9, 11, 13, 53, 70, 76, 91, 94; 3xxx from the database
/// engine). Without a description it takes the usual English one of its number.
class RuntimeError : public std::exception {
public:
    explicit RuntimeError(int number, QString description = {}, QString source = {});

    /// "File not found: 'a.txt'", for 53.
    static RuntimeError ofFile(int number, const QString &path);

    int number() const { return m_number; }
    const QString &description() const { return m_description; }
    /// The program's name directly followed by the routine's, or empty.
    const QString &source() const { return m_source; }
    const char *what() const noexcept override { return m_what.constData(); }

    /// "Subscript out of range" for 9, and so on; "Application-defined or object-defined error" for a number
    /// that has no text of its own.
    static QString standardDescription(int number);

private:
    int m_number;
    QString m_description;
    QString m_source;
    QByteArray m_what;
};
