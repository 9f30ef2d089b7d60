// What a column that is a row of the database is called.
#pragma once

#include <QString>

class Database;
class Recordset;

struct ColumnName {
    QString text;
    /// As a heading shows it: one that says that there is none is empty.
    QString unit;
};

/// `units` holds the rows of the table Units. Raises 3077 for a text with a single quote in it.
ColumnName columnName(Database &database, const Recordset &units, int colID);
