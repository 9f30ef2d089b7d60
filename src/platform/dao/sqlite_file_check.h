// Whether an SQLite file has no changes beside it that are not settled.
#pragma once

#include <QString>

/// The file is read as one that nobody writes, without what SQLite would first do with the files beside it.
/// Raises 3045 where one of them, "-wal" or "-journal", holds changes that are yet to be brought into the
/// file or taken back out of it. A link is followed: those files stand beside the file itself. What is no
/// SQLite file has none.
void checkSqliteSettled(const QString &path);
