// The version record of the program, and where its files lie.
#pragma once

#include <QString>

namespace ProgramVersion {

/// Fills App::current(). The files lie beside the binary, as a build leaves them, or, where there is an
/// installation around `binaryFolder`, in its folder for data.
void apply(const QString &binaryFolder);

} // namespace ProgramVersion
