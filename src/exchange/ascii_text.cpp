#include "exchange/ascii_text.h"

#include <array>
#include <utility>

namespace {

constexpr qsizetype LongestName = 80;

/// What does not fall apart into a letter and its accent.
constexpr std::array<std::pair<char16_t, const char *>, 24> Likenesses{{
    {u'\u00DF', "ss"}, {u'\u00C6', "AE"}, {u'\u00E6', "ae"}, {u'\u00D8', "O"},  {u'\u00F8', "o"},
    {u'\u0141', "L"},  {u'\u0142', "l"},  {u'\u00B0', ""},   {u'\u00B5', "u"},  {u'\u03BC', "u"},
    {u'\u00D7', "x"},  {u'\u00B7', "*"},  {u'\u00B1', "+-"}, {u'\u2264', "<="}, {u'\u2265', ">="},
    {u'\u2010', "-"},  {u'\u2011', "-"},  {u'\u2013', "-"},  {u'\u2014', "-"},  {u'\u2212', "-"},
    {u'\u2018', "'"},  {u'\u2019', "'"},  {u'\u201C', "\""}, {u'\u201D', "\""},
}};

QString likeness(QChar sign) {
    for (const auto &[from, to] : Likenesses)
        if (sign == from) return QString::fromLatin1(to);
    QString plain;
    for (const QChar part : QString(sign).normalized(QString::NormalizationForm_KD))
        if (part.unicode() < 0x7F) plain += part;
    return plain.isEmpty() ? QStringLiteral("?") : plain;
}

bool isPlain(QChar sign) {
    return sign >= QLatin1Char(' ') && sign <= QLatin1Char('~');
}

} // namespace

QString AsciiText::of(const QString &text) {
    QString plain;
    for (const QChar sign : text.normalized(QString::NormalizationForm_C).simplified()) {
        if (isPlain(sign))
            plain += sign;
        else if (sign.category() != QChar::Mark_NonSpacing && !sign.isLowSurrogate())
            plain += likeness(sign);
    }
    return plain;
}

QString AsciiText::name(const QString &text) {
    QString name;
    for (const QChar sign : of(text)) {
        const bool isAllowed = sign.isLetterOrNumber() || sign == QLatin1Char('-');
        if (isAllowed)
            name += sign;
        else if (!name.endsWith(QLatin1Char('_')))
            name += QLatin1Char('_');
    }
    if (name.isEmpty() || !name[0].isLetter()) name.prepend(QStringLiteral("M_"));
    return name.left(LongestName);
}

QStringList AsciiText::comment(const QString &text, const QString &mark, int width) {
    const qsizetype room = width - mark.size();
    QStringList lines;
    QString rest = of(text);
    do {
        qsizetype end = rest.size();
        if (end > room) {
            end = rest.lastIndexOf(QLatin1Char(' '), room);
            if (end <= 0) end = room;
        }
        lines << mark + rest.left(end);
        rest = rest.mid(end).trimmed();
    } while (!rest.isEmpty());
    return lines;
}
