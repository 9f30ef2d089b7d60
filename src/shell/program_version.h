// The version record of the program.
#pragma once

#include <QString>

namespace ProgramVersion {

/// Fills App::current(); `folder` is the program's folder.
void apply(const QString &folder);

} // namespace ProgramVersion
