#include "values/condition_text.h"

#include <QRegularExpression>

#include "platform/runtime/conversions.h"

namespace {

using Condition = Typed<ValueCondition>;

ValueLimits limitsOf(const QString &sign, double number) {
    const ValueLimit limit{number, sign.endsWith(QLatin1Char('='))};
    return sign.startsWith(QLatin1Char('>')) ? ValueLimits{limit, {}} : ValueLimits{{}, limit};
}

QString limitText(const std::optional<ValueLimit> &limit, const QString &sign) {
    return limit ? " " + sign + (limit->inclusive ? "= " : " ") + CStr(limit->number) : QString();
}

} // namespace

QString ConditionText::of(const ValueCondition &condition) {
    QString text = condition.property.name() + limitText(condition.limits.least, ">") +
                   limitText(condition.limits.greatest, "<") + " at " + condition.temperature;
    if (condition.thickness) text += " thickness " + CStr(*condition.thickness);
    return text;
}

Condition ConditionText::read(const QString &text, const QVector<Property> &properties) {
    static const QRegularExpression form(
        QStringLiteral(
            "^\\s*([^<>]+?)\\s*(>=|<=|>|<)\\s*(\\S+)\\s+at\\s+(\\S+)(?:\\s+thickness\\s+(\\S+))?\\s*$"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return Condition::wrong("'" + text + "' is no condition; 'Rp02 >= 150 at 300 thickness 40' is one");
    const Typed<Property> property = Properties::named(properties, match.captured(1));
    if (!property) return Condition::wrong(property.error);
    const Typed<double> number = TypedTexts::number(match.captured(3));
    if (!number) return Condition::wrong(number.error);
    const Typed<QString> temperature = TypedTexts::temperature(match.captured(4));
    if (!temperature) return Condition::wrong(temperature.error);
    const Typed<std::optional<double>> thickness = TypedTexts::thickness(match.captured(5));
    if (!thickness) return Condition::wrong(thickness.error);
    return ValueCondition{*property, *temperature, *thickness, limitsOf(match.captured(2), *number)};
}
