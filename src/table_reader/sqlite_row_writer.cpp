#include "table_reader/sqlite_row_writer.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "table_reader/key_match.h"
#include "table_reader/sqlite_refused.h"

using TableProtocol::CellType;
using TableProtocol::StoredKind;

namespace {

constexpr std::size_t LongestTexts = 16u << 20; // all of a row, in bytes as they are stored

bool isText(CellType type) {
    return type == CellType::Text || type == CellType::Memo;
}

template <typename Number>
bool isWithin(std::int64_t value) {
    return value >= std::numeric_limits<Number>::min() && value <= std::numeric_limits<Number>::max();
}

bool integerFits(CellType type, std::int64_t value) {
    switch (type) {
    case CellType::Byte:
        return isWithin<std::uint8_t>(value);
    case CellType::Integer:
        return isWithin<std::int16_t>(value);
    case CellType::Long:
        return isWithin<std::int32_t>(value);
    default:
        return false;
    }
}

bool numberFits(CellType type, const SqliteValue &value) {
    switch (type) {
    case CellType::Boolean:
    case CellType::Double:
        return true;
    case CellType::Single:
        return std::abs(value.real()) <= double(std::numeric_limits<float>::max());
    default:
        return value.type() == SQLITE_INTEGER && integerFits(type, value.integer());
    }
}

void writeText(const SqliteValue &value, Reply &reply) {
    const std::string_view text = value.text();
    if (keyMatch::isAscii(text))
        reply.asciiText(text);
    else
        reply.text(value.wideText());
}

} // namespace

void SqliteRowWriter::write(const SqliteStatement &row, Reply &reply) {
    // Once in a frame, the other form goes on to its end: it serves every row.
    const bool goesOn = reply.size() > 0 && reply.rowsKind() == TableProtocol::Reply::StoredRows;
    const bool plain = !goesOn && isPlain(row);
    reply.setRowsKind(plain ? TableProtocol::Reply::Rows : TableProtocol::Reply::StoredRows);
    const std::size_t before = reply.size();
    if (plain)
        writePlain(row, reply);
    else
        writeStored(row, reply);
    charge(reply.size() - before);
    reply.endRow();
}

void SqliteRowWriter::charge(std::size_t bytes) {
    if (!m_limit.take(bytes)) throw SqliteRefused("a table gives more rows than the file can hold");
}

bool SqliteRowWriter::isPlain(const SqliteStatement &row) const {
    std::size_t textSize = 0;
    for (std::size_t i = 0; i < m_table.columns.size(); ++i) {
        const SqliteValue value = row.value(i);
        const int stored = value.type();
        if (stored == SQLITE_NULL) continue;
        if (stored == SQLITE_BLOB) return false;
        const CellType type = m_table.columns[i].type;
        if (isText(type)) {
            if (stored == SQLITE_TEXT) textSize += value.storedSize();
            if (textSize > LongestTexts) return false;
        } else if (stored == SQLITE_TEXT || !numberFits(type, value)) {
            return false;
        }
    }
    return true;
}

void SqliteRowWriter::writePlain(const SqliteStatement &row, Reply &reply) const {
    const std::size_t nulls = reply.zeros((m_table.columns.size() + 7) / 8);
    for (std::size_t i = 0; i < m_table.columns.size(); ++i) {
        const SqliteValue value = row.value(i);
        if (value.isNull()) {
            reply.setBit(nulls, i);
            continue;
        }
        switch (m_table.columns[i].type) {
        case CellType::Boolean:
            reply.number(static_cast<std::uint8_t>(value.real() != 0));
            break;
        case CellType::Byte:
            reply.number(static_cast<std::uint8_t>(value.integer()));
            break;
        case CellType::Integer:
            reply.number(static_cast<std::int16_t>(value.integer()));
            break;
        case CellType::Long:
            reply.number(static_cast<std::int32_t>(value.integer()));
            break;
        case CellType::Single:
            reply.number(static_cast<float>(value.real()));
            break;
        case CellType::Double:
            reply.number(value.real());
            break;
        default:
            writeText(value, reply);
        }
    }
}

void SqliteRowWriter::writeStored(const SqliteStatement &row, Reply &reply) const {
    std::size_t textSize = 0;
    for (std::size_t i = 0; i < m_table.columns.size(); ++i) {
        const SqliteValue value = row.value(i);
        const int stored = value.type();
        if (stored == SQLITE_NULL) {
            reply.number(StoredKind::Null);
        } else if (stored == SQLITE_BLOB) {
            reply.number(StoredKind::Blob);
        } else if (stored == SQLITE_TEXT || isText(m_table.columns[i].type)) {
            const std::size_t size = stored == SQLITE_TEXT ? value.storedSize() : 0;
            const bool fits = size <= LongestTexts - textSize;
            reply.number(fits ? StoredKind::Text : StoredKind::TooLong);
            if (!fits) continue;
            textSize += size;
            writeText(value, reply);
        } else if (stored == SQLITE_INTEGER) {
            reply.number(StoredKind::Integer);
            reply.number(value.integer());
        } else {
            reply.number(StoredKind::Real);
            reply.number(value.real());
        }
    }
}
