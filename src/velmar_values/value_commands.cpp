#include "velmar_values/value_commands.h"

#include <QJsonDocument>
#include <QJsonObject>

#include "design/value_text.h"
#include "exchange/value_tables.h"
#include "platform/runtime/conversions.h"
#include "values/comparison.h"
#include "values/condition_text.h"
#include "values/value_sheet.h"
#include "velmar_values/grade_tables_text.h"

using Commands::bytes;
using Commands::gradeOf;
using Commands::taken;

namespace {

using Format = CommandLine::Format;

QByteArray bytes(const QJsonArray &columns, const QJsonArray &rows) {
    return QJsonDocument(QJsonObject{{"columns", columns}, {"rows", rows}}).toJson(QJsonDocument::Indented);
}

QJsonValue numberOrNull(const std::optional<double> &number) {
    return number ? QJsonValue(*number) : QJsonValue();
}

QJsonObject json(const QString &text) {
    return {{"text", text}, {"value", numberOrNull(ValueText::numberIn(text))}};
}

QJsonObject plainText(const QString &text) {
    return {{"text", text}, {"value", QJsonValue()}};
}

QJsonObject json(const ValueCell &cell) {
    QJsonObject object{{"text", cell.text}, {"value", numberOrNull(cell.value)}};
    if (!cell.band.isEmpty()) object.insert("band", cell.band);
    return object;
}

/// Of several bands each has a value of its own, and the cell none.
QJsonObject json(const ValueCells &cells) {
    if (cells.cells.size() == 1) return json(cells.cells.first());
    QJsonObject object = plainText(cells.text());
    if (!cells.reason.isEmpty()) object.insert("reason", cells.reason);
    QJsonArray bands;
    for (const ValueCell &cell : cells.cells)
        bands << json(cell);
    if (!bands.isEmpty()) object.insert("bands", bands);
    return object;
}

QString title(const ValueColumn &column) {
    QString title = column.property.name();
    if (!column.band.isEmpty()) title += " " + column.band;
    return column.property.unit.isEmpty() ? title : title + " " + column.property.unit;
}

QByteArray json(const ValueSheet &sheet) {
    QJsonArray columns{QJsonObject{{"heading", "Temperature"}, {"unit", "[°C]"}}};
    for (const ValueColumn &column : sheet.columns)
        columns << QJsonObject{{"heading", column.property.label},
                               {"property", column.property.name()},
                               {"band", column.band},
                               {"unit", column.property.unit}};
    QJsonArray rows;
    for (const SheetRow &row : sheet.rows) {
        QJsonObject temperature = json(row.temperature);
        temperature.insert("own", row.anyOwn());
        QJsonArray cells{temperature};
        for (const ValueCell &cell : row.cells)
            cells << json(cell);
        rows << cells;
    }
    return bytes(columns, rows);
}

Records::Sheet records(const ValueSheet &sheet) {
    Records::Sheet records{{"Temperature [°C]", "own"}, {}};
    for (const ValueColumn &column : sheet.columns)
        records.headings << title(column);
    for (const SheetRow &row : sheet.rows) {
        QStringList cells{row.temperature, row.anyOwn() ? "*" : ""};
        for (const ValueCell &cell : row.cells)
            cells << cell.text;
        records.rows << cells;
    }
    return records;
}

QByteArray json(const QVector<GradeComposition> &grades, const QVector<CompositionRow> &elements) {
    QJsonArray columns{QJsonObject{{"heading", "element"}}};
    for (const GradeComposition &composition : grades)
        for (const char *limit : {"min", "max"}) {
            QJsonObject column = GradeTexts::json(composition.grade);
            column.insert("limit", limit);
            columns << column;
        }
    const auto cell = [](const CompositionRow &row, const QString &text, bool differs) {
        QJsonObject object = row.isText ? plainText(text) : json(text);
        object.insert("differs", differs);
        return object;
    };
    QJsonArray rows;
    for (const CompositionRow &element : elements) {
        QJsonArray cells{plainText(element.element)};
        for (qsizetype i = 0; i < element.cells.size(); ++i)
            cells << cell(element, element.cells[i].min, element.minDiffers(i))
                  << cell(element, element.cells[i].max, element.maxDiffers(i));
        rows << cells;
    }
    return bytes(columns, rows);
}

Answer compareComposition(Database &database, const CommandLine &line) {
    QVector<Grades::Grade> grades;
    QVector<GradeComposition> compositions;
    for (const QString &text : line.grades) {
        grades << gradeOf(database, text);
        compositions << GradeComposition::load(database, grades.last());
    }
    const QVector<CompositionRow> rows = compareCompositions(compositions);
    if (rows.isEmpty()) throw NotFound("none of the grades has a composition");
    const TakenTable table = ValueTables::composition(grades, rows);
    if (!line.xlsx.isEmpty()) return taken(database, line, {table}, {});
    return line.format == Format::Json ? json(compositions, rows)
                                       : bytes(TakenTables::records(table), line.format);
}

/// The conditions and what was found by them.
struct Search {
    ValueSearch values;
    ValueQuery query;
    ValueResult result;

    int count() const { return static_cast<int>(result.grades.size()); }
    const Grades::Grade &grade(int place) const {
        return values.grades()[result.grades[static_cast<std::size_t>(place)]];
    }
    FoundValue found(int place, int condition) const { return values.found(query, result, place, condition); }
};

QJsonObject json(const Search &search, int place) {
    QJsonArray values;
    for (int i = 0; i < search.query.conditions.size(); ++i) {
        const ValueCondition &condition = search.query.conditions[i];
        const FoundValue found = search.found(place, i);
        values << QJsonObject{{"property", condition.property.name()},
                              {"at", *ValueText::numberIn(condition.temperature)},
                              {"thickness", numberOrNull(condition.thickness)},
                              {"band", found.band},
                              {"text", found.text},
                              {"value", found.number}};
    }
    QJsonObject object = GradeTexts::fullJson(search.grade(place));
    object.insert("values", values);
    return object;
}

/// People do not want the number once more.
Records::Sheet records(const Search &search, bool withNumbers) {
    Records::Sheet records{{"id", "name", "number", "standard", "group"}, {}};
    for (const ValueCondition &condition : search.query.conditions) {
        QString heading = condition.property.name() + " at " + condition.temperature;
        if (condition.thickness) heading += " thickness " + CStr(*condition.thickness);
        records.headings << heading + " band" << heading + " " + condition.property.unit;
        if (withNumbers) records.headings << heading + " value";
    }
    for (int place = 0; place < search.count(); ++place) {
        const Grades::Grade &grade = search.grade(place);
        QStringList row{QString::number(grade.id), grade.name, grade.number, grade.standard, grade.group};
        for (int i = 0; i < search.query.conditions.size(); ++i) {
            const FoundValue found = search.found(place, i);
            row << found.band << found.text;
            if (withNumbers) row << CStr(found.number);
        }
        records.rows << row;
    }
    return records;
}

} // namespace

Answer ValueCommands::properties(Database &database, const CommandLine &line) {
    Records::Sheet sheet{{"property", "heading", "unit"}, {}};
    QJsonArray list;
    for (const Property &property : Properties::all(database)) {
        sheet.rows << QStringList{property.name(), property.label, property.unit};
        list << QJsonObject{
            {"property", property.name()}, {"heading", property.label}, {"unit", property.unit}};
    }
    if (!line.xlsx.isEmpty()) return taken(database, line, {TakenTables::of(sheet, "Properties", {})}, {});
    return line.format == Format::Json ? bytes(list) : bytes(sheet, line.format);
}

Answer ValueCommands::compare(Database &database, const CommandLine &line) {
    if (line.composition) return compareComposition(database, line);
    ComparedGrades grades;
    Records::Sheet sheet{{"property", "heading", "unit"}, {}};
    QJsonArray columns{QJsonObject{{"heading", "property"}}, QJsonObject{{"heading", "heading"}},
                       QJsonObject{{"heading", "unit"}}};
    for (const QString &text : line.grades) {
        grades << std::make_shared<GradeValues>(database, gradeOf(database, text));
        sheet.headings << ValueTables::title(grades.last()->grade());
        columns << GradeTexts::json(grades.last()->grade());
    }
    QJsonArray rows;
    for (const ComparisonRow &row :
         Comparison::rows(grades, Properties::all(database), line.temperatures.first(), line.thickness)) {
        const Property &property = row.property;
        sheet.rows << QStringList{property.name(), property.label, property.unit};
        QJsonArray cells{plainText(property.name()), plainText(property.label), plainText(property.unit)};
        for (const ValueCells &each : row.cells) {
            sheet.rows.last() << each.text();
            cells << json(each);
        }
        rows << cells;
    }
    if (!line.xlsx.isEmpty())
        return taken(database, line, {TakenTables::of(sheet, "Comparison", sheet.headings.mid(3))},
                     ValueTables::atFacts(line.temperatures.first(), line.thickness));
    return line.format == Format::Json ? bytes(columns, rows) : bytes(sheet, line.format);
}

Answer ValueCommands::find(Database &database, const CommandLine &line) {
    Search search{ValueSearch(database), {line.criteria, {}}, {}};
    const QVector<Property> properties = Properties::all(database);
    for (const QString &text : line.conditions)
        search.query.conditions << understood(ConditionText::read(text, properties));
    for (const ValueCondition &condition : std::as_const(search.query.conditions))
        search.values.read(condition.property.key);
    search.result = search.values.find(search.query);
    const QString summary = search.values.summary(search.query, search.result);
    if (search.count() == 0) throw NotFound(summary);
    if (!line.xlsx.isEmpty()) {
        const Records::Sheet found = records(search, false);
        return {taken(database, line, {TakenTables::of(found, "Grades", found.headings.mid(5))},
                      {{"Conditions", line.conditions}, {"Found", {summary}}}),
                summary};
    }
    if (line.format != Format::Json)
        return {bytes(records(search, line.format != Format::Table), line.format), summary};
    QJsonArray list;
    for (int place = 0; place < search.count(); ++place)
        list << json(search, place);
    return {bytes(list), summary};
}

Answer ValueCommands::sheet(Database &database, const CommandLine &line) {
    const QVector<Property> all = Properties::all(database);
    QVector<Property> wanted;
    for (const QString &name : line.properties)
        wanted << understood(Properties::named(all, name));
    const GradeValues grade(database, gradeOf(database, line.grades.first()));
    const QVector<ValueColumn> columns = ValueSheets::columns(grade, wanted.isEmpty() ? all : wanted);
    if (columns.isEmpty()) throw NotFound("the grade has no such table");
    const ValueSheet sheet = ValueSheets::sheet(
        grade, columns, understood(ValueSheets::temperatures(line.from, line.to, line.step)));
    if (!line.xlsx.isEmpty()) {
        const Records::Sheet shown = records(sheet);
        return taken(database, line, {TakenTables::of(shown, "Values over temperature", shown.headings)},
                     TakenTables::gradeFacts({grade.grade()}));
    }
    return line.format == Format::Json ? json(sheet) : bytes(records(sheet), line.format);
}
