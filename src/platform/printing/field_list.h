// The values of a report's current row, by name.
#pragma once

#include <QHash>
#include <QVariant>

namespace Printing {

/// Capitals of a name do not count.
class FieldList {
public:
    /// Raises 457 for a name that is there already.
    void Add(const QString &name);
    bool contains(const QString &name) const { return m_values.contains(name.toLower()); }
    /// Raises 5 for an unknown name.
    QVariant &operator()(const QString &name);

private:
    QHash<QString, QVariant> m_values;
};

} // namespace Printing
