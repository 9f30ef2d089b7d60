#include "data/table_notes.h"

#include "data/cell_values.h"
#include "data/loaded_table.h"
#include "data/Material.h"
#include "data/queries.h"
#include "data/table_vocabulary.h"
#include "platform/dao/database.h"
#include "platform/dao/recordset.h"

void readNotes(Database &database, Material &material, LoadedTable &table) {
    const auto dtaNotes = database.OpenRecordset(Queries::sqlMaterialNotes(material.ID(), table.key));
    const auto dtaTableNotes = database.OpenRecordset(QStringLiteral("TableNotes"));
    table.hasNotes = !dtaNotes->Eof();
    if (!table.hasNotes) return;

    QStringList notes;
    for (; !dtaNotes->Eof(); dtaNotes->MoveNext()) {
        dtaTableNotes->FindFirst(Queries::critTableNote(cellText(dtaNotes->Fields("notID")), table.key));
        // A note without a text of its own repeats the one found before: with nothing in its place the lines
        // would no longer be as many as the markers.
        notes << cellText(dtaTableNotes->Fields("notTxt"));
    }
    table.notes = notes.join(LineEnd);
    material.setTableNotes(TableVocabulary::GetTableIndex(table.key), table.notes);
}
