// A family of like controls, told apart by an index that may have gaps.
#pragma once

#include <map>

#include "platform/forms/placement.h"
#include "platform/runtime/runtime_error.h"

/// `ControlArray<QLineEdit> txtSearch{"txtSearch"}`; `txtSearch.add(1, new QLineEdit(this), "Name")`;
/// `txtSearch(1)->text()`. Iterates in the order of the index over pairs of index and control.
template <class W>
class ControlArray {
public:
    explicit ControlArray(QString name)
        : m_name(std::move(name)) {}

    W *add(int index, W *control, const QString &accessibleName = {}) {
        m_controls[index] = control;
        return named(control, elementName(m_name, index), accessibleName);
    }

    /// Raises 340 for an index without a control.
    W *operator()(int index) const {
        const auto found = m_controls.find(index);
        if (found == m_controls.end())
            throw RuntimeError(340, QStringLiteral("Control array element '%1' doesn't exist").arg(index));
        return found->second;
    }

    int Count() const { return static_cast<int>(m_controls.size()); }
    auto begin() const { return m_controls.begin(); }
    auto end() const { return m_controls.end(); }

private:
    QString m_name;
    std::map<int, W *> m_controls;
};
