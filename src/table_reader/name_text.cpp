#include "table_reader/name_text.h"

#include <cstdint>

#include "table_reader/damaged.h"

namespace {
constexpr std::size_t LongestStoredName = 255; // four times what Access allows
}

std::string nameOf(const std::u16string &text) {
    if (text.empty() || text.size() > LongestStoredName) throw Damaged("name of absurd length");
    std::string name;
    const auto add = [&](unsigned bits) { name += static_cast<char>(bits); };
    for (std::size_t i = 0; i < text.size(); ++i) {
        std::uint32_t character = text[i];
        if (character >= 0xd800 && character < 0xe000) {
            const char16_t low = i + 1 < text.size() ? text[++i] : u'\0';
            if (character >= 0xdc00 || low < 0xdc00 || low >= 0xe000) throw Damaged("name that is no text");
            character = 0x10000 + ((character - 0xd800) << 10) + (low - 0xdc00u);
        }
        if (character == 0) throw Damaged("name that is no text");
        if (character < 0x80) {
            add(character);
            continue;
        }
        if (character < 0x800) {
            add(0xc0 | character >> 6);
        } else {
            if (character < 0x10000) {
                add(0xe0 | character >> 12);
            } else {
                add(0xf0 | character >> 18);
                add(0x80 | (character >> 12 & 0x3f));
            }
            add(0x80 | (character >> 6 & 0x3f));
        }
        add(0x80 | (character & 0x3f));
    }
    return name;
}
