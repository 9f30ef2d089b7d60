// Texts of Access 97 beside what the system's iconv makes of them.
#include <gtest/gtest.h>

#include <iconv.h>

#include "table_reader/cell_text.h"
#include "table_reader/damaged.h"

namespace {

/// The UTF-16 unit of a byte, 0 for a byte that stands for nothing.
char16_t unitByIconv(int codePage, std::uint8_t byte) {
    const iconv_t converter = iconv_open("UTF-16LE", ("CP" + std::to_string(codePage)).c_str());
    EXPECT_NE(converter, iconv_t(-1)) << codePage;
    char stored = static_cast<char>(byte);
    char16_t unit = 0;
    char *from = &stored;
    char *to = reinterpret_cast<char *>(&unit);
    std::size_t left = 1;
    std::size_t room = sizeof unit;
    const bool good = iconv(converter, &from, &left, &to, &room) == 0 &&
                      iconv(converter, nullptr, nullptr, &to, &room) == 0 && room == 0;
    iconv_close(converter);
    return good ? unit : u'\0';
}

/// Nothing for bytes that are no text.
std::u16string decoded(unsigned codePage, const std::vector<std::uint8_t> &bytes) {
    std::u16string text;
    try {
        CellText::ofCodePage(codePage).decode(bytes.data(), bytes.size(), text);
    } catch (const Damaged &) {
        return {};
    }
    return text;
}

} // namespace

TEST(CellText, EveryByteOfACodePageIsThatOfTheSystem) {
    int known = 0;
    for (const int codePage : {874, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258}) {
        for (int byte = 1; byte < 256; ++byte) {
            const char16_t unit = unitByIconv(codePage, std::uint8_t(byte));
            known += byte >= 0x80 && unit != 0;
            const std::u16string expected = unit == 0 ? u"" : std::u16string(u"a") + unit;
            EXPECT_EQ(decoded(unsigned(codePage), {'a', std::uint8_t(byte)}), expected)
                << codePage << ": " << byte;
        }
    }
    EXPECT_GT(known, 1100);
}

TEST(CellText, OfAnUnknownCodePageOnlyAsciiIsKnown) {
    for (const unsigned codePage : {0u, 932u, 65535u}) {
        EXPECT_EQ(decoded(codePage, {'a', 0x7f, '\n'}), u"a\x7f\n");
        EXPECT_EQ(decoded(codePage, {'a', 0x80}), u"");
    }
}
