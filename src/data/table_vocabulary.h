// What a table is: one row for each, which all others look up.
#pragma once

#include <span>

#include <QString>
#include <QStringList>

/// A table is known by a short key ("ChemComp", "Rp02") and by an index from 0 to 13. The order of the index
/// is that of batch printing and of the per-table slots of a material; the View menu has another.
namespace TableVocabulary {

constexpr int TableCount = 14;

enum class Kind {
    References,
    /// Its columns are rows of the database.
    Unbound,
    /// Over temperature; the minimum values at elevated temperature may have thickness bands.
    Impact,
    Elevated,
    Physical,
    /// A running text.
    Information
};

/// A column beside the temperature. A table with thickness bands has others.
struct Column {
    const char16_t *field;
    /// In three lines.
    const char16_t *heading;
    /// As the heading tells it.
    const char16_t *unit;
    /// The formula that stands for the heading on screen and paper, by its name among the pictures.
    const char16_t *picture;
};

struct Table {
    const char16_t *key;
    const char16_t *name;
    /// The label of its row in the design values, and where it has a column of its own key, that one's
    /// heading.
    const char16_t *caption;
    Kind kind;
    /// Its place below the View menu: "View", "Mech" or "Phys", and the entry. The three elevated tables
    /// share one.
    const char16_t *menuGroup;
    int menuIndex;
    /// The StatusNumber of the message when the menu shows it.
    int status;
    /// The page's symbol among the main window's pictures.
    int symbol;
    /// Of the tables over temperature, empty for the others.
    std::span<const Column> columns;
    /// Of its graph; nullptr for a table without a graph over temperature.
    const char16_t *yAxisTitle;
    /// In the design values it is labelled by its key and not by its caption.
    bool designByKey;
    /// The caption of its single column in the design values; nullptr where its headings serve.
    const char16_t *designUnit;
    /// What it is called where the tables of a report are chosen.
    const char16_t *reportChoice;
};

/// Raises 9 for an index outside 0 to 13.
const Table &tableAt(int index);
/// Compares exactly. nullptr for a key that is not in the list, such as "Design".
const Table *find(const QString &key);

/// The tables that may have design values, in the order of these.
const QStringList &designKeys();

/// The long name. Raises 9 for an index outside 0 to 13.
QString GetTableName(int index);
/// The key. Raises 9 for an index outside 0 to 13.
QString GetShortTableName(int index);
/// Compares exactly. 0, the index of "Ref", for a key that is not in the list, such as "Design".
int GetTableIndex(const QString &key);
/// The label of a row of design values and of a chart's axis, in three lines; empty for a table without one
/// and for an unknown key.
QString GetCaption(const QString &key);

/// Its columns are rows of the database: composition, room temperature, creep.
bool isUnbound(const QString &key);
/// One of the three minimum values at elevated temperature, which may have thickness bands.
bool isElevated(const QString &key);

} // namespace TableVocabulary
