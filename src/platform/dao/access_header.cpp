#include "platform/dao/access_header.h"

#include <array>
#include <cstring>
#include <numeric>
#include <utility>

#include <QFile>
#include <QtEndian>

namespace {

constexpr qsizetype HeaderSize = 256;
constexpr qsizetype SignatureOffset = 4;
constexpr qsizetype VersionOffset = 0x14;
constexpr qsizetype CoverOffset = 0x18;
constexpr qsizetype PasswordOffset = 0x42;
constexpr qsizetype CreationOffset = 0x72;
constexpr std::array<quint8, 4> CoverKey = {0xc7, 0xda, 0x39, 0x6b};

/// RC4.
void uncover(QByteArray &bytes, qsizetype offset, qsizetype size) {
    std::array<quint8, 256> state;
    std::iota(state.begin(), state.end(), quint8(0));
    for (unsigned i = 0, j = 0; i < state.size(); ++i) {
        j = (j + state[i] + CoverKey[i % CoverKey.size()]) % 256;
        std::swap(state[i], state[j]);
    }
    unsigned i = 0;
    unsigned j = 0;
    for (qsizetype at = offset; at < offset + size; ++at) {
        i = (i + 1) % 256;
        j = (j + state[i]) % 256;
        std::swap(state[i], state[j]);
        bytes[at] = static_cast<char>(static_cast<quint8>(bytes[at]) ^ state[(state[i] + state[j]) % 256u]);
    }
}

QString passwordOfJet3(const QByteArray &header) {
    constexpr qsizetype Length = 20;
    const QByteArray stored = header.mid(PasswordOffset, Length);
    const qsizetype end = stored.indexOf('\0');
    return QString::fromLatin1(end < 0 ? stored : stored.left(end));
}

/// Twenty UTF-16 units under a mask that is the day of creation.
QString passwordOfJet4(const QByteArray &header) {
    constexpr qsizetype Length = 20;
    double creation = 0;
    std::memcpy(&creation, header.constData() + CreationOffset, sizeof creation);
    const bool isDay = creation > -1e9 && creation < 1e9; // no damage makes this conversion overflow
    const auto mask = static_cast<quint32>(isDay ? static_cast<qint32>(creation) : 0);
    QString password;
    for (qsizetype i = 0; i < Length; ++i) {
        const auto stored = qFromLittleEndian<quint16>(header.constData() + PasswordOffset + 2 * i);
        const auto unit = static_cast<quint16>(stored ^ (i % 2 == 0 ? mask : mask >> 16));
        if (unit == 0) break;
        password += QChar(unit);
    }
    return password;
}

} // namespace

std::optional<AccessHeader> AccessHeader::read(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    return fromBytes(file.read(HeaderSize));
}

std::optional<AccessHeader> AccessHeader::fromBytes(const QByteArray &start) {
    if (start.size() < HeaderSize || !start.startsWith(QByteArray("\0\1\0\0", 4))) return {};
    const QByteArray signature = start.mid(SignatureOffset, 15);
    const bool isJet = signature == "Standard Jet DB";
    const bool isAce = signature == "Standard ACE DB";
    if (!isJet && !isAce) return {};

    AccessHeader header;
    header.m_version = isAce ? Version::Ace : start[VersionOffset] == 0 ? Version::Jet3 : Version::Jet4;
    QByteArray clear = start;
    if (header.m_version == Version::Jet3) {
        uncover(clear, CoverOffset, 126);
        header.m_password = passwordOfJet3(clear);
    } else {
        uncover(clear, CoverOffset, 128);
        header.m_password = passwordOfJet4(clear);
    }
    return header;
}
