#include "workbench/condition_inputs.h"

#include "platform/runtime/conversions.h"

namespace {

using Limit = Typed<std::optional<ValueLimit>>;

Limit limit(const QString &text) {
    if (text.trimmed().isEmpty()) return std::optional<ValueLimit>();
    const Typed<double> number = TypedTexts::number(text);
    if (!number) return Limit::wrong(number.error);
    return std::optional<ValueLimit>(ValueLimit{*number});
}

} // namespace

Typed<ValueCondition> ConditionInputs::condition(const Property &property, const ConditionTexts &typed) {
    const Typed<QString> temperature = TypedTexts::temperature(typed.temperature);
    const Typed<std::optional<double>> thickness = TypedTexts::thickness(typed.thickness);
    const Limit least = limit(typed.least);
    const Limit greatest = limit(typed.greatest);
    QStringList faults{temperature.error, thickness.error, least.error, greatest.error};
    if (least && greatest && *least && *greatest && (*greatest)->number < (*least)->number)
        faults << QStringLiteral("No number is at least the one and at most the other.");
    faults.removeAll(QString());
    if (!faults.isEmpty()) return Typed<ValueCondition>::wrong(faults.join(QLatin1Char(' ')));
    return ValueCondition{property, *temperature, *thickness, {*least, *greatest}};
}

QString ConditionInputs::heading(const ValueCondition &condition) {
    QString heading = condition.property.label + " at " + condition.temperature + " °C";
    if (condition.thickness) heading += " in " + CStr(*condition.thickness) + " mm";
    return heading;
}

QString ConditionInputs::unit(const Property &property) {
    const QString &unit = property.unit;
    const bool bracketed = unit.startsWith(QLatin1Char('[')) && unit.endsWith(QLatin1Char(']'));
    return bracketed ? unit.mid(1, unit.size() - 2) : unit;
}
