#include "exchange/mapdl_card.h"

#include "exchange/ascii_text.h"
#include "exchange/material_card.h"

namespace {

constexpr int CardWidth = 100;
constexpr qsizetype LongestLine = 128;
constexpr int MostValues = 6;
const QString Comma = QStringLiteral(",");

/// `command` takes a place in its table, from 1, and up to six values. A zero counts only as the first of a
/// command; behind others it would leave what was there before.
QStringList filled(const QString &command, const QStringList &values) {
    QStringList lines;
    int count = 0;
    for (qsizetype i = 0; i < values.size(); ++i) {
        const bool isZero = values[i].toDouble() == 0;
        const bool isFull = count == MostValues || isZero ||
                            (count > 0 && lines.last().size() + 1 + values[i].size() > LongestLine);
        if (lines.isEmpty() || isFull) {
            lines << command + Comma + QString::number(i + 1);
            count = 0;
        }
        lines.last() += Comma + values[i];
        ++count;
    }
    return lines;
}

QStringList property(const QString &label, const MaterialCard &card, CardQuantity quantity,
                     const QVector<CardRow> &rows) {
    if (rows.isEmpty()) return {};
    QStringList temperatures;
    QStringList values;
    for (const CardRow &row : rows) {
        temperatures << cardNumber(row.temperature, 0);
        values << cardNumber(row.value, cardUnit(quantity).exponent(card.units));
    }
    // Without arguments the table of the property before is forgotten.
    return QStringList{QStringLiteral("MPTEMP")} + filled(QStringLiteral("MPTEMP"), temperatures) +
           filled(QStringLiteral("MPDATA,") + label + QStringLiteral(",1"), values);
}

/// In front of all tables, so that none of their temperatures is taken for these.
QStringList constants(const MaterialCard &card) {
    QStringList lines;
    if (!card.elasticity.isEmpty()) lines << QStringLiteral("MP,PRXY,1,") + cardNumber(*card.poisson, 0);
    if (!card.expansion.isEmpty()) lines << QStringLiteral("MP,REFT,1,20");
    if (card.density)
        lines << QStringLiteral("MP,DENS,1,") +
                     cardNumber(*card.density, cardUnit(CardQuantity::Density).exponent(card.units));
    if (!lines.isEmpty()) lines.prepend(QStringLiteral("MPTEMP"));
    return lines;
}

/// A curve a temperature, level from plastic strain 0 to 1.
QStringList plasticity(const MaterialCard &card) {
    if (card.yield.isEmpty()) return {};
    QStringList lines{QStringLiteral("TB,PLASTIC,1,%1,2,MISO").arg(card.yield.size())};
    for (const CardRow &row : card.yield) {
        const QString stress = cardNumber(row.value, cardUnit(CardQuantity::Yield).exponent(card.units));
        lines << QStringLiteral("TBTEMP,") + cardNumber(row.temperature, 0)
              << QStringLiteral("TBPT,DEFI,0,") + stress << QStringLiteral("TBPT,DEFI,1,") + stress;
    }
    return lines;
}

} // namespace

QString mapdlCard(const MaterialCard &card) {
    QStringList lines;
    for (const QString &line :
         QStringList{"Material card for Ansys MAPDL: material number 1, to be read in /PREP7",
                     "Name: " + card.name} +
             card.head)
        lines << AsciiText::comment(line, "! ", CardWidth);
    lines << constants(card) << property("EX", card, CardQuantity::Elasticity, card.elasticity)
          << property("ALPX", card, CardQuantity::Expansion, card.expansion)
          << property("KXX", card, CardQuantity::Conductivity, card.conductivity)
          << property("C", card, CardQuantity::SpecificHeat, card.specificHeat);
    lines << plasticity(card);
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}
