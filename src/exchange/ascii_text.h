// Texts for programs that read nothing but ASCII.
#pragma once

#include <QString>
#include <QStringList>

namespace AsciiText {

/// In one line: letters without their accents, "≤" as "<=", a degree sign as nothing, and "?" for what has no
/// likeness.
QString of(const QString &text);

/// A name for a solver: letters, digits, "_" and "-", begun by a letter, at most 80 characters.
QString name(const QString &text);

/// The lines of a comment: `mark` before each, broken at blanks, none longer than `width`.
QStringList comment(const QString &text, const QString &mark, int width);

} // namespace AsciiText
