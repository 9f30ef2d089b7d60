#include "mdb_reader/row_writer.h"

#include <cmath>
#include <cstring>

#include "mdb_reader/bytes.h"
#include "mdb_reader/damaged.h"

using MdbProtocol::CellType;

namespace {

template <typename Number>
Number number(const CellBytes &cell) {
    if (cell.size < sizeof(Number)) throw Damaged("number cut off");
    Number value;
    std::memcpy(&value, cell.data, sizeof value);
    return value;
}

/// A sign, and four words of 32 bits with the highest first.
double decimal(const CellBytes &cell, int scale) {
    if (cell.size < 17) throw Damaged("number cut off");
    long double digits = 0;
    for (int word = 0; word < 4; ++word)
        digits = digits * 0x1p32L + static_cast<long double>(bytes::u32(cell.data + 1 + 4 * word));
    const long double value = digits / std::pow(10.0L, scale);
    return static_cast<double>((cell.data[0] & 0x80) != 0 ? -value : value);
}

} // namespace

RowWriter::RowWriter(const AccessFile &file, const Table &table)
    : m_table(table)
    , m_texts(file.handle(), file.isJet3())
    , m_longValues(file) {}

void RowWriter::write(const Row &row, Reply &reply) {
    const std::size_t nulls = reply.zeros((m_table.columns.size() + 7) / 8);
    for (std::size_t i = 0; i < m_table.columns.size(); ++i)
        if (!writeCell(m_table.columns[i], row, reply)) reply.setBit(nulls, i);
    reply.endRow();
}

bool RowWriter::writeCell(const Column &column, const Row &row, Reply &reply) {
    const bool bit = row.bit(column);
    if (column.type == CellType::Boolean) {
        reply.number(static_cast<std::uint8_t>(bit));
        return true;
    }
    if (!bit || (column.type == CellType::Memo && column.storedType != MDB_MEMO)) return false;
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
        reply.number(column.storedType == MDB_NUMERIC ? decimal(cell, column.scale) : number<double>(cell));
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
        break;
    }
    return true;
}
