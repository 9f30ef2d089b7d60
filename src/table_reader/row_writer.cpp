#include "table_reader/row_writer.h"

#include <algorithm>
#include <charconv>
#include <cstring>

#include "table_reader/bytes.h"
#include "table_reader/damaged.h"

using TableProtocol::CellType;

namespace {

template <typename Number>
Number number(const CellBytes &cell) {
    if (cell.size < sizeof(Number)) throw Damaged("number cut off");
    Number value;
    std::memcpy(&value, cell.data, sizeof value);
    return value;
}

/// A sign, and four words of 32 bits with the highest first: the number without its decimal sign. Gives the
/// Double that lies nearest, by way of the digits: a division would round once more.
double decimal(const CellBytes &cell, unsigned scale) {
    if (cell.size < 17) throw Damaged("number cut off");
    std::uint64_t words[4];
    for (int i = 0; i < 4; ++i)
        words[i] = bytes::u32(cell.data + 1 + 4 * i);
    std::string text;
    while (std::any_of(words, words + 4, [](std::uint64_t word) { return word != 0; })) {
        std::uint64_t rest = 0;
        for (std::uint64_t &word : words) {
            const std::uint64_t dividend = rest << 32 | word;
            word = dividend / 10;
            rest = dividend % 10;
        }
        text.insert(text.begin(), static_cast<char>('0' + rest));
    }
    if (text.empty()) return 0; // which has no sign
    if ((cell.data[0] & 0x80) != 0) text.insert(text.begin(), '-');
    text += "e-" + std::to_string(scale);
    double value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

} // namespace

RowWriter::RowWriter(const AccessFile &file, const Table &table)
    : m_table(table)
    , m_texts(file.texts())
    , m_longValues(file)
    , m_limit(file.identity().size) {}

void RowWriter::write(const Row &row, Reply &reply) {
    const std::size_t before = reply.size();
    const std::size_t nulls = reply.zeros((m_table.columns.size() + 7) / 8);
    std::size_t bit = 0;
    for (const Column &column : m_table.columns) { // their number is not asked for again after each cell
        if (!writeCell(column, row, reply)) reply.setBit(nulls, bit);
        ++bit;
    }
    if (!m_limit.take(reply.size() - before)) throw Damaged("more rows than the file can hold");
    reply.endRow();
}

bool RowWriter::writeCell(const Column &column, const Row &row, Reply &reply) {
    const bool bit = row.bit(column);
    if (column.type == CellType::Boolean) {
        reply.number(static_cast<std::uint8_t>(bit));
        return true;
    }
    if (!bit || column.type == CellType::Unsupported) return false;
    CellBytes cell = row.cell(column);
    if (!cell.data) return false;
    switch (column.type) {
    case CellType::Byte:
        reply.number(number<std::uint8_t>(cell));
        break;
    case CellType::Integer:
        reply.number(number<std::int16_t>(cell));
        break;
    case CellType::Long:
        reply.number(number<std::int32_t>(cell));
        break;
    case CellType::Currency:
        reply.number(number<std::int64_t>(cell));
        break;
    case CellType::Single:
        reply.number(number<float>(cell));
        break;
    case CellType::Double:
        reply.number(column.storedType == StoredType::Decimal ? decimal(cell, column.scale)
                                                              : number<double>(cell));
        break;
    case CellType::Date:
        reply.number(number<double>(cell));
        break;
    case CellType::Memo:
        cell = m_longValues.value(cell);
        [[fallthrough]];
    case CellType::Text:
        m_texts.decode(cell.data, cell.size, m_text);
        reply.text(m_text);
        break;
    case CellType::Boolean:
    case CellType::Unsupported:
        break;
    }
    return true;
}
