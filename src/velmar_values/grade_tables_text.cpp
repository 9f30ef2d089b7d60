#include "velmar_values/grade_tables_text.h"

#include <QJsonArray>

#include "data/table_vocabulary.h"
#include "design/value_text.h"
#include "platform/runtime/conversions.h"
#include "platform/runtime/regional_settings.h"

namespace {

QString oneLine(const QString &heading) {
    return heading.simplified();
}

QString dateText(const QDateTime &date) {
    return RegionalSettings::current().dateText(date);
}

QStringList identity(const Grades::Grade &grade) {
    return {QString::number(grade.id), grade.name, grade.number, grade.standard};
}

const QStringList IdentityHeadings{"id", "name", "number", "standard"};

QString title(const Grades::Grade &grade) {
    return grade.name + "  " + grade.number + "  " + grade.standard + "  #" + QString::number(grade.id);
}

QVector<int> shownColumns(const LoadedTable &table) {
    QVector<int> columns;
    for (int i = 0; i < table.columns.size(); ++i)
        if (!table.columns[i].hidden) columns << i;
    return columns;
}

/// A table without data shows none of its rows, were there one to fill a grid.
int lastRow(const LoadedTable &table) {
    return table.noData.isEmpty() ? table.cells.UpperBound(1) : 0;
}

QString cell(const LoadedTable &table, int row, int column) {
    return column <= table.cells.UpperBound(2) ? CStr(table.cells.Get(row, column)) : QString();
}

/// No line of dashes above a table whose headings are all empty.
QString text(const LoadedTable &table) {
    QString text = table.caption + QLatin1Char('\n');
    if (!table.noData.isEmpty()) return text + table.noData.simplified() + QLatin1Char('\n');
    Records::Sheet sheet;
    for (const int column : shownColumns(table))
        sheet.headings << table.columns[column].heading;
    for (int row = 1; row <= lastRow(table); ++row) {
        sheet.rows << QStringList();
        for (const int column : shownColumns(table))
            sheet.rows.last() << cell(table, row, column);
    }
    if (!sheet.headings.isEmpty()) text += Records::written(sheet, Records::Format::Table);
    if (!table.others.isEmpty()) text += "Other Elements - " + table.others + QLatin1Char('\n');
    if (!table.notes.isEmpty()) text += QString(table.notes).remove(QLatin1Char('\r')) + QLatin1Char('\n');
    return text;
}

} // namespace

QJsonObject GradeTexts::json(const Grades::Grade &grade) {
    return {{"id", grade.id}, {"name", grade.name}, {"number", grade.number}, {"standard", grade.standard}};
}

QJsonObject GradeTexts::fullJson(const Grades::Grade &grade) {
    QJsonObject object = json(grade);
    object.insert("description", grade.description);
    object.insert("group", grade.group);
    object.insert("revision", grade.revision.date().toString(Qt::ISODate));
    return object;
}

QJsonObject GradeTexts::json(const ShownGrade &shown) {
    QJsonArray tables;
    for (const LoadedTable &table : shown.tables) {
        QJsonArray columns;
        for (const int column : shownColumns(table))
            columns << QJsonObject{{"heading", table.columns[column].heading},
                                   {"unit", table.columns[column].unit}};
        QJsonArray rows;
        for (int row = 1; row <= lastRow(table); ++row) {
            QJsonArray cells;
            for (const int column : shownColumns(table))
                cells << cell(table, row, column);
            rows << cells;
        }
        tables << QJsonObject{{"key", table.key}, {"caption", table.caption}, {"columns", columns},
                              {"rows", rows},     {"notes", table.notes},     {"others", table.others}};
    }
    QJsonObject object = json(shown.grade);
    object.insert("tables", tables);
    return object;
}

QJsonObject GradeTexts::json(const ValuedGrade &valued) {
    QJsonArray tables;
    for (const DesignTable &table : valued.tables) {
        QJsonArray cells;
        for (const DesignCell &cell : table.cells) {
            const std::optional<double> number = ValueText::numberIn(cell.text);
            cells << QJsonObject{{"heading", cell.heading},
                                 {"unit", cell.unit},
                                 {"text", cell.text},
                                 {"value", number ? QJsonValue(*number) : QJsonValue()}};
        }
        tables << QJsonObject{{"key", table.key}, {"cells", cells}};
    }
    QJsonObject object = json(valued.grade);
    object.insert("at", *ValueText::numberIn(valued.at));
    object.insert("tables", tables);
    return object;
}

Records::Sheet GradeTexts::sheet(const QVector<Grades::Grade> &grades) {
    Records::Sheet sheet{IdentityHeadings + QStringList{"description", "group", "revision"}, {}};
    for (const Grades::Grade &grade : grades)
        sheet.rows << identity(grade) + QStringList{grade.description, grade.group, dateText(grade.revision)};
    return sheet;
}

Records::Sheet GradeTexts::sheet(const ShownGrade &shown) {
    Records::Sheet sheet{IdentityHeadings + QStringList{"table", "row", "heading", "unit", "text"}, {}};
    for (const LoadedTable &table : shown.tables) {
        const QStringList first = identity(shown.grade) + QStringList{table.key};
        for (int row = 1; row <= lastRow(table); ++row)
            for (const int column : shownColumns(table))
                sheet.rows << first + QStringList{QString::number(row),
                                                  oneLine(table.columns[column].heading),
                                                  table.columns[column].unit, cell(table, row, column)};
        for (const auto &[heading, running] :
             {std::pair("other elements", table.others), std::pair("notes", table.notes)})
            if (!running.isEmpty()) sheet.rows << first + QStringList{"", heading, "", running};
    }
    return sheet;
}

Records::Sheet GradeTexts::sheet(const QVector<ValuedGrade> &values) {
    Records::Sheet sheet{IdentityHeadings + QStringList{"at", "table", "heading", "unit", "text", "value"},
                         {}};
    for (const ValuedGrade &valued : values)
        for (const DesignTable &table : valued.tables)
            for (const DesignCell &cell : table.cells) {
                const std::optional<double> number = ValueText::numberIn(cell.text);
                sheet.rows << identity(valued.grade) +
                                  QStringList{valued.at, table.key, oneLine(cell.heading),
                                              cell.unit, cell.text, number ? CStr(*number) : QString()};
            }
    return sheet;
}

QString GradeTexts::text(const ShownGrade &shown) {
    QString text = title(shown.grade) + QLatin1Char('\n');
    for (const LoadedTable &table : shown.tables)
        text += QLatin1Char('\n') + ::text(table);
    return text;
}

QString GradeTexts::text(const QVector<ValuedGrade> &values) {
    QStringList parts;
    for (const ValuedGrade &valued : values) {
        Records::Sheet sheet{{"Table", "", "at " + valued.at + " °C"}, {}};
        for (const DesignTable &table : valued.tables)
            for (const DesignCell &cell : table.cells)
                sheet.rows << QStringList{oneLine(table.label), oneLine(cell.heading), cell.text};
        parts << title(valued.grade) + QLatin1Char('\n') + Records::written(sheet, Records::Format::Table);
    }
    return parts.join(QLatin1Char('\n'));
}
