// The conversation with the main program about an SQLite file.
#pragma once

#include "table_reader/reply.h"

/// Sends the catalog, then answers requests until the input ends. What the file does wrong is told to the
/// other end; std::bad_alloc is raised.
void answerFromSqlite(int file, int input, bool isCaged, Reply &reply);
