// The materials that the user has selected, in the order of selection.
#pragma once

#include <memory>
#include <vector>

#include <QString>

class Material;

/// Keyed by the decimal text of a material's ID.
class Materials {
public:
    int Count() const { return static_cast<int>(m_items.size()); }
    /// Raises 457 for a key that is there already.
    void Add(std::shared_ptr<Material> material);
    /// `index` counts from 1. Raises 9 outside 1 to Count.
    std::shared_ptr<Material> Item(int index) const;
    /// Raise 9 and 5 for an index or a key that is not there.
    void Remove(int index);
    void Remove(const QString &key);

    auto begin() const { return m_items.begin(); }
    auto end() const { return m_items.end(); }

    static QString keyOf(const Material &material);

private:
    std::vector<std::shared_ptr<Material>> m_items;
};
