// Finds, opens and closes the materials database; small record helpers that the windows share.
#pragma once

#include <memory>

#include <QString>
#include <QVariant>

class Database;
class DatabaseHost;
class Recordset;

namespace modDBase {

/// Empty before OpenDBase succeeds and after CloseDBase.
std::shared_ptr<Database> &dbMain();
/// What the user last chose in one of the pick windows.
const QString &strSelectedValue();
/// OpenDBase gave up.
bool bDatabaseFailed();

/// Finds the database by the path file in the user's folder, else beside the program, else by asking `host`,
/// which outlives the open database: it also answers whether to wait on for a file that does not answer.
/// Handles its own errors to the end; True when dbMain is open. `pathFile` and `dbName` are file names
/// without a folder.
bool OpenDBase(DatabaseHost &host, const QString &dbName, const QString &pathFile, bool exclusive,
               bool readOnly, const QString &password, const QString &missingMessage);
void CloseDBase();
/// Whether `path` ends in `name`; capitals count.
bool CheckName(const QString &path, const QString &name);

/// 0 first, 1 previous, 2 next, 3 last; never leaves a recordset with rows at its beginning or end of file.
void RecordNavigate(Recordset &rs, int action);

void SetSelectedValue(const QVariant &value);

/// The text of the record whose `keyField` is `id`; empty where there is none or where it is Null. `rs` does
/// not move.
QString GetText(const Recordset &rs, int id, const QString &keyField, const QString &textField);
/// The reverse; 0 where nothing matches. A single quote in `text` is a syntax error, 3077.
qint16 GetID(const Recordset &rs, const QString &text, const QString &textField, const QString &idField);

/// Back to the state before the start; for tests that start the program more than once.
void reset();

} // namespace modDBase
