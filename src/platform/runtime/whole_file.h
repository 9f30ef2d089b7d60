// Files that are replaced as a whole.
#pragma once

#include <QByteArray>
#include <QString>

enum class FallBack {
    None,
    InPlace ///< in a folder where no second file may be made, write over the file itself
};

/// The bytes are written beside the file and then take its place: after a failure there is what there was
/// before, except where it had to be written in place. Raises 76 (no such folder), 70 (no right to write), 75
/// (a folder or anything else that is no regular file, or no way to open it), 61 (disk full), 57 (the device
/// failed), each with the path.
void writeWholeFile(const QString &path, const QByteArray &bytes, FallBack fallBack = FallBack::None);
