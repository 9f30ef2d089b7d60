#include "values/value_sheet.h"

namespace {

/// As many as TypedTexts::number takes.
constexpr int Decimals = 4;
constexpr qint64 Unit = 10000;

/// In units of the last decimal, so that steps add up.
qint64 counted(const QString &text) {
    const QString trimmed = text.trimmed();
    const QString whole = trimmed.section(QLatin1Char(trimmed.contains(QLatin1Char(',')) ? ',' : '.'), 0, 0);
    const QString fraction = trimmed.mid(whole.size() + 1).leftJustified(Decimals, QLatin1Char('0'));
    const qint64 size = whole.toLongLong() * Unit;
    return whole.startsWith(QLatin1Char('-')) ? size - fraction.toLongLong() : size + fraction.toLongLong();
}

/// With the decimals that it needs.
QString temperatureText(qint64 count) {
    const qint64 size = count < 0 ? -count : count;
    QString text = (count < 0 ? QStringLiteral("-") : QString()) + QString::number(size / Unit);
    QString fraction = QString::number(size % Unit).rightJustified(Decimals, QLatin1Char('0'));
    while (fraction.endsWith(QLatin1Char('0')))
        fraction.chop(1);
    return fraction.isEmpty() ? text : text + QLatin1Char(',') + fraction;
}

} // namespace

Typed<QStringList> ValueSheets::temperatures(const QString &from, const QString &to, const QString &step) {
    using Temperatures = Typed<QStringList>;
    for (const QString &text : {from, to, step})
        if (const Typed<double> number = TypedTexts::number(text); !number)
            return Temperatures::wrong(number.error);
    const qint64 first = counted(from);
    const qint64 last = counted(to);
    const qint64 each = counted(step);
    if (each <= 0) return Temperatures::wrong(QStringLiteral("The step is greater than 0 °C."));
    if (first > last)
        return Temperatures::wrong(QStringLiteral("The first temperature is above the last one."));
    const qint64 count = (last - first) / each + 1;
    if (count > MostRows)
        return Temperatures::wrong(TypedTexts::grouped(count) + " rows; there can be " +
                                   TypedTexts::grouped(MostRows) + " at most.");
    QStringList temperatures;
    for (qint64 at = first; at <= last; at += each)
        temperatures << temperatureText(at);
    return temperatures;
}

QVector<ValueColumn> ValueSheets::columns(const GradeValues &grade, const QVector<Property> &properties) {
    QVector<ValueColumn> columns;
    for (const Property &property : properties)
        columns += grade.columns(property);
    return columns;
}

SheetRow ValueSheets::row(const GradeValues &grade, const QVector<ValueColumn> &columns,
                          const QString &temperature) {
    SheetRow row{temperature, {}, {}};
    for (const ValueColumn &column : columns) {
        row.cells << grade.cell(column, temperature);
        row.own << grade.hasRow(column.property, temperature);
    }
    return row;
}

ValueSheet ValueSheets::sheet(const GradeValues &grade, const QVector<ValueColumn> &columns,
                              const QStringList &temperatures) {
    ValueSheet sheet{columns, {}};
    for (const QString &temperature : temperatures)
        sheet.rows << row(grade, columns, temperature);
    return sheet;
}
