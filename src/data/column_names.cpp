#include "data/column_names.h"

#include "data/modDBase.h"
#include "data/unbound_columns.h"
#include "platform/dao/database.h"
#include "platform/dao/recordset.h"

namespace {

QString GetColumnText(Database &database, int colID) {
    const auto dtaColumns = database.OpenRecordset(QStringLiteral("Columns"));
    return modDBase::GetText(*dtaColumns, colID, "colID", "colTxt");
}

/// The text finds the unit, and of two columns of the same text the first one's unit serves both: databases
/// were made with that in mind, and by the number the second would show a unit that was never looked at.
int GetUnitID(Database &database, const QString &colTxt) {
    const auto dtaColumns = database.OpenRecordset(QStringLiteral("Columns"));
    return modDBase::GetID(*dtaColumns, colTxt, "colTxt", "unitID");
}

QString GetUnitText(const Recordset &units, int unitID) {
    return modDBase::GetText(units, unitID, "unitID", "unitTxt");
}

} // namespace

ColumnName columnName(Database &database, const Recordset &units, int colID) {
    const QString text = GetColumnText(database, colID);
    return {text, shownUnit(GetUnitText(units, GetUnitID(database, text)))};
}
