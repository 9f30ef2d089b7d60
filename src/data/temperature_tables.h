// Reads a table over temperature: impact energy, elevated and physical properties.
#pragma once

class Database;
class Material;
struct LoadedTable;

/// Reads the table with the key of `table` into it. Raises 3265 where a band has no column of its name.
void loadTemperatureTable(Database &database, Material &material, LoadedTable &table);
