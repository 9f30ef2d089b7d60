#include "table_reader/access_header.h"

#include <algorithm>
#include <array>
#include <cstring>

#include <unistd.h>

#include "table_reader/bytes.h"
#include "table_reader/cell_text.h"
#include "table_reader/cipher.h"
#include "table_reader/damaged.h"

namespace {

constexpr std::uint8_t HeaderKind[] = {0, 1, 0, 0};
constexpr std::size_t SignatureOffset = 4;
constexpr std::string_view JetSignature = "Standard Jet DB";
constexpr std::string_view AceSignature = "Standard ACE DB";
constexpr std::size_t VersionOffset = 0x14;
constexpr std::uint8_t LastVersion = 6; // of Access 2019

// What the cover lies over, in part of the page.
constexpr std::uint32_t CoverKey = 0x6b39dac7;
constexpr std::size_t CoverOffset = 0x18;
constexpr std::size_t CodePageOffset = 0x3c;
constexpr std::size_t PageKeyOffset = 0x3e;
constexpr std::size_t PasswordOffset = 0x42;
constexpr std::size_t PasswordLength = 20;
constexpr std::size_t CreationOffset = 0x72;

using HeaderBytes = std::array<std::uint8_t, AccessHeader::Size>;

/// Twenty bytes in the code page.
std::u16string passwordOfJet3(const HeaderBytes &header, unsigned codePage) {
    const auto begin = header.begin() + PasswordOffset;
    const auto end = std::find(begin, begin + PasswordLength, 0);
    std::u16string password;
    CellText::ofCodePage(codePage).decode(&*begin, static_cast<std::size_t>(end - begin), password);
    return password;
}

/// Twenty UTF-16 units under a mask that is the day of creation.
std::u16string passwordOfJet4(const HeaderBytes &header) {
    double creation = 0;
    std::memcpy(&creation, header.data() + CreationOffset, sizeof creation);
    const bool isDay = creation > -1e9 && creation < 1e9; // no damage makes this conversion overflow
    const auto mask = static_cast<std::uint32_t>(isDay ? static_cast<std::int32_t>(creation) : 0);
    std::u16string password;
    for (std::size_t i = 0; i < PasswordLength; ++i) {
        const std::uint16_t stored = bytes::u16(header.data() + PasswordOffset + 2 * i);
        const auto unit = static_cast<char16_t>(stored ^ static_cast<std::uint16_t>(mask >> (i % 2 * 16)));
        if (unit == 0) break;
        password += unit;
    }
    return password;
}

} // namespace

AccessHeader AccessHeader::read(int file) {
    HeaderBytes start;
    std::size_t size = 0;
    while (size < start.size()) {
        const ssize_t got = pread(file, start.data() + size, start.size() - size, static_cast<off_t>(size));
        if (got <= 0) break;
        size += static_cast<std::size_t>(got);
    }
    return fromBytes(start.data(), size);
}

AccessHeader AccessHeader::fromBytes(const std::uint8_t *start, std::size_t size) {
    if (size < Size || !std::equal(std::begin(HeaderKind), std::end(HeaderKind), start))
        throw Damaged("not an Access file");
    const auto isSigned = [&](std::string_view signature) {
        return std::equal(signature.begin(), signature.end(), start + SignatureOffset);
    };
    const std::uint8_t version = start[VersionOffset];
    const bool isKnown = isSigned(JetSignature) || (isSigned(AceSignature) && version != 0);
    if (!isKnown || version > LastVersion) throw Damaged("not an Access file");

    AccessHeader header;
    header.m_jet3 = version == 0;
    HeaderBytes clear;
    std::copy_n(start, Size, clear.begin());
    applyCipher(clear.data() + CoverOffset, header.m_jet3 ? 126 : 128, CoverKey);
    header.m_pageKey = bytes::u32(clear.data() + PageKeyOffset);
    header.m_codePage = bytes::u16(clear.data() + CodePageOffset);
    header.m_password = header.m_jet3 ? passwordOfJet3(clear, header.m_codePage) : passwordOfJet4(clear);
    return header;
}
