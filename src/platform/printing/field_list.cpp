#include "platform/printing/field_list.h"

#include "platform/runtime/runtime_error.h"

namespace Printing {

void FieldList::Add(const QString &name) {
    if (contains(name)) throw RuntimeError(457);
    m_values.insert(name.toLower(), {});
}

QVariant &FieldList::operator()(const QString &name) {
    const auto value = m_values.find(name.toLower());
    if (value == m_values.end())
        throw RuntimeError(5, QStringLiteral("There is no field '%1' in the report").arg(name));
    return *value;
}

} // namespace Printing
