// Reads a table of all grades at once.
#pragma once

#include <functional>
#include <memory>

#include "values/grade_list.h"
#include "values/value_table.h"

namespace ValueTables {

/// Told now and then how many rows of how many are read; false calls it off.
using Progress = std::function<bool(qint64 rows, qint64 of)>;

/// The tables as GradeTables loads them one by one. A grade whose table cannot be loaded so is a fault of
/// that grade alone. nullptr where it was called off. `key` is one of TableVocabulary::designKeys. Raises
/// what the database raises.
std::unique_ptr<ValueTable> read(Database &database, const GradeList &grades, const QString &key,
                                 const NumberFlags &flags, const Progress &progress);

} // namespace ValueTables
