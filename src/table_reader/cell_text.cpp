#include "table_reader/cell_text.h"

#include "table_reader/bytes.h"
#include "table_reader/code_pages.h"
#include "table_reader/damaged.h"

namespace {

constexpr std::size_t MarkSize = 2;

void decodeUnits(const std::uint8_t *stored, std::size_t size, std::u16string &text) {
    if (size % 2 != 0) throw Damaged("half a character");
    text.resize(size / 2);
    for (std::size_t i = 0; i < text.size(); ++i)
        text[i] = static_cast<char16_t>(bytes::u16(stored + 2 * i));
}

bool isCompressed(const std::uint8_t *stored, std::size_t size) {
    return size >= MarkSize && stored[0] == 0xff && stored[1] == 0xfe;
}

/// A compressed text holds its units as their low bytes; a zero byte switches to whole units and back.
void decodeCompressed(const std::uint8_t *stored, std::size_t size, std::u16string &text) {
    text.resize(size); // never more units than bytes
    char16_t *const units = text.data();
    std::size_t i = 0;
    for (; i < size && stored[i] != 0; ++i)
        units[i] = stored[i];
    if (i == size) return; // as most texts do
    std::size_t done = i;
    bool lowBytes = true;
    while (i < size) {
        if (stored[i] == 0) {
            lowBytes = !lowBytes;
            ++i;
        } else if (lowBytes) {
            units[done++] = stored[i++];
        } else {
            if (i + 2 > size) throw Damaged("half a character");
            units[done++] = static_cast<char16_t>(bytes::u16(stored + i));
            i += 2;
        }
    }
    text.resize(done);
}

void decodeBytes(const std::uint8_t *stored, std::size_t size, const char16_t *upperHalf,
                 std::u16string &text) {
    text.resize(size);
    for (std::size_t i = 0; i < size; ++i) {
        text[i] = stored[i];
        if (stored[i] < 0x80) continue;
        text[i] = upperHalf ? upperHalf[stored[i] - 0x80] : char16_t(0);
        if (text[i] == 0) throw Damaged("byte that is no character");
    }
}

} // namespace

CellText CellText::ofCodePage(unsigned codePage) {
    return CellText(true, codePages::upperHalf(codePage));
}

void CellText::decode(const std::uint8_t *stored, std::size_t size, std::u16string &text) const {
    if (m_bytesAreCharacters)
        decodeBytes(stored, size, m_upperHalf, text);
    else if (isCompressed(stored, size))
        decodeCompressed(stored + MarkSize, size - MarkSize, text);
    else
        decodeUnits(stored, size, text);
}

std::optional<std::string_view> CellText::bytesOf(const std::uint8_t *stored, std::size_t size) const {
    if (m_bytesAreCharacters || !isCompressed(stored, size)) return {};
    const std::string_view bytes(reinterpret_cast<const char *>(stored + MarkSize), size - MarkSize);
    if (bytes.find('\0') != std::string_view::npos) return {};
    return bytes;
}
