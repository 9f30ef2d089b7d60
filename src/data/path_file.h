// The file that remembers where the database lies, and paths that hold for every user.
#pragma once

#include <QString>

namespace PathFile {

/// The first line of the file in the user's folder. A missing file is created empty.
QString ReadPathFile(const QString &pathFile);
/// Raises TextFile::writeLines' errors.
void WritePathFile(const QString &pathFile, const QString &path);

/// A path on a mapped drive as a path on its share, in lower case but for the share's own name; sets
/// `pathChanged` then. Any other path comes back as it is, and an empty text after an error.
QString NetworkPath(const QString &path, bool &pathChanged);

} // namespace PathFile
