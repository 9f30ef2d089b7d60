#include "exchange/cell_number.h"

#include <QLocale>
#include <QRegularExpression>

namespace {

constexpr qsizetype MostDigits = 15;

} // namespace

double CellNumber::times10(int exponent) const {
    return QLocale::c().toDouble(text + QLatin1Char('e') + QString::number(exponent));
}

std::optional<CellNumber> cellNumber(const QString &text) {
    static const QRegularExpression form(QStringLiteral("^-?(0|[1-9][0-9]*)([.,]([0-9]+))?$"));
    const QRegularExpressionMatch match = form.match(text.trimmed());
    if (!match.hasMatch()) return std::nullopt;
    const qsizetype decimals = match.capturedLength(3);
    if (match.capturedLength(1) + decimals > MostDigits) return std::nullopt;
    return CellNumber{match.captured().replace(QLatin1Char(','), QLatin1Char('.')),
                      static_cast<int>(decimals)};
}

std::optional<CellNumber> bracketedNumber(const QString &text) {
    const QString trimmed = text.trimmed();
    if (!trimmed.startsWith(QLatin1Char('(')) || !trimmed.endsWith(QLatin1Char(')'))) return std::nullopt;
    return cellNumber(trimmed.mid(1).chopped(1));
}
