// Runs a statement of the engine's dialect over the tables of a store.
#pragma once

#include <memory>

#include <QString>

class RecordsetRows;
class TableStore;

/// A statement, or the name of a table. Raises what the parser and the translator raise, 3061 for names that
/// no table knows, and 3343 when the file turns out to be damaged.
std::shared_ptr<RecordsetRows> openRows(TableStore &store, const QString &statement);

/// See Database::Expect.
void expectRows(TableStore &store, const QString &statement);
