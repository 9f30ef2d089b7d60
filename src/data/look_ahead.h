// What is read of a database before it is asked for.
#pragma once

class Database;

/// The tables of a grade are to be expected: says so to the database, which makes their first reading quick
/// while the user chooses. A table that the database lacks is left to whoever asks for it.
void expectTablesOfGrades(Database &database);
