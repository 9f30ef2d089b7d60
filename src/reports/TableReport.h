// A table that is taken along, as a report with the program's page head and foot.
#pragma once

#include "exchange/taken_table.h"
#include "platform/printing/report.h"

/// A table that is wider than the paper stands in parts below one another, each with the table's key columns.
/// Cells grow with their text.
class TableReport : public Printing::Report {
    Q_OBJECT
public:
    TableReport(const TakenTable &table, const QVector<TakenFact> &facts);
};
