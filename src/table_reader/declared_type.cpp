#include "table_reader/declared_type.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <limits>
#include <string>

using TableProtocol::CellType;

namespace {

constexpr std::uint16_t UsualSize = 255;
constexpr std::string_view Blanks = " \t\n\v\f\r";

constexpr struct {
    std::string_view name;
    CellType type;
} Types[] = {
    {"BOOLEAN", CellType::Boolean},
    {"BOOL", CellType::Boolean},
    {"YES/NO", CellType::Boolean},
    {"YESNO", CellType::Boolean},
    {"BIT", CellType::Boolean},
    {"LOGICAL", CellType::Boolean},
    {"BYTE", CellType::Byte},
    {"TINYINT", CellType::Byte},
    {"INTEGER", CellType::Integer},
    {"INT", CellType::Integer},
    {"SMALLINT", CellType::Integer},
    {"SHORT", CellType::Integer},
    {"LONG", CellType::Long},
    {"LONG INTEGER", CellType::Long},
    {"BIGINT", CellType::Long},
    {"MEDIUMINT", CellType::Long},
    {"COUNTER", CellType::Long},
    {"AUTOINCREMENT", CellType::Long},
    {"CURRENCY", CellType::Currency},
    {"MONEY", CellType::Currency},
    {"SINGLE", CellType::Single},
    {"DOUBLE", CellType::Double},
    {"DOUBLE PRECISION", CellType::Double},
    {"REAL", CellType::Double},
    {"FLOAT", CellType::Double},
    {"NUMERIC", CellType::Double},
    {"NUMBER", CellType::Double},
    {"DECIMAL", CellType::Double},
    {"DATE", CellType::Date},
    {"DATETIME", CellType::Date},
    {"DATE/TIME", CellType::Date},
    {"TIMESTAMP", CellType::Date},
    {"MEMO", CellType::Memo},
    {"LONGTEXT", CellType::Memo},
    {"LONG TEXT", CellType::Memo},
    {"CLOB", CellType::Memo},
};

/// In capitals, and with single blanks between the words.
std::string plainName(std::string_view text) {
    std::string name;
    bool wantsBlank = false;
    for (const char character : text) {
        if (Blanks.find(character) != Blanks.npos) {
            wantsBlank = !name.empty();
            continue;
        }
        if (wantsBlank) name += ' ';
        wantsBlank = false;
        name += character >= 'a' && character <= 'z' ? static_cast<char>(character - 32) : character;
    }
    return name;
}

std::uint16_t textSize(std::string_view inBrackets) {
    const std::string digits = plainName(inBrackets.substr(0, inBrackets.find(')')));
    int size = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), size);
    if (error != std::errc() || end != digits.data() + digits.size() || size <= 0) return UsualSize;
    return static_cast<std::uint16_t>(std::min<int>(size, std::numeric_limits<std::uint16_t>::max()));
}

} // namespace

DeclaredType declaredType(std::string_view declaration) {
    const std::size_t bracket = declaration.find('(');
    const std::string name = plainName(declaration.substr(0, bracket));
    const auto found =
        std::find_if(std::begin(Types), std::end(Types), [&](const auto &each) { return each.name == name; });
    if (found != std::end(Types)) return {found->type, 0};
    return {CellType::Text,
            bracket == declaration.npos ? UsualSize : textSize(declaration.substr(bracket + 1))};
}
