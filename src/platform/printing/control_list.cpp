#include "platform/printing/control_list.h"

namespace Printing {

Control *ControlList::find(const QString &name) const {
    for (const auto &control : m_controls)
        if (control->Name.compare(name, Qt::CaseInsensitive) == 0) return control.get();
    return nullptr;
}

void ControlList::refuseKnown(const QString &name) const {
    if (find(name)) throw RuntimeError(457);
}

Control &ControlList::Item(const QString &name) const {
    Control *control = find(name);
    if (!control) throw RuntimeError(5, QStringLiteral("There is no control '%1' in the section").arg(name));
    return *control;
}

Control &ControlList::Item(int index) const {
    if (index < 0 || index >= Count()) throw RuntimeError(9);
    return *m_controls[std::size_t(index)];
}

} // namespace Printing
