// Takes tables along: onto the clipboard, and into a file that is asked for.
#pragma once

#include "exchange/taken_table.h"

namespace SaveTaken {

/// With headings.
void copy(const TakenTable &table);
/// Asks for the file; its ending tells the form: a workbook, a text for other programs, or a report as PDF,
/// RTF or text. What the database is stands in workbooks and reports. `topic` is the page of the help. Raises
/// what TakenTables::save and the report outputs raise.
void saveAsking(const TakenTable &table, const QVector<TakenFact> &facts, const QString &topic);
/// The same for a table of one grade, without the reports, which the grade's window has of its own. The grade
/// is told beside `facts`, and with the table's title gives the name that is offered.
void saveOfGrade(const Grades::Grade &grade, const TakenTable &table, const QVector<TakenFact> &facts,
                 const QString &topic);

} // namespace SaveTaken
