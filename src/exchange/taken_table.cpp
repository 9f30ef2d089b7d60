#include "exchange/taken_table.h"

#include <QFileInfo>
#include <QRegularExpression>

#include "data/loaded_table.h"
#include "exchange/cell_number.h"
#include "platform/dao/database.h"
#include "platform/files/xlsx_workbook.h"
#include "platform/runtime/conversions.h"
#include "platform/runtime/regional_settings.h"
#include "platform/runtime/whole_file.h"

namespace {

using Row = QVector<XlsxCell>;

/// Some headings are the unit alone, because a formula stands for them on the screen.
TakenColumn columnOf(const TableColumn &column, const LoadedTable &table) {
    QString heading = column.heading.simplified();
    if (!column.unit.isEmpty()) heading = heading.remove(column.unit.simplified()).simplified();
    if (heading.isEmpty() && !column.unit.isEmpty()) heading = table.caption;
    return {heading, TakenTables::bareUnit(column.unit.simplified()), table.key == QLatin1String("Ref")};
}

QString oneLine(const TakenColumn &column) {
    if (column.unit.isEmpty()) return column.heading;
    return (column.heading + QStringLiteral(" [") + column.unit + QLatin1Char(']')).trimmed();
}

/// A worksheet's lines end with LF alone.
QString cellText(QString text) {
    static const QRegularExpression lineEnd(QStringLiteral("\r\n|\r"));
    return text.replace(lineEnd, QStringLiteral("\n"));
}

XlsxCell heading(const QString &text) {
    return {cellText(text), XlsxCell::Kind::Heading};
}

XlsxCell cellOf(const QString &text, bool isText) {
    const std::optional<CellNumber> number = isText ? std::nullopt : cellNumber(text);
    if (!number) return {cellText(text)};
    return {text, XlsxCell::Kind::Number, number->value(), number->decimals};
}

XlsxSheet worksheet(const TakenTable &table) {
    XlsxSheet sheet{table.title, {}};
    Row headings;
    Row units;
    bool hasUnits = false;
    for (const TakenColumn &column : table.columns) {
        headings << heading(column.heading);
        units << heading(column.unit);
        hasUnits = hasUnits || !column.unit.isEmpty();
    }
    if (!table.captionsAmongRows) sheet.rows << headings;
    if (hasUnits) sheet.rows << units;
    sheet.headingRows = static_cast<int>(sheet.rows.size());
    for (const QStringList &texts : table.rows) {
        Row row;
        for (qsizetype i = 0; i < texts.size(); ++i)
            row << cellOf(texts[i], table.columns[i].isText);
        sheet.rows << row;
    }
    return sheet;
}

XlsxSheet factSheet(const TakenBook &book) {
    XlsxSheet sheet{QStringLiteral("Information"), {}};
    const auto add = [&sheet](const QString &name, const QStringList &texts) {
        Row row{heading(name)};
        for (const QString &text : texts)
            row << XlsxCell{cellText(text)};
        sheet.rows << row;
    };
    for (const TakenFact &fact : book.facts)
        add(fact.name, fact.texts);
    add(QStringLiteral("Date"), {RegionalSettings::current().dateText(book.made)});
    for (const TakenTable &table : book.tables)
        if (!table.notes.isEmpty()) add(QStringLiteral("Notes"), {table.title, table.notes});
    return sheet;
}

} // namespace

TakenTable TakenTables::of(const LoadedTable &table) {
    TakenTable taken{table.caption, {}, {}};
    QVector<int> shown;
    for (int i = 0; i < table.columns.size(); ++i)
        if (!table.columns[i].hidden) shown << i;
    for (const int column : shown)
        taken.columns << columnOf(table.columns[column], table);
    const int last = table.noData.isEmpty() ? table.cells.UpperBound(1) : 0;
    for (int row = 1; row <= last; ++row) {
        QStringList texts;
        for (const int column : shown)
            texts << (column <= table.cells.UpperBound(2) ? CStr(table.cells.Get(row, column)) : QString());
        taken.rows << texts;
    }
    QStringList notes;
    if (!table.noData.isEmpty()) notes << table.noData.simplified();
    if (!table.others.isEmpty()) notes << QStringLiteral("Other Elements - ") + table.others;
    if (!table.notes.isEmpty()) notes << table.notes;
    taken.notes = notes.join(QLatin1Char('\n'));
    return taken;
}

TakenTable TakenTables::of(const Records::Sheet &sheet, const QString &title, const QStringList &values) {
    TakenTable taken{title, {}, sheet.rows};
    for (const QString &heading : sheet.headings)
        taken.columns << TakenColumn{heading, {}, !values.contains(heading)};
    return taken;
}

QVector<TakenFact> TakenTables::gradeFacts(const QVector<Grades::Grade> &grades) {
    QVector<TakenFact> facts{{QStringLiteral("Grade"), {}}, {QStringLiteral("Standard"), {}}};
    for (const Grades::Grade &grade : grades) {
        facts[0].texts << (grade.name + QLatin1Char(' ') + grade.number).trimmed();
        facts[1].texts << grade.standard;
    }
    return facts;
}

QVector<TakenFact> TakenTables::databaseFacts(const Database &database) {
    const QDateTime date(QFileInfo(database.Name()).lastModified().date(), QTime(0, 0));
    return {{QStringLiteral("Database"), {database.Name()}},
            {QStringLiteral("Date of the database"), {RegionalSettings::current().dateText(date)}}};
}

QString TakenTables::bareUnit(const QString &unit) {
    const bool inBrackets = unit.startsWith(QLatin1Char('[')) && unit.endsWith(QLatin1Char(']'));
    return inBrackets ? unit.mid(1).chopped(1) : unit;
}

Records::Sheet TakenTables::records(const TakenTable &table) {
    Records::Sheet sheet{{}, table.rows};
    if (table.captionsAmongRows) return sheet;
    for (const TakenColumn &column : table.columns)
        sheet.headings << oneLine(column);
    return sheet;
}

QByteArray TakenTables::csv(const TakenTable &table) {
    return Records::written(records(table), Records::Format::Csv, QStringLiteral("\r\n")).toUtf8();
}

QByteArray TakenTables::tsv(const TakenTable &table) {
    return Records::written(records(table), Records::Format::Tsv).toUtf8();
}

QByteArray TakenTables::xlsx(const TakenBook &book) {
    XlsxWorkbook workbook{book.tables.size() == 1 ? book.tables.first().title : QString(), book.made, {}};
    for (const TakenTable &table : book.tables)
        if (!table.rows.isEmpty()) workbook.sheets << worksheet(table);
    workbook.sheets << factSheet(book);
    return workbook.bytes();
}

TakenTables::Format TakenTables::formatOf(const QString &path) {
    const QString ending = QFileInfo(path).suffix().toLower();
    if (ending == QLatin1String("csv")) return Format::Csv;
    return ending == QLatin1String("tsv") || ending == QLatin1String("txt") ? Format::Tsv : Format::Xlsx;
}

void TakenTables::save(const TakenBook &book, const QString &path, Format format) {
    writeWholeFile(path, format == Format::Xlsx  ? xlsx(book)
                         : format == Format::Csv ? csv(book.tables.first())
                                                 : tsv(book.tables.first()));
}
