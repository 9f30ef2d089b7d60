#include "velmar_values/commands.h"

#include <QDir>
#include <QJsonDocument>

#include "data/GradeTables.h"
#include "data/Material.h"
#include "data/table_vocabulary.h"
#include "exchange/calculix_card.h"
#include "exchange/database_texts.h"
#include "exchange/mapdl_card.h"
#include "exchange/taken_table.h"
#include "platform/runtime/runtime_error.h"
#include "platform/runtime/whole_file.h"
#include "velmar_values/grade_tables_text.h"
#include "velmar_values/value_commands.h"

using Commands::bytes;
using Commands::gradeOf;
using Commands::taken;

namespace {

using Format = CommandLine::Format;

QByteArray find(Database &database, const CommandLine &line) {
    const QVector<Grades::Grade> grades = Grades::find(database, line.criteria);
    if (grades.isEmpty()) throw NotFound("no grade found");
    if (!line.xlsx.isEmpty())
        return taken(database, line, {TakenTables::of(GradeTexts::sheet(grades), "Grades", {"id"})}, {});
    if (line.format != Format::Json) return bytes(GradeTexts::sheet(grades), line.format);
    QJsonArray list;
    for (const Grades::Grade &grade : grades)
        list << GradeTexts::fullJson(grade);
    return bytes(list);
}

QByteArray show(Database &database, const CommandLine &line) {
    ShownGrade shown{gradeOf(database, line.grades.first()), {}};
    const auto material = Grades::material(database, shown.grade.id);
    GradeTables tables(database);
    QStringList keys = line.tables;
    if (keys.isEmpty())
        for (int i = 0; i < TableVocabulary::TableCount; ++i)
            keys << TableVocabulary::GetShortTableName(i);
    for (const QString &key : keys)
        shown.tables << tables.load(*material, key);
    if (!line.xlsx.isEmpty()) {
        QVector<TakenTable> sheets;
        for (const LoadedTable &table : shown.tables)
            sheets << TakenTables::of(table);
        return taken(database, line, sheets, TakenTables::gradeFacts({shown.grade}));
    }
    if (line.format == Format::Json) return bytes(QJsonArray{GradeTexts::json(shown)});
    if (line.format == Format::Table) return GradeTexts::text(shown).toUtf8();
    return bytes(GradeTexts::sheet(shown), line.format);
}

QByteArray values(Database &database, const CommandLine &line) {
    const NumberFlags flags = NumberFlags::fromSystem();
    QVector<ValuedGrade> valued;
    QVector<Grades::Grade> grades;
    for (const QString &text : line.grades) {
        const Grades::Grade grade = gradeOf(database, text);
        grades << grade;
        const auto material = Grades::material(database, grade.id);
        GradeTables tables(database);
        DesignValues design;
        const bool hasValues =
            design.build(*material, [&](const QString &key) { design.take(tables.load(*material, key)); });
        for (const QString &at : line.temperatures) {
            if (hasValues) design.compute(at, flags);
            valued << ValuedGrade{grade, at, hasValues ? design.tables() : QVector<DesignTable>()};
        }
    }
    if (!line.xlsx.isEmpty()) {
        const QStringList values{"id", "at", "text", "value"};
        const QVector<TakenFact> facts =
            TakenTables::gradeFacts(grades) + QVector<TakenFact>{{"Temperature [°C]", line.temperatures}};
        return taken(database, line, {TakenTables::of(GradeTexts::sheet(valued), "Design values", values)},
                     facts);
    }
    if (line.format == Format::Table) return GradeTexts::text(valued).toUtf8();
    if (line.format != Format::Json) return bytes(GradeTexts::sheet(valued), line.format);
    QJsonArray list;
    for (const ValuedGrade &each : valued)
        list << GradeTexts::json(each);
    return bytes(list);
}

int bandOf(const CardSource &source, const CommandLine &line) {
    const QString &key = line.card.yieldKey;
    const QStringList bands = source.bands(key);
    if (bands.isEmpty()) return 0;
    if (!line.thickness)
        throw NotFound(key + " depends on the thickness; --thickness tells which of " + bands.join(", "));
    const int band = source.bandOf(key, *line.thickness);
    if (band == 0) throw NotFound("no thickness band of " + key + " holds it: " + bands.join(", "));
    return band;
}

QByteArray card(Database &database, const CommandLine &line) {
    const CardSource source = CardSource::read(database, gradeOf(database, line.grades.first()).id);
    CardChoice choice = line.card;
    choice.band = bandOf(source, line);
    const MaterialCard made = MaterialCard::of(source, choice);
    return (*line.solver == CommandLine::Solver::Calculix ? calculixCard(made) : mapdlCard(made)).toLatin1();
}

/// Either all of the texts are there, or an error has told which one is not.
QByteArray exportTexts(Database &database, const CommandLine &line) {
    const QDir folder(line.folder);
    if (!folder.exists() && !QDir().mkpath(line.folder))
        throw RuntimeError(75, RuntimeError::standardDescription(75) + ": '" + line.folder + '\'');
    for (const QString &table : DatabaseTexts::tables())
        writeWholeFile(folder.filePath(table + ".csv"), DatabaseTexts::written(database, table));
    return {};
}

} // namespace

QByteArray Commands::bytes(const QJsonArray &list) {
    return QJsonDocument(list).toJson(QJsonDocument::Indented);
}

QByteArray Commands::bytes(const Records::Sheet &sheet, Format format) {
    const auto kind = format == Format::Table ? Records::Format::Table
                      : format == Format::Csv ? Records::Format::Csv
                                              : Records::Format::Tsv;
    return Records::written(sheet, kind).toUtf8();
}

QByteArray Commands::taken(const Database &database, const CommandLine &line,
                           const QVector<TakenTable> &tables, const QVector<TakenFact> &facts) {
    TakenTables::save({tables, facts + TakenTables::databaseFacts(database)}, line.xlsx,
                      TakenTables::Format::Xlsx);
    return {};
}

Grades::Grade Commands::gradeOf(Database &database, const QString &text) {
    const QVector<Grades::Grade> grades = Grades::named(database, text);
    if (grades.size() == 1) return grades.first();
    if (grades.isEmpty()) throw NotFound("no grade '" + text + "'");
    QStringList several;
    for (const Grades::Grade &grade : grades)
        several << "#" + QString::number(grade.id) + " " + grade.name + " " + grade.number + " " +
                       grade.standard;
    throw NotFound("'" + text + "' fits several grades: " + several.join("; "));
}

Answer Commands::run(Database &database, const CommandLine &line) {
    switch (line.command) {
    case CommandLine::Command::Find:
        return line.conditions.isEmpty() ? Answer(find(database, line)) : ValueCommands::find(database, line);
    case CommandLine::Command::Properties:
        return ValueCommands::properties(database, line);
    case CommandLine::Command::Compare:
        return ValueCommands::compare(database, line);
    case CommandLine::Command::Sheet:
        return ValueCommands::sheet(database, line);
    case CommandLine::Command::Show:
        return show(database, line);
    case CommandLine::Command::Values:
        return values(database, line);
    case CommandLine::Command::Card:
        return card(database, line);
    default:
        return exportTexts(database, line);
    }
}
