#include "exchange/calculix_card.h"

#include "exchange/ascii_text.h"
#include "exchange/material_card.h"

namespace {

/// For the eye; the program itself reads 132.
constexpr int Width = 100;

/// A line a row: the figure, what stands between, the temperature.
QStringList block(const QString &keyword, const MaterialCard &card, CardQuantity quantity,
                  const QVector<CardRow> &rows, const QString &between = {}) {
    if (rows.isEmpty()) return {};
    const int exponent = cardUnit(quantity).exponent(card.units);
    QStringList lines{keyword};
    for (const CardRow &row : rows)
        lines << cardNumber(row.value, exponent) + QStringLiteral(", ") + between +
                     cardNumber(row.temperature, 0);
    return lines;
}

QStringList blocks(const MaterialCard &card) {
    const QString poisson = card.poisson ? cardNumber(*card.poisson, 0) + QStringLiteral(", ") : QString();
    QStringList lines;
    lines << block("*ELASTIC, TYPE=ISO", card, CardQuantity::Elasticity, card.elasticity, poisson)
          << block("*EXPANSION, TYPE=ISO, ZERO=20", card, CardQuantity::Expansion, card.expansion)
          << block("*CONDUCTIVITY", card, CardQuantity::Conductivity, card.conductivity)
          << block("*SPECIFIC HEAT", card, CardQuantity::SpecificHeat, card.specificHeat);
    if (card.density)
        lines << "*DENSITY"
              << cardNumber(*card.density, cardUnit(CardQuantity::Density).exponent(card.units));
    // The plastic strain of a yield stress is 0. It stands alone at each temperature: no hardening.
    lines << block("*PLASTIC", card, CardQuantity::Yield, card.yield, QStringLiteral("0, "));
    return lines;
}

} // namespace

QString calculixCard(const MaterialCard &card) {
    QStringList lines =
        AsciiText::comment(QStringLiteral("Material card for CalculiX and Abaqus"), "** ", Width);
    for (const QString &line : card.head)
        lines << AsciiText::comment(line, "** ", Width);
    const QStringList properties = blocks(card);
    if (!properties.isEmpty()) lines << QStringLiteral("*MATERIAL, NAME=") + card.name << properties;
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}
