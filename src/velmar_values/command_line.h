// What was asked for on the command line.
#pragma once

#include <optional>
#include <stdexcept>

#include <QString>
#include <QStringList>

#include "data/grades.h"
#include "exchange/material_card.h"
#include "values/typed.h"

/// What is wrong with the words of the call.
struct UsageError : std::runtime_error {
    explicit UsageError(const QString &text)
        : std::runtime_error(text.toStdString()) {}
};

/// The value of what was typed; raises UsageError where it is not understood.
template <class Value>
const Value &understood(const Typed<Value> &typed) {
    if (!typed)
        throw UsageError(typed.error.endsWith(QLatin1Char('.')) ? typed.error.chopped(1) : typed.error);
    return *typed;
}

struct CommandLine {
    enum class Command { Help, Version, Find, Show, Values, Properties, Compare, Sheet, Card, Export };
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
    /// As they were written: what a property is, the database tells.
    QStringList conditions;
    QStringList properties;
    /// The composition is compared, and no values.
    bool composition = false;
    /// In mm; of a card it tells the band.
    std::optional<double> thickness;
    /// Of a sheet: in °C, as they were written.
    QString from;
    QString to;
    QString step;
    /// Where the tables go instead of the standard output; empty without it.
    QString xlsx;
    std::optional<Solver> solver;
    CardChoice card;

    /// `words` without the program's own name. Raises UsageError.
    static CommandLine parse(const QStringList &words);

    static QString usage();
};
