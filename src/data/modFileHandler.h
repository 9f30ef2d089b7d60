// Where the files of one user live, and how their folder comes to be.
#pragma once

#include <optional>

#include <QString>

#include "platform/runtime/runtime_error.h"

namespace modFileHandler {

/// Runs before anything else touches a per-user file. Never fails: after an error, which is returned, the
/// program's own folder serves.
std::optional<RuntimeError> SetupFileEnvironment();

/// Never in an installation that serves all users, not even for one who could.
bool CanWriteBesideProgram();

/// With a closing separator.
QString GetUserFolder();
QString GetUserPath(const QString &name);

/// Creates every folder of `path` that is missing. Raises 75 when one cannot be created.
void MakeFolderPath(const QString &path);

/// Copies the *.vlp files beside the program into the user's folder. The first error ends it silently.
void CopyProgramFiles();

} // namespace modFileHandler
