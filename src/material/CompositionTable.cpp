#include "material/CompositionTable.h"

#include "data/cell_values.h"
#include "data/Material.h"
#include "data/queries.h"
#include "data/table_vocabulary.h"
#include "material/composition.h"
#include "material/MaterialSources.h"
#include "material/NotesPanel.h"
#include "material/UnboundGrid.h"
#include "platform/dao/recordset.h"
#include "platform/forms/tdb_grid.h"

namespace {
const QString Key = QStringLiteral("ChemComp");
}

CompositionTable::CompositionTable(UnboundGrid &table, DataControl &dtaTable, DataControl &dtaOther,
                                   NotesPanel &notes)
    : m_table(table)
    , m_dtaTable(dtaTable)
    , m_dtaOther(dtaOther)
    , m_notes(notes) {}

void CompositionTable::LoadChemical(Material &material) {
    m_table.mTableArray = std::make_shared<XArrayDB>();
    MaterialSources::Run(m_dtaTable,
                         Queries::sqlChemicalRows(material.Standard(), material.Name(), material.Number()));
    // meant so: without rows the grid stays empty, with no message in its place
    if (m_dtaTable.recordset()->RecordCount() == 0)
        material.setTableHasData(Key, false);
    else
        showElements(material);
    m_table.grid().setCaption(TableVocabulary::GetTableName(TableVocabulary::GetTableIndex(Key)));
    m_table.Show();
    if (material.OthersElement()) showOtherElements(material);
    material.SetUnboundArrayData(Key, *m_table.mTableArray);
}

void CompositionTable::showElements(Material &material) {
    const Composition composition = readComposition(*m_dtaTable.recordset()->Clone(), m_notes.mHasNotes());
    *m_table.mTableArray = composition.cells;
    const bool firstShowing = !material.TableHasData(Key);
    for (const QString &heading : composition.headings) {
        m_table.AddColumn(heading, 0);
        if (firstShowing) material.AddColCaption(Key, heading);
    }
    material.setTableHasData(Key, true);
}

void CompositionTable::showOtherElements(Material &material) {
    MaterialSources::Run(m_dtaOther, Queries::sqlOtherElements(material.ID(), material.StandardID()));
    material.setOthersText(cellText(m_dtaOther.recordset()->Fields("other")));
    if (!isNoValue(material.OthersText())) m_notes.AddOtherElements(material.OthersText());
}
