#include "platform/runtime/text_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include "platform/runtime/runtime_error.h"
#include "platform/runtime/whole_file.h"

namespace {

// Windows-1252 is Latin-1 but for these 32 places. The five that it leaves free stay control characters.
constexpr char16_t Windows1252Special[32] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                             0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                             0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                             0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

QString decode(const QByteArray &bytes) {
    QStringDecoder utf8(QStringDecoder::Utf8);
    QString text = utf8(bytes);
    if (!utf8.hasError()) return text;
    text = QString::fromLatin1(bytes);
    for (QChar &sign : text)
        if (sign.unicode() >= 0x80 && sign.unicode() < 0xA0)
            sign = QChar(Windows1252Special[sign.unicode() - 0x80]);
    return text;
}

} // namespace

QStringList TextFile::readLines(const QString &path) {
    const QFileInfo info(path);
    if (!info.exists()) throw RuntimeError::ofFile(info.dir().exists() ? 53 : 76, path);
    if (!info.isFile()) throw RuntimeError::ofFile(75, path); // a pipe would be waited for without end
    if (!info.isReadable()) throw RuntimeError::ofFile(70, path);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) throw RuntimeError::ofFile(75, path);
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) throw RuntimeError::ofFile(57, path);

    QString text = decode(bytes);
    text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
    if (text.endsWith(QLatin1Char('\n')))
        text.chop(1);
    else if (text.isEmpty())
        return {};
    return text.split(QLatin1Char('\n'));
}

void TextFile::writeLines(const QString &path, const QStringList &lines) {
    QByteArray bytes;
    for (const QString &line : lines)
        bytes += line.toUtf8() + "\r\n";
    writeWholeFile(path, bytes, FallBack::InPlace);
}
