// Writes the file of an output.
#pragma once

#include <QByteArray>
#include <QString>

namespace Printing {

/// The bytes are written beside the file and then take its place: after a failure there is what there was
/// before. Raises 76 (no such folder), 70 (no right to write), 75 (a folder, or no way to open it), 61 (disk
/// full), 57 (the device failed).
void writeOutputFile(const QString &path, const QByteArray &bytes);

} // namespace Printing
