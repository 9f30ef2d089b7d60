#include "table_reader/cell_text.h"

#include <algorithm>
#include <memory>
#include <vector>

#include "table_reader/bytes.h"
#include "table_reader/damaged.h"

namespace {

void decodeUnits(const std::uint8_t *stored, std::size_t size, std::u16string &text) {
    if (size % 2 != 0) throw Damaged("half a character");
    text.resize(size / 2);
    for (std::size_t i = 0; i < text.size(); ++i)
        text[i] = static_cast<char16_t>(bytes::u16(stored + 2 * i));
}

/// A compressed text holds its units as their low bytes; a zero byte switches to whole units and back.
void decodeCompressed(const std::uint8_t *stored, std::size_t size, std::u16string &text) {
    text.resize(size); // never more units than bytes
    std::size_t units = 0;
    bool lowBytes = true;
    for (std::size_t i = 0; i < size;) {
        if (stored[i] == 0) {
            lowBytes = !lowBytes;
            ++i;
        } else if (lowBytes) {
            text[units++] = static_cast<char16_t>(stored[i++]);
        } else {
            if (i + 2 > size) throw Damaged("half a character");
            text[units++] = static_cast<char16_t>(bytes::u16(stored + i));
            i += 2;
        }
    }
    text.resize(units);
}

} // namespace

void CellText::decode(const std::uint8_t *stored, std::size_t size, std::u16string &text) const {
    if (m_jet3)
        decodeCodePage(stored, size, text);
    else if (size >= 2 && stored[0] == 0xff && stored[1] == 0xfe)
        decodeCompressed(stored + 2, size - 2, text);
    else
        decodeUnits(stored, size, text);
}

void CellText::decodeCodePage(const std::uint8_t *stored, std::size_t size, std::u16string &text) const {
    if (std::all_of(stored, stored + size, [](std::uint8_t byte) { return byte < 0x80; })) {
        text.assign(stored, stored + size);
        return;
    }
    std::vector<char> utf8(size * 4 + 1);
    mdb_unicode2ascii(m_handle, reinterpret_cast<const char *>(stored), size, utf8.data(), utf8.size());
    glong units = 0;
    const std::unique_ptr<gunichar2, void (*)(void *)> utf16(
        g_utf8_to_utf16(utf8.data(), -1, nullptr, &units, nullptr), g_free);
    if (!utf16) throw Damaged("bytes that are no text");
    text.assign(utf16.get(), utf16.get() + units);
}
