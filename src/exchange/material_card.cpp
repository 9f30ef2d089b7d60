#include "exchange/material_card.h"

#include <QLocale>

#include "data/table_vocabulary.h"
#include "exchange/ascii_text.h"

namespace {

constexpr double GreatestPoisson = 0.5;
/// In kg/m³. A density in g/cm³ lies below them, one in t/mm³ far below.
constexpr double LeastDensity = 500;
constexpr double GreatestDensity = 25000;

bool isBetween(const QString &typed, double least, double greatest) {
    const std::optional<CellNumber> number = cellNumber(typed);
    return number && number->value() >= least && number->value() <= greatest;
}

std::optional<CellNumber> given(const QString &typed, const QString &fault) {
    return fault.isEmpty() ? cellNumber(typed) : std::nullopt;
}

QString dateText(const QDate &date) {
    return date.toString(Qt::ISODate);
}

QString labelOf(CardQuantity quantity) {
    return QString::fromLatin1(cardUnit(quantity).label);
}

/// Reads one column, and notes in the head what was taken and what was not.
class Reader {
public:
    Reader(const CardSource &source, CardQuantity quantity)
        : m_source(source)
        , m_label(labelOf(quantity)) {}

    QVector<CardRow> read(const QString &key, int column) {
        const LoadedTable *table = m_source.table(key);
        if (!table) return without(QStringLiteral("the database has no values"));
        for (int row = 1; row <= table->source->rowCount(); ++row)
            take(table->source->text(row, 0), table->source->text(row, column).simplified());
        if (m_rows.isEmpty()) return without(QStringLiteral("the database has no plain numbers"));
        for (qsizetype i = 1; i < m_rows.size(); ++i)
            if (m_rows[i].temperature.value() <= m_rows[i - 1].temperature.value())
                return without(QStringLiteral("the temperatures do not ascend"));
        m_notes = table->notes;
        return m_rows;
    }

    QVector<CardRow> without(const QString &reason) {
        m_reason = reason;
        m_rows.clear();
        return {};
    }

    const QString &label() const { return m_label; }
    const QString &reason() const { return m_reason; }

    QStringList lines() const {
        if (m_rows.isEmpty()) return {};
        QStringList lines{QStringLiteral("%1: from %2 to %3 C")
                              .arg(m_label, m_rows.first().temperature.text, m_rows.last().temperature.text)};
        if (!m_bracketed.isEmpty())
            lines << m_label + QStringLiteral(", values in brackets that are used: ") +
                         m_bracketed.join(QStringLiteral(", "));
        if (!m_dropped.isEmpty())
            lines << m_label + QStringLiteral(", left out: ") + m_dropped.join(QStringLiteral(", "));
        for (const QString &note : m_notes.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
            lines << m_label + QStringLiteral(", note: ") + note;
        return lines;
    }

private:
    void take(const QString &temperature, const QString &value) {
        const std::optional<CellNumber> at = cellNumber(temperature);
        const std::optional<CellNumber> plain = cellNumber(value);
        const std::optional<CellNumber> number = plain ? plain : bracketedNumber(value);
        const QString place = QStringLiteral(" at ") + temperature.simplified() + QStringLiteral(" C");
        if (value.isEmpty() || value == QLatin1String("-"))
            m_dropped << QStringLiteral("no value") + place;
        else if (!at || !number || number->value() <= 0)
            m_dropped << QLatin1Char('"') + value + QLatin1Char('"') + place;
        else
            m_rows << CardRow{*at, *number};
        if (!plain && number && at && number->value() > 0) m_bracketed << value + place;
    }

    const CardSource &m_source;
    QString m_label;
    QVector<CardRow> m_rows;
    QString m_reason;
    QString m_notes;
    QStringList m_bracketed;
    QStringList m_dropped;
};

/// The column of the yield table that was chosen; 0 and the reason where there is none.
int yieldColumn(const CardSource &source, const CardChoice &choice, QString &reason) {
    const LoadedTable *table = source.table(choice.yieldKey);
    if (choice.yieldKey.isEmpty())
        reason = QStringLiteral("none was chosen");
    else if (!table)
        reason = QStringLiteral("the database has no values of ") + choice.yieldKey;
    else if (table->bands.isEmpty())
        return 1;
    else if (choice.band < 1 || choice.band >= table->bands.size())
        reason = choice.yieldKey + QStringLiteral(" depends on the thickness, and no band was chosen");
    else
        return choice.band;
    return 0;
}

class Maker {
public:
    Maker(const CardSource &source, const CardChoice &choice)
        : m_source(source)
        , m_choice(choice) {}

    MaterialCard make() {
        m_card.name = AsciiText::name(m_source.grade.name + QLatin1Char('_') + m_source.grade.standard);
        m_card.units = m_choice.units;
        m_card.poisson = given(m_choice.poisson, MaterialCard::poissonFault(m_choice.poisson));
        m_card.density = given(m_choice.density, MaterialCard::densityFault(m_choice.density));
        writeOrigin();
        readTables();
        m_card.head << m_lines;
        for (const QString &line : m_card.leftOut)
            m_card.head << QStringLiteral("Not in this card: ") + line;
        m_card.head << QStringLiteral(
            "The rows are those of the standard. Outside them a solver goes on with the first "
            "or the last one, for which the standard gives no value.");
        return m_card;
    }

private:
    void writeOrigin() {
        const Grades::Grade &grade = m_source.grade;
        const bool isSi = m_choice.units == UnitSystem::Si;
        m_card.head << QStringLiteral("Grade: ") + (grade.name + QLatin1Char(' ') + grade.number).trimmed() +
                           QStringLiteral(", last updated ") + dateText(grade.revision.date())
                    << QStringLiteral("Standard: ") + grade.standard + QStringLiteral(", last updated ") +
                           dateText(m_source.standardRevision)
                    << QStringLiteral("Database: ") + m_source.database + QStringLiteral(" of ") +
                           dateText(m_source.databaseDate)
                    << QStringLiteral("Units: ") +
                           (isSi ? QStringLiteral("kg, m, s, Pa") : QStringLiteral("t, mm, s, MPa")) +
                           QStringLiteral("; temperatures in C");
        writeGiven(QStringLiteral("Poisson's ratio"), m_card.poisson, QString());
        writeGiven(labelOf(CardQuantity::Density), m_card.density, QStringLiteral(" kg/m3"));
    }

    void writeGiven(const QString &label, const std::optional<CellNumber> &number, const QString &unit) {
        if (number)
            m_card.head << label + QStringLiteral(": ") + number->text + unit +
                               QStringLiteral(", typed; not of the database");
    }

    void readTables() {
        const QString noPoisson = reasonOf(m_choice.poisson, QStringLiteral("Poisson's ratio"));
        read(CardQuantity::Elasticity, "ModElast", 1, m_card.elasticity,
             m_card.poisson ? QString() : noPoisson);
        read(CardQuantity::Expansion, "ThermExp", 1, m_card.expansion, {});
        read(CardQuantity::Conductivity, "ThermCond", 1, m_card.conductivity, {});
        read(CardQuantity::SpecificHeat, "SpecThermCap", 2, m_card.specificHeat, {});
        if (!m_card.density)
            leaveOut(labelOf(CardQuantity::Density), reasonOf(m_choice.density, QStringLiteral("density")));
        QString reason;
        const int column = yieldColumn(m_source, m_choice, reason);
        if (reason.isEmpty() && m_card.elasticity.isEmpty())
            reason = QStringLiteral("it needs the modulus of elasticity");
        if (reason.isEmpty()) writeYield();
        read(CardQuantity::Yield, m_choice.yieldKey, column, m_card.yield, reason);
    }

    static QString reasonOf(const QString &typed, const QString &what) {
        if (typed.trimmed().isEmpty()) return QStringLiteral("no %1 was given").arg(what);
        return QStringLiteral("\"%1\" is no %2").arg(typed.trimmed(), what);
    }

    void read(CardQuantity quantity, const QString &key, int column, QVector<CardRow> &rows,
              const QString &hindrance) {
        Reader reader(m_source, quantity);
        rows = hindrance.isEmpty() ? reader.read(key, column) : reader.without(hindrance);
        if (!reader.reason().isEmpty()) leaveOut(reader.label(), reader.reason());
        m_lines << reader.lines();
    }

    void writeYield() {
        const QStringList bands = m_source.bands(m_choice.yieldKey);
        m_lines << QStringLiteral("Yield stress: ") +
                       TableVocabulary::GetTableName(TableVocabulary::GetTableIndex(m_choice.yieldKey)) +
                       (bands.isEmpty() ? QString()
                                        : QStringLiteral(", thickness ") + bands[m_choice.band - 1]) +
                       QStringLiteral("; perfectly plastic above it");
    }

    void leaveOut(const QString &label, const QString &reason) {
        m_card.leftOut << label + QStringLiteral(": ") + reason;
    }

    const CardSource &m_source;
    const CardChoice &m_choice;
    MaterialCard m_card;
    QStringList m_lines;
};

} // namespace

MaterialCard MaterialCard::of(const CardSource &source, const CardChoice &choice) {
    return Maker(source, choice).make();
}

QString MaterialCard::poissonFault(const QString &typed) {
    if (typed.trimmed().isEmpty()) return {};
    const bool isGood = isBetween(typed, 0, GreatestPoisson) && cellNumber(typed)->value() < GreatestPoisson;
    return isGood ? QString() : QStringLiteral("Poisson's ratio is a number from 0 to below 0.5");
}

QString MaterialCard::densityFault(const QString &typed) {
    if (typed.trimmed().isEmpty() || isBetween(typed, LeastDensity, GreatestDensity)) return {};
    return QStringLiteral("The density is a number in kg/m³ from 500 to 25000");
}

QString cardNumber(const CellNumber &number, int exponent) {
    return QString::number(number.times10(exponent), 'G', QLocale::FloatingPointShortest);
}
