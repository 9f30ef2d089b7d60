// The commands that compare grades, search by value and follow values over temperature.
#pragma once

#include "velmar_values/commands.h"

namespace ValueCommands {

/// Raise as Commands::run, and UsageError for a property that is not there, a condition that is not
/// understood and temperatures that make no sheet.
Answer properties(Database &database, const CommandLine &line);
Answer compare(Database &database, const CommandLine &line);
Answer find(Database &database, const CommandLine &line);
Answer sheet(Database &database, const CommandLine &line);

} // namespace ValueCommands
