// The notes below a table.
#pragma once

class Database;
class Material;
struct LoadedTable;

/// Reads the notes of the table with the key of `table` into it, and keeps their text in the material.
void readNotes(Database &database, Material &material, LoadedTable &table);
