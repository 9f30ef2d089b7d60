// A table that a user takes along: what it holds and what stands over it, for the clipboard and for files.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QStringList>
#include <QVector>

#include "data/grades.h"
#include "exchange/records.h"

class Database;
struct LoadedTable;

struct TakenColumn {
    /// In one line, without the unit.
    QString heading;
    /// Without brackets; empty without one.
    QString unit = {};
    /// Names, numbers of materials and the like are texts, even if they look like numbers.
    bool isText = false;
};

struct TakenTable {
    QString title;
    QVector<TakenColumn> columns;
    /// As many texts a row as there are columns, each as it is shown.
    QList<QStringList> rows;
    /// Each on a line of its own.
    QString notes = {};
    /// How many columns say what a row is: where not all have room, each part of the table begins with them.
    int keyColumns = 1;
    /// Captions are rows among the others, and the columns have no heading.
    bool captionsAmongRows = false;
};

/// What a table does not tell itself: "Grade", "Temperature". Several texts stand beside each other.
struct TakenFact {
    QString name;
    QStringList texts;
};

/// Tables that go into one file together.
struct TakenBook {
    QVector<TakenTable> tables;
    QVector<TakenFact> facts;
    QDateTime made = QDateTime::currentDateTime();
};

namespace TakenTables {

enum class Format { Csv, Tsv, Xlsx };

/// The columns that are shown, and the rows as they stand in the window.
TakenTable of(const LoadedTable &table);
/// `values` are the headings of the columns whose undecorated numbers are numbers.
TakenTable of(const Records::Sheet &sheet, const QString &title, const QStringList &values);

/// Grade and standard of each.
QVector<TakenFact> gradeFacts(const QVector<Grades::Grade> &grades);
/// The database's file and the date of that file.
QVector<TakenFact> databaseFacts(const Database &database);

/// Without the brackets that some units stand in.
QString bareUnit(const QString &unit);
/// Headings with their units in square brackets, if the table has any, and the rows.
Records::Sheet records(const TakenTable &table);

/// A line of headings with their units in square brackets, then the rows; lines end with CR LF, as RFC 4180
/// has it. Texts are UTF-8.
QByteArray csv(const TakenTable &table);
/// The same with tabs, LF, and blanks in the place of tabs and line ends: what the clipboard takes.
QByteArray tsv(const TakenTable &table);
/// A worksheet a table that has rows: headings, units where there are any, rows. Undecorated numbers are
/// numbers with their decimals, everything else is text. The last worksheet holds the facts, the date, and
/// the tables' notes. Raises what XlsxWorkbook::bytes() raises.
QByteArray xlsx(const TakenBook &book);

/// By the ending of the file's name, in any capitals; XLSX for any other.
Format formatOf(const QString &path);
/// Writes the file whole or not at all; CSV and TSV take the first table. Raises what xlsx() and
/// writeWholeFile() raise.
void save(const TakenBook &book, const QString &path, Format format);

} // namespace TakenTables
