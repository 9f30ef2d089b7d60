#include "platform/files/packed_xml.h"

#include <optional>

#include <zlib.h>

#include <QtEndian>

namespace {

// After the application note that describes the ZIP format: the records by which its files are found.
constexpr quint32 EndMark = 0x06054b50;
constexpr quint32 DirectoryMark = 0x02014b50;
constexpr qsizetype EndSize = 22;
constexpr qsizetype DirectorySize = 46;
constexpr qsizetype LocalSize = 30;

template <class Number>
Number at(const QByteArray &bytes, qsizetype place) {
    if (place < 0 || place + static_cast<qsizetype>(sizeof(Number)) > bytes.size()) return 0;
    return qFromLittleEndian<Number>(bytes.constData() + place);
}

std::optional<QByteArray> inflated(QByteArray packed, quint32 size) {
    QByteArray bytes(size, Qt::Uninitialized);
    z_stream stream{};
    // A negative window is that of a bare stream, as a ZIP file has it.
    if (inflateInit2(&stream, -MAX_WBITS) != Z_OK) return std::nullopt;
    stream.next_in = reinterpret_cast<Bytef *>(packed.data());
    stream.avail_in = static_cast<uInt>(packed.size());
    stream.next_out = reinterpret_cast<Bytef *>(bytes.data());
    stream.avail_out = static_cast<uInt>(bytes.size());
    const bool isWhole = inflate(&stream, Z_FINISH) == Z_STREAM_END && stream.total_out == size;
    inflateEnd(&stream);
    return isWhole ? std::optional(bytes) : std::nullopt;
}

bool isWholeXml(const QByteArray &xml) {
    qsizetype start = xml.indexOf('<', xml.indexOf("?>"));
    if (start < 0) return false;
    qsizetype end = ++start;
    while (end < xml.size() && xml[end] != ' ' && xml[end] != '>')
        ++end;
    return xml.trimmed().endsWith("</" + xml.sliced(start, end - start) + ">");
}

} // namespace

bool holdsWholeXml(const QByteArray &bytes) {
    const qsizetype end = bytes.size() - EndSize;
    if (at<quint32>(bytes, end) != EndMark) return false;
    qsizetype entry = at<quint32>(bytes, end + 16);
    for (int files = at<quint16>(bytes, end + 10); files > 0; --files) {
        if (at<quint32>(bytes, entry) != DirectoryMark) return false;
        const quint32 packedSize = at<quint32>(bytes, entry + 20);
        const quint32 size = at<quint32>(bytes, entry + 24);
        const qsizetype local = at<quint32>(bytes, entry + 42);
        const qsizetype data =
            local + LocalSize + at<quint16>(bytes, local + 26) + at<quint16>(bytes, local + 28);
        if (data + packedSize > bytes.size()) return false;
        const std::optional<QByteArray> xml = inflated(bytes.sliced(data, packedSize), size);
        if (!xml || !isWholeXml(*xml)) return false;
        entry += DirectorySize + at<quint16>(bytes, entry + 28) + at<quint16>(bytes, entry + 30) +
                 at<quint16>(bytes, entry + 32);
    }
    return true;
}
