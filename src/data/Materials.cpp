#include "data/Materials.h"

#include <algorithm>

#include "data/Material.h"
#include "platform/runtime/runtime_error.h"

void Materials::Add(std::shared_ptr<Material> material) {
    const QString key = keyOf(*material);
    for (const auto &item : m_items)
        if (keyOf(*item) == key) throw RuntimeError(457);
    m_items.push_back(std::move(material));
}

std::shared_ptr<Material> Materials::Item(int index) const {
    if (index < 1 || index > Count()) throw RuntimeError(9);
    return m_items[static_cast<std::size_t>(index - 1)];
}

void Materials::Remove(int index) {
    if (index < 1 || index > Count()) throw RuntimeError(9);
    m_items.erase(m_items.begin() + (index - 1));
}

void Materials::Remove(const QString &key) {
    const auto found =
        std::find_if(m_items.begin(), m_items.end(), [&](const auto &item) { return keyOf(*item) == key; });
    if (found == m_items.end()) throw RuntimeError(5);
    m_items.erase(found);
}

QString Materials::keyOf(const Material &material) {
    return QString::number(material.ID());
}
