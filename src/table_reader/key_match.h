// Keys in the helper. Texts are compared here without regard to ASCII capitals, and any other character
// counts as equal to any: the main program, which knows all capitals, looks again.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

class KeyHash {
public:
    void add(std::uint64_t value) { m_hash = (m_hash ^ value) * 0x100000001b3u; }
    /// The same for many bits at once.
    void addWord(std::uint64_t value) {
        m_hash = (m_hash ^ value) * 0x9e3779b97f4a7c15u;
        m_hash ^= m_hash >> 29;
    }
    std::uint32_t value() const { return static_cast<std::uint32_t>(m_hash * 0x9e3779b97f4a7c15u >> 32); }

private:
    std::uint64_t m_hash = 0xcbf29ce484222325u;
};

namespace keyMatch {

inline bool isAscii(char16_t unit) {
    return unit < 0x80;
}

inline bool isAscii(std::string_view text) {
    return std::none_of(text.begin(), text.end(), [](char byte) { return (byte & 0x80) != 0; });
}

inline char16_t folded(char16_t unit) {
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 32) : unit;
}

/// Either is UTF-16, or ASCII alone.
template <typename UnitA, typename UnitB>
bool mayBeEqual(std::basic_string_view<UnitA> a, std::basic_string_view<UnitB> b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char16_t x, char16_t y) {
        return !isAscii(x) || !isAscii(y) || folded(x) == folded(y);
    });
}

/// A text with a byte for each unit, by which those that may be equal are the same to addNarrow(). Two
/// characters outside ASCII have a small letter in it: Kelvin's sign and the long s.
inline std::string narrowed(std::u16string_view text) {
    std::string narrow;
    for (const char16_t unit : text)
        narrow += unit == u'\u212a'   ? 'k'
                  : unit == u'\u017f' ? 's'
                  : isAscii(unit)     ? static_cast<char>(unit)
                                      : '?';
    return narrow;
}

/// False where the text is no ASCII, and the hash good for nothing. Eight bytes at a time, and with a bit set
/// that makes capitals small, and more alike than they are.
inline bool addNarrow(KeyHash &hash, std::string_view text) {
    constexpr std::uint64_t Small = 0x2020202020202020u;
    constexpr std::uint64_t NoAscii = 0x8080808080808080u;
    constexpr std::size_t Step = sizeof(std::uint64_t);
    std::uint64_t all = 0;
    hash.addWord(text.size());
    for (; text.size() >= Step; text.remove_prefix(Step)) {
        std::uint64_t some = 0;
        std::memcpy(&some, text.data(), Step);
        all |= some;
        hash.addWord(some | Small);
    }
    std::uint64_t rest = 0;
    for (const char byte : text)
        rest = rest << 8 | static_cast<unsigned char>(byte);
    hash.addWord(rest | Small);
    return ((all | rest) & NoAscii) == 0;
}

} // namespace keyMatch
