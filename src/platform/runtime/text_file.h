// Small text files, read and written whole.
#pragma once

#include <QStringList>

namespace TextFile {

/// The lines without their ends (CR LF, LF or CR, also mixed). A line end at the end of the file starts no
/// further line. The bytes are UTF-8, with or without its mark, or else Windows-1252.
/// Raises 53 (no such file), 76 (no such folder), 70 (no right to read), 75 (a folder or anything else that
/// is no regular file, or no way to open it), 57 (the device failed).
QStringList readLines(const QString &path);

/// Writes each line in UTF-8 with CR LF behind it, by writeWholeFile(), in place if need be. Raises what that
/// raises.
void writeLines(const QString &path, const QStringList &lines);

} // namespace TextFile
