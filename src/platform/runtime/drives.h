// Drives, and the network shares behind them.
#pragma once

#include <QString>

namespace Drives {
/// "C:" of a path that begins with a drive letter; empty for any other, and on a system without drive
/// letters.
QString DriveName(const QString &path);
/// The share that a drive stands for, as \\server\share; empty for a drive of this computer, and on a system
/// that mounts its shares as folders.
QString ShareName(const QString &drive);
} // namespace Drives
