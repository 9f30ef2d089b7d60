// Saving the tables of a tool.
#pragma once

#include "exchange/taken_table.h"

namespace TableSaving {

/// Asks where to, and writes CSV, TSV or XLSX by the ending of the name. `topic` is of the help. Raises what
/// TakenTables::save() raises.
void ask(const TakenBook &book, const QString &title, const QString &topic);

} // namespace TableSaving
