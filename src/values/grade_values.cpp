#include "values/grade_values.h"

#include <limits>

#include "data/GradeTables.h"
#include "data/Material.h"
#include "data/table_vocabulary.h"
#include "design/design_headings.h"
#include "design/value_text.h"
#include "platform/runtime/conversions.h"
#include "platform/runtime/runtime_error.h"

namespace {

/// What stands for the column in a property: its field, its band's table, or the text of a creep column.
QStringList columnNames(const LoadedTable &table) {
    QStringList names{QString()};
    if (table.creep) {
        for (const QString &caption : table.creep->aCreepCaptions.mid(1))
            names << caption.section(QLatin1Char('\r'), 0, 0);
        return names;
    }
    for (qsizetype i = 1; i < table.columns.size(); ++i)
        names << (table.bands.isEmpty() ? table.columns[i].field : table.key);
    return names;
}

float celsius(const QString &text) {
    try {
        return CSng(text);
    } catch (const RuntimeError &) {
        return std::numeric_limits<float>::quiet_NaN();
    }
}

ValueSource valueSource(const LoadedTable &table) {
    ValueSource values{table.creep ? table.creep->aCreepData : *table.source,
                       table.temperatures,
                       {},
                       {table.bands},
                       columnNames(table)};
    for (int row = 1; row <= values.source.rowCount() && values.source.lastColumn() >= 0; ++row) {
        const QString &text = values.source.text(row, 0);
        values.celsius << celsius(text);
        if (table.creep) values.temperatures << text;
    }
    return values;
}

} // namespace

QString ValueCells::text() const {
    QStringList lines;
    for (const ValueCell &cell : cells)
        lines << (cells.size() > 1 && !cell.band.isEmpty() ? cell.band + ": " + cell.text : cell.text);
    return lines.join(QLatin1Char('\n'));
}

GradeValues::GradeValues(Database &database, const Grades::Grade &grade, const NumberFlags &flags)
    : m_grade(grade)
    , m_flags(flags) {
    const auto material = Grades::material(database, grade.id);
    GradeTables tables(database);
    for (const QString &key : TableVocabulary::designKeys()) {
        const LoadedTable table = tables.load(*material, key);
        if (material->TableHasData(key) && (table.creep || table.source)) m_tables[key] = valueSource(table);
    }
}

const ValueSource *GradeValues::source(const Property &property) const {
    const auto found = m_tables.find(property.key);
    return found == m_tables.end() ? nullptr : &found->second;
}

QVector<ValueColumn> GradeValues::columns(const Property &property, std::optional<double> thickness) const {
    QVector<ValueColumn> columns;
    const ValueSource *table = source(property);
    if (!table) return columns;
    const int only = thickness && !table->bands.isEmpty() ? table->bands.of(*thickness) : -1;
    for (int column = 1; column <= table->source.lastColumn(); ++column)
        if (table->columns.value(column) == property.column && (only < 0 || only == column))
            columns << ValueColumn{property, column, table->bands.heading(column)};
    return columns;
}

QString GradeValues::missing(const Property &property, std::optional<double> thickness) const {
    const ValueSource *table = source(property);
    if (table && !table->bands.isEmpty()) return table->bands.missing(thickness.value_or(0));
    return QStringLiteral("The grade has no such table.");
}

ValueCells GradeValues::at(const Property &property, const QString &temperature,
                           std::optional<double> thickness) const {
    const QVector<ValueColumn> wanted = columns(property, thickness);
    if (wanted.isEmpty()) return {{}, missing(property, thickness)};
    ValueCells cells;
    for (const ValueColumn &column : wanted) {
        const ValueCell each = cell(column, temperature);
        if (each.text.isEmpty())
            cells.reason = row(property.key, temperature).failure;
        else
            cells.cells << each;
    }
    return cells;
}

ValueCell GradeValues::cell(const ValueColumn &column, const QString &temperature) const {
    const QString text = row(column.property.key, temperature).texts.value(column.column - 1);
    return {column.band, text, ValueText::numberIn(text)};
}

bool GradeValues::hasRow(const Property &property, const QString &temperature) const {
    const ValueSource *table = source(property);
    return table &&
           table->celsius.contains(Interpolation::typedTemperature(temperature, m_flags.bCommaGroup).value);
}

const DesignRow &GradeValues::row(const QString &key, const QString &temperature) const {
    KeptRow &kept = m_rows[key];
    if (kept.temperature != temperature || temperature.isEmpty())
        kept = {temperature, DesignRow::of(m_tables.at(key).source,
                                           Interpolation::typedTemperature(temperature, m_flags.bCommaGroup),
                                           m_flags.bDecimalPoint)};
    return kept.row;
}
