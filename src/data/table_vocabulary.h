// The property tables' keys, names and captions.
#pragma once

#include <QString>

/// A table is known by a short key ("ChemComp", "Rp02") and by an index from 0 to 13. The order of the index
/// is that of batch printing and of the per-table slots of a material; the View menu has another.
namespace TableVocabulary {

constexpr int TableCount = 14;

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
