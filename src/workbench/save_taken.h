// Takes tables along: onto the clipboard, and into a file that is asked for.
#pragma once

#include "exchange/taken_table.h"

namespace SaveTaken {

/// With headings.
void copy(const TakenTable &table);
/// Asks for the file; its ending tells the form. What the database is stands in every workbook. `topic` is
/// the page of the help. Raises what TakenTables::save raises.
void saveAsking(const TakenTable &table, const QVector<TakenFact> &facts, const QString &topic);

} // namespace SaveTaken
