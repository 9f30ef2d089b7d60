// What the commands write.
#pragma once

#include <QByteArray>

#include "velmar_values/command_line.h"

class Database;

/// What is not there: a grade, or one that several fit. The text says which.
struct NotFound : std::runtime_error {
    explicit NotFound(const QString &text)
        : std::runtime_error(text.toStdString()) {}
};

namespace Commands {

/// What goes to the standard output. Raises NotFound, and what the database raises.
QByteArray run(Database &database, const CommandLine &line);

} // namespace Commands
