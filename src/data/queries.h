// The statements that the windows and reports hand to the database engine.
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

/// A text goes into a statement as it stands, with no doubling of quotes: one that holds a single quote makes
/// a statement that the engine refuses.
namespace Queries {

// Reference lists
QString sqlAllStandards();
/// The first row is the newest date.
QString sqlLatestRevision();
QString sqlStandardForms(const QString &standard);
/// No row, with the columns of a material.
QString sqlNoMaterial();
/// The same after the list of selected materials was cleared by its button.
QString sqlNoMaterialCleared();
/// The source that the data controls start with: no row, with the columns of a material.
QString sqlInitialSelection();
/// `ids` must not be empty.
QString sqlSelectedMaterials(const QVector<int> &ids);
/// Of a table that nothing reads yet.
QString sqlCompatibleGroups();

// Material window; `table` is a table's name, which for a property table is its key
QString sqlStandardProdForms(int stID);
/// `prodFIDs` must not be empty.
QString sqlProdFormNames(const QVector<int> &prodFIDs);
QString sqlChemicalRows(const QString &standard, const QString &name, const QString &number);
QString sqlOtherElements(int matID, int stID);
/// `key` is "matID" with the table MechMatTable, "stID" with CreepPropTable.
QString sqlColumnDefinitions(const QString &table, const QString &key, int id);
/// Where the cells of "MechProp" and "CreepProp" stand.
QString cellTable(const QString &key);
QString sqlCellRows(const QString &table, int matID);
/// The cells of column `x`, then those of column `y` unless it is the same.
QString sqlGraphColumnRows(const QString &table, int matID, int x, int y);
QString sqlTemperatureRows(const QString &table, int matID);
QString sqlElevatedRows(const QString &table, int matID);
/// One column for each thickness.
QString sqlElevatedPivot(const QString &table, int matID);
QString sqlMaterialNotes(int matID, const QString &key);
/// No statement but a criterion for Recordset::FindFirst. `notID` is the decimal text of the note's number.
QString critTableNote(const QString &notID, const QString &key);
QString sqlAdditionalInfo(int matID);
QString sqlInfoTitles();

// Reports; they sort otherwise than the windows
QString sqlReportTemperatureRows(const QString &table, int matID);
QString sqlReportPivot(const QString &table, int matID);

// The index of appraisals, a database of its own
QString sqlPmaIndex();
QString sqlPmaSorted(const QString &column, bool ascending);
QString sqlPmaSearch(const QString &text);

} // namespace Queries
