// What the commands write.
#pragma once

#include <QByteArray>
#include <QJsonArray>

#include "exchange/records.h"
#include "exchange/taken_table.h"
#include "velmar_values/command_line.h"

class Database;

/// What is not there: a grade, or one that several fit. The text says which.
struct NotFound : std::runtime_error {
    explicit NotFound(const QString &text)
        : std::runtime_error(text.toStdString()) {}
};

/// What a command has to say.
struct Answer {
    QByteArray output;
    /// A line beside the output; empty without.
    QString note = {};

    Answer(QByteArray bytes, const QString &line = {}) // NOLINT(google-explicit-constructor)
        : output(std::move(bytes))
        , note(line) {}
};

namespace Commands {

/// Raises NotFound, and what the database raises.
Answer run(Database &database, const CommandLine &line);

/// The one grade that `text` names. Raises NotFound.
Grades::Grade gradeOf(Database &database, const QString &text);

QByteArray bytes(const QJsonArray &list);
QByteArray bytes(const Records::Sheet &sheet, CommandLine::Format format);
/// Into the workbook that the line names, and nothing to the standard output.
QByteArray taken(const Database &database, const CommandLine &line, const QVector<TakenTable> &tables,
                 const QVector<TakenFact> &facts);

} // namespace Commands
