// Choices by a seed.
#pragma once

#include <random>

#include <QList>

class Chance {
public:
    explicit Chance(unsigned seed)
        : m_random(seed) {}

    /// From 0.
    int below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }
    template <typename Item>
    const Item &oneOf(const QList<Item> &items) {
        return items[below(static_cast<int>(items.size()))];
    }

private:
    std::mt19937 m_random;
};
