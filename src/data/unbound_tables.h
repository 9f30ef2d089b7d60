// Reads the tables whose columns are rows of the database: room temperature and creep properties.
#pragma once

class Database;
class Material;
class Recordset;
struct LoadedTable;

/// Reads the table with the key of `table` into it. `units` holds the rows of the table Units. Raises 11 for
/// cells without column definitions.
void loadUnboundTable(Database &database, const Recordset &units, Material &material, LoadedTable &table);
