// What was asked for on the command line.
#pragma once

#include <stdexcept>

#include <QString>
#include <QStringList>

#include "data/grades.h"

/// What is wrong with the words of the call.
struct UsageError : std::runtime_error {
    explicit UsageError(const QString &text)
        : std::runtime_error(text.toStdString()) {}
};

struct CommandLine {
    enum class Command { Help, Version, Find, Show, Values, Export };
    enum class Format { Table, Csv, Tsv, Json };

    Command command = Command::Help;
    /// Empty to find it as the program does.
    QString database;
    Format format = Format::Table;
    Grades::Criteria criteria;
    /// Names, numbers or identities.
    QStringList grades;
    /// Keys, in the program's spelling.
    QStringList tables;
    /// In °C, as they would stand in the program's box.
    QStringList temperatures;
    QString folder;

    /// `words` without the program's own name. Raises UsageError.
    static CommandLine parse(const QStringList &words);

    static QString usage();
};
