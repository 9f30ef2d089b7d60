// What a row must hold.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

/// A column, by its position, and what it must hold.
struct Condition {
    std::size_t column = 0;
    bool isText = false;
    std::int32_t integer = 0;
    std::u16string text;
};
