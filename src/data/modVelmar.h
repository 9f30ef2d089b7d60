// The message for a table without data.
#pragma once

#include <QString>

class Material;

namespace modVelmar {

/// Names the material, its standard and the table with the given key. With `blankLines` in lines of its own,
/// with `wideSpacing` as well with an empty line between them; without them in one line.
QString NoDataText(const Material &material, const QString &key, bool blankLines, bool wideSpacing);

} // namespace modVelmar
