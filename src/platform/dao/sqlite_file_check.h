// Whether an SQLite file holds all of its database, and nothing that is not settled.
#pragma once

#include <QString>

/// The file is read as one that nobody writes, without what SQLite would first do with the files beside it.
/// Raises 3045 where one of them, "-wal" or "-journal", holds changes that are yet to be brought into the
/// file or taken back out of it, 3049 where the end of the file is missing. A link is followed: those files
/// stand beside the file itself.
void checkSqliteFile(const QString &path);
