#include "platform/printing/field_list.h"

namespace Printing {

void FieldList::Add(const QString &name) {
    if (contains(name)) throw RuntimeError(457);
    m_values.insert(name.toLower(), {});
}

void FieldList::set(const QString &name, const QVariant &value) {
    m_failures.remove(name.toLower());
    (*this)(name) = value;
}

void FieldList::fail(const QString &name, const RuntimeError &error) {
    m_failures.insert(name.toLower(), error);
}

QVariant &FieldList::operator()(const QString &name) {
    const auto failure = m_failures.constFind(name.toLower());
    if (failure != m_failures.constEnd()) throw *failure;
    const auto value = m_values.find(name.toLower());
    if (value == m_values.end())
        throw RuntimeError(5, QStringLiteral("There is no field '%1' in the report").arg(name));
    return *value;
}

} // namespace Printing
