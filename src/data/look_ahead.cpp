#include "data/look_ahead.h"

#include "data/queries.h"
#include "data/table_vocabulary.h"
#include "platform/dao/database.h"
#include "platform/runtime/runtime_error.h"

namespace {

/// Of any grade.
QStringList statements() {
    QStringList all = {Queries::sqlChemicalRows({}, {}, {}),
                       Queries::sqlOtherElements(0, 0),
                       Queries::sqlColumnDefinitions("MechMatTable", "matID", 0),
                       Queries::sqlColumnDefinitions("CreepPropTable", "stID", 0),
                       Queries::sqlCellRows(Queries::cellTable("MechProp"), 0),
                       Queries::sqlCellRows(Queries::cellTable("CreepProp"), 0),
                       Queries::sqlMaterialNotes(0, {}),
                       Queries::sqlAdditionalInfo(0)};
    for (int i = 0; i < TableVocabulary::TableCount; ++i)
        if (const TableVocabulary::Table &table = TableVocabulary::tableAt(i); !table.columns.empty())
            all << Queries::sqlTemperatureRows(QString::fromUtf16(table.key), 0);
    return all;
}

} // namespace

void expectTablesOfGrades(Database &database) {
    for (const QString &statement : statements()) {
        try {
            database.Expect(statement);
        } catch (const RuntimeError &) {
            // It is told when the table is wanted.
        }
    }
}
