// The modal picks of a value from a list.
#pragma once

#include <QString>

namespace modDBase {

/// `database` is a path, or "DatabaseName" for the open database. Empty when cancelled.
QString SelectFromList(const QString &sql, const QString &field, const QString &title,
                       const QString &database);
QString SelectStandard(const QString &sql, const QString &database);

} // namespace modDBase
