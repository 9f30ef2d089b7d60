#include "design/value_text.h"

#include <QLocale>

#include "platform/runtime/conversions.h"
#include "platform/runtime/regional_settings.h"

namespace {

bool isDigitOrMinus(QChar ch) {
    return (ch >= QLatin1Char('0') && ch <= QLatin1Char('9')) || ch == QLatin1Char('-');
}

bool isPointOrComma(QChar ch) {
    return ch == QLatin1Char('.') || ch == QLatin1Char(',');
}

ValueText::Parts split(const QString &value, QChar decimalSign) {
    ValueText::Parts parts;
    qsizetype p = 0;
    for (; p < value.size() && !ValueText::IsNumberChar(value[p]); ++p)
        parts.prefix += value[p];
    for (; p < value.size() && ValueText::IsNumberChar(value[p]); ++p)
        parts.number += isPointOrComma(value[p]) ? decimalSign : value[p];
    parts.suffix = value.mid(p);
    return parts;
}

} // namespace

bool ValueText::IsNumberChar(QChar ch) {
    return isDigitOrMinus(ch) || isPointOrComma(ch);
}

std::array<ValueText::Parts, 2> ValueText::SplitValueText(const std::array<QString, 2> &values,
                                                          bool bDecimalPoint) {
    const QChar decimalSign = QLatin1Char(bDecimalPoint ? '.' : ',');
    std::array<Parts, 2> parts = {split(values[0], decimalSign), split(values[1], decimalSign)};
    // One way only: a decoration that begins in the upper row holds for the way up to it. The other way a
    // plain value would get brackets that the standard ends below it.
    if (parts[0].prefix.isEmpty()) parts[0].prefix = parts[1].prefix;
    if (parts[0].suffix.isEmpty()) parts[0].suffix = parts[1].suffix;
    return parts;
}

QString ValueText::GetNumberText(const QString &text, bool bDecimalPoint) {
    QString taken;
    for (const QChar ch : text) {
        if (!IsNumberChar(ch)) {
            if (!taken.isEmpty()) break;
            continue;
        }
        taken += bDecimalPoint && ch == QLatin1Char(',') ? QLatin1Char('.') : ch;
    }
    return taken;
}

std::optional<double> ValueText::numberIn(const QString &text) {
    bool isNumber = false;
    const QString number = GetNumberText(text, false).replace(QLatin1Char(','), QLatin1Char('.'));
    const double value = QLocale::c().toDouble(number, &isNumber);
    if (!isNumber) return std::nullopt;
    return value;
}

QString ValueText::designValueText(double y) {
    QString text = Format(y, QStringLiteral("###0.00"));
    return text.replace(RegionalSettings::current().decimalSign, QLatin1Char(','));
}
