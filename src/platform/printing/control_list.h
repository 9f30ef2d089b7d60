// The controls of a section, by name.
#pragma once

#include <memory>
#include <vector>

#include "platform/printing/controls.h"
#include "platform/runtime/runtime_error.h"

namespace Printing {

/// Names are unique within a section and their capitals do not count.
class ControlList {
public:
    /// Raises 457 for a name that is there already.
    template <class ControlType>
    ControlType &Add(const QString &name) {
        refuseKnown(name);
        auto control = std::make_unique<ControlType>();
        ControlType &added = *control;
        added.Name = name;
        m_controls.push_back(std::move(control));
        return added;
    }

    int Count() const { return int(m_controls.size()); }
    /// Raises 5 for an unknown name.
    Control &Item(const QString &name) const;
    /// From 0. Raises 9 outside.
    Control &Item(int index) const;
    /// Raises 5 for an unknown name, 13 for a control of another type.
    template <class ControlType>
    ControlType &Item(const QString &name) const {
        auto *control = dynamic_cast<ControlType *>(&Item(name));
        if (!control) throw RuntimeError(13);
        return *control;
    }

    auto begin() const { return m_controls.begin(); }
    auto end() const { return m_controls.end(); }

private:
    Control *find(const QString &name) const;
    void refuseKnown(const QString &name) const;

    std::vector<std::unique_ptr<Control>> m_controls;
};

} // namespace Printing
