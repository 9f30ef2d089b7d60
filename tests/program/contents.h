// A golden text below tests/program/contents.
#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QStringList>

namespace Contents {

/// The lines of the one that the other does not have.
inline QString missing(const QString &lines, const QString &other) {
    const QStringList known = other.split('\n');
    QStringList left = lines.split('\n');
    left.removeIf([&known](const QString &line) { return known.contains(line); });
    return left.join('\n');
}

/// With RENEW_CONTENTS in the environment the file becomes `lines`: whoever changes them on purpose does
/// that, and reads the difference.
inline void expect(const QString &lines, const QString &name) {
    QFile file(QStringLiteral(SOURCE_FOLDER "/tests/program/contents/") + name);
    if (qEnvironmentVariableIsSet("RENEW_CONTENTS")) {
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(lines.toUtf8());
        return;
    }
    ASSERT_TRUE(file.open(QFile::ReadOnly)) << file.fileName().toStdString();
    const QString expected = QString::fromUtf8(file.readAll());
    EXPECT_TRUE(lines == expected) << name.toStdString() << "\nhas not\n"
                                   << missing(expected, lines).toStdString() << "\nbut\n"
                                   << missing(lines, expected).toStdString();
}

} // namespace Contents
