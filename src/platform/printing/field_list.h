// The values of a report's current row, by name.
#pragma once

#include <QHash>
#include <QVariant>

#include "platform/runtime/runtime_error.h"

namespace Printing {

/// Capitals of a name do not count.
class FieldList {
public:
    /// Raises 457 for a name that is there already.
    void Add(const QString &name);
    bool contains(const QString &name) const { return m_values.contains(name.toLower()); }
    /// Raises 5 for an unknown name.
    QVariant &operator()(const QString &name);
    void set(const QString &name, const QVariant &value);
    /// The field has no value: until the next set() whoever asks for it gets the error.
    void fail(const QString &name, const RuntimeError &error);

private:
    QHash<QString, QVariant> m_values;
    QHash<QString, RuntimeError> m_failures;
};

} // namespace Printing
