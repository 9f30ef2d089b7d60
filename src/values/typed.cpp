#include "values/typed.h"

#include <QLocale>
#include <QRegularExpression>

namespace {

bool isNumber(const QString &text) {
    static const QRegularExpression number(QStringLiteral("^-?[0-9]{1,9}([.,][0-9]{1,4})?$"));
    return number.match(text).hasMatch();
}

QString noNumber(const QString &text) {
    return text.isEmpty() ? QStringLiteral("Type a number.") : "'" + text + "' is no number.";
}

} // namespace

Typed<double> TypedTexts::number(const QString &text) {
    const QString trimmed = text.trimmed();
    if (!isNumber(trimmed)) return Typed<double>::wrong(noNumber(trimmed));
    return QLocale::c().toDouble(QString(trimmed).replace(QLatin1Char(','), QLatin1Char('.')));
}

Typed<QString> TypedTexts::temperature(const QString &text) {
    const QString trimmed = text.trimmed();
    if (!isNumber(trimmed))
        return Typed<QString>::wrong(trimmed.isEmpty() ? QStringLiteral("Type a temperature in °C.")
                                                       : "'" + trimmed + "' is no temperature.");
    return QString(trimmed).replace(QLatin1Char('.'), QLatin1Char(','));
}

Typed<std::optional<double>> TypedTexts::thickness(const QString &text) {
    using Thickness = Typed<std::optional<double>>;
    if (text.trimmed().isEmpty()) return std::optional<double>();
    const Typed<double> typed = number(text);
    if (!typed) return Thickness::wrong("'" + text.trimmed() + "' is no thickness.");
    if (*typed <= 0) return Thickness::wrong(QStringLiteral("A thickness is greater than 0 mm."));
    return std::optional<double>(*typed);
}

QString TypedTexts::grouped(qint64 count) {
    return QLocale(QLocale::English, QLocale::UnitedStates).toString(count);
}
