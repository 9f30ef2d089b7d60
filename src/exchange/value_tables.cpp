#include "exchange/value_tables.h"

#include <algorithm>

#include "platform/runtime/conversions.h"

namespace {

const QString Mark = QStringLiteral("*");

QString cellOf(const XArrayDB &points, int row, int column) {
    const QVariant cell = points.Get(row, column);
    return IsNull(cell) ? QString() : CStr(cell);
}

} // namespace

QString ValueTables::title(const Grades::Grade &grade) {
    return QStringList{grade.name, grade.number, grade.standard}.join(QLatin1Char(' '));
}

QString ValueTables::title(const ValueColumn &column) {
    return column.band.isEmpty() ? column.property.label
                                 : column.property.label + QLatin1Char(' ') + column.band;
}

TakenTable ValueTables::comparison(const QVector<Grades::Grade> &grades, const QVector<ComparisonRow> &rows) {
    TakenTable table{QStringLiteral("Comparison"),
                     {{QStringLiteral("Property"), {}, true}, {QStringLiteral("Unit"), {}, true}},
                     {}};
    table.keyColumns = 2;
    for (const Grades::Grade &grade : grades)
        table.columns << TakenColumn{title(grade)};
    for (const ComparisonRow &row : rows) {
        QStringList texts{row.property.label, TakenTables::bareUnit(row.property.unit)};
        for (const ValueCells &cells : row.cells)
            texts << cells.text();
        table.rows << texts;
    }
    return table;
}

TakenTable ValueTables::composition(const QVector<Grades::Grade> &grades,
                                    const QVector<CompositionRow> &rows) {
    TakenTable table{QStringLiteral("Composition"), {{QStringLiteral("Element"), {}, true}}, {}};
    for (const Grades::Grade &grade : grades)
        for (const char *limit : {" min", " max"})
            table.columns << TakenColumn{title(grade) + QLatin1String(limit)};
    table.columns << TakenColumn{QStringLiteral("Differs"), {}, true};
    for (const CompositionRow &row : rows) {
        QStringList texts{row.element};
        for (const ElementLimits &limits : row.cells)
            texts << limits.min << limits.max;
        table.rows << texts + QStringList{row.anyDiffers() ? Mark : QString()};
    }
    return table;
}

TakenTable ValueTables::curves(const ComparisonChart &chart, const Property &property) {
    TakenTable table{property.label, {}, {}};
    for (const QString &legend : chart.legends)
        table.columns << TakenColumn{QStringLiteral("Temperature"), QStringLiteral("°C")}
                      << TakenColumn{legend, TakenTables::bareUnit(property.unit)};
    const int columns = static_cast<int>(table.columns.size());
    for (int row = 1; columns > 0 && row <= chart.points.UpperBound(1); ++row) {
        QStringList texts;
        for (int column = 0; column < columns; ++column)
            texts << cellOf(chart.points, row, column);
        table.rows << texts;
    }
    return table;
}

TakenTable ValueTables::sheet(const ValueSheet &sheet) {
    TakenTable table{
        QStringLiteral("Values over temperature"),
        {{QStringLiteral("Temperature"), QStringLiteral("°C")}, {QStringLiteral("Own row"), {}, true}},
        {}};
    table.keyColumns = 2;
    for (const ValueColumn &column : sheet.columns)
        table.columns << TakenColumn{title(column), TakenTables::bareUnit(column.property.unit)};
    for (const SheetRow &row : sheet.rows) {
        QStringList texts{row.temperature, row.anyOwn() ? Mark : QString()};
        for (const ValueCell &cell : row.cells)
            texts << cell.text;
        table.rows << texts;
    }
    return table;
}

TakenTable ValueTables::designValues(const DesignValues &values) {
    const XArrayDB &cells = *values.xDesignDB;
    TakenTable table{QStringLiteral("Design values"), {}, {}};
    table.captionsAmongRows = true;
    qsizetype used = 0;
    for (int row = cells.LowerBound(1); row <= cells.UpperBound(1); ++row) {
        const bool captions = (row - cells.LowerBound(1)) % DesignValues::RowsPerTable == 0;
        QStringList texts;
        for (int column = 0; column <= cells.UpperBound(2); ++column) {
            const QString text = cellOf(cells, row, column);
            texts << (captions ? text.simplified() : text);
            if (!text.isEmpty()) used = std::max(used, texts.size());
        }
        table.rows << texts;
    }
    for (QStringList &row : table.rows)
        row.resize(used);
    table.columns.resize(used);
    return table;
}

QVector<TakenFact> ValueTables::atFacts(const QString &temperature, std::optional<double> thickness) {
    QVector<TakenFact> facts;
    if (!temperature.isEmpty()) facts << TakenFact{QStringLiteral("Temperature [°C]"), {temperature}};
    if (thickness) facts << TakenFact{QStringLiteral("Thickness [mm]"), {CStr(*thickness)}};
    return facts;
}
