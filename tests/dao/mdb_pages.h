// Edits Access files by hand, for what the samples do not have in them.
#pragma once

#include <array>
#include <numeric>
#include <stdexcept>
#include <utility>

#include <QByteArray>
#include <QtEndian>

namespace mdbPages {

constexpr qsizetype Size = 4096; // of Jet 4
constexpr quint32 HeaderKey = 0x6b39dac7;

inline quint16 u16(const QByteArray &bytes, qsizetype at) {
    return qFromLittleEndian<quint16>(bytes.constData() + at);
}

template <typename Number>
void put(QByteArray &bytes, qsizetype at, Number value) {
    qToLittleEndian(value, bytes.data() + at);
}

/// RC4, which covers as it uncovers.
inline void cipher(QByteArray &bytes, qsizetype offset, qsizetype size, quint32 key) {
    std::array<quint8, 256> state;
    std::iota(state.begin(), state.end(), quint8(0));
    quint8 j = 0;
    for (unsigned i = 0; i < 256; ++i) {
        j = static_cast<quint8>(j + state[i] + (key >> i % 4 * 8));
        std::swap(state[i], state[j]);
    }
    j = 0;
    for (qsizetype n = 0; n < size; ++n) {
        const auto i = static_cast<quint8>(n + 1);
        j = static_cast<quint8>(j + state[i]);
        std::swap(state[i], state[j]);
        const quint8 mask = state[static_cast<quint8>(state[i] + state[j])];
        bytes[offset + n] = static_cast<char>(static_cast<quint8>(bytes[offset + n]) ^ mask);
    }
}

/// Where the page begins that holds `text`, which is in the file once.
inline qsizetype pageWith(const QByteArray &file, const QByteArray &text) {
    const qsizetype at = file.indexOf(text);
    if (at < 0 || file.indexOf(text, at + 1) >= 0) throw std::runtime_error("not once in the file");
    return at / Size * Size;
}

/// Sets flags of a row's slot.
inline void flagSlot(QByteArray &file, qsizetype page, qsizetype slot, quint16 flags) {
    const qsizetype at = page + 14 + 2 * slot;
    put(file, at, static_cast<quint16>(u16(file, at) | flags));
}

/// Where the definition begins of the table that the page of rows belongs to.
inline qsizetype definitionOf(const QByteArray &file, qsizetype page) {
    return qFromLittleEndian<quint32>(file.constData() + page + 4) * Size;
}

inline void setRowCount(QByteArray &file, qsizetype definition, qsizetype rows) {
    put(file, definition + 16, static_cast<quint32>(rows));
}

/// Where a column's entry begins in a definition.
inline qsizetype columnEntry(const QByteArray &file, qsizetype definition, qsizetype column) {
    const auto indexes = qFromLittleEndian<quint32>(file.constData() + definition + 51);
    return definition + 63 + 12 * qsizetype(indexes) + 25 * column;
}

inline qsizetype rowStart(const QByteArray &file, qsizetype page, qsizetype slot) {
    return page + (u16(file, page + 14 + 2 * slot) & 0x1fff);
}

/// Adds a page of long values with one piece in it. Gives the piece's place.
inline quint32 addLongValuePage(QByteArray &file, const QByteArray &piece) {
    QByteArray page("\1\1\0\0LVAL\0\0\0\0\1\0", 14);
    page.resize(Size - piece.size(), '\0');
    put(page, 14, static_cast<quint16>(Size - piece.size()));
    const auto place = static_cast<quint32>(file.size() / Size) << 8;
    file += page + piece;
    return place;
}

} // namespace mdbPages
