// What was asked for on the command line.
#pragma once

#include <stdexcept>

#include <QString>
#include <QStringList>

#include "data/grades.h"
#include "exchange/material_card.h"

/// What is wrong with the words of the call.
struct UsageError : std::runtime_error {
    explicit UsageError(const QString &text)
        : std::runtime_error(text.toStdString()) {}
};

struct CommandLine {
    enum class Command { Help, Version, Find, Show, Values, Card, Export };
    enum class Format { Table, Csv, Tsv, Json };
    enum class Solver { Calculix, Mapdl };

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
    /// Where the tables go instead of the standard output; empty without it.
    QString xlsx;
    /// Of a card; the band is found by the thickness.
    std::optional<Solver> solver;
    CardChoice card;
    /// In mm.
    std::optional<double> thickness;

    /// `words` without the program's own name. Raises UsageError.
    static CommandLine parse(const QStringList &words);

    static QString usage();
};
