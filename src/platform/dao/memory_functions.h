// The collation and the functions that make SQLite speak the engine's dialect.
#pragma once

struct sqlite3;

/// Adds the collation "jet" and the functions "jet_like", "jet_single", "jet_double" and "jet_date".
void registerMemoryFunctions(sqlite3 *connection);
