// Stored texts to UTF-16.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

class CellText {
public:
    /// Texts of Jet 4 and later.
    static CellText ofUnits() { return CellText(false, nullptr); }
    /// Texts of Jet 3. Of an unknown code page only the ASCII characters are known.
    static CellText ofCodePage(unsigned codePage);

    /// Overwrites `text`. Raises Damaged for bytes that are no text.
    void decode(const std::uint8_t *bytes, std::size_t size, std::u16string &text) const;
    /// The text as it is stored, where each of its bytes is a character, of Latin-1 at most: as most are.
    std::optional<std::string_view> bytesOf(const std::uint8_t *bytes, std::size_t size) const;

private:
    CellText(bool bytesAreCharacters, const char16_t *upperHalf)
        : m_bytesAreCharacters(bytesAreCharacters)
        , m_upperHalf(upperHalf) {}

    bool m_bytesAreCharacters;
    const char16_t *m_upperHalf; // null where it is not known
};
