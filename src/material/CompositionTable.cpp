#include "material/CompositionTable.h"

#include "material/NotesPanel.h"
#include "material/UnboundGrid.h"
#include "material/WindowTables.h"

CompositionTable::CompositionTable(WindowTables &tables, UnboundGrid &grid, NotesPanel &notes)
    : m_tables(tables)
    , m_grid(grid)
    , m_notes(notes) {}

void CompositionTable::LoadChemical(Material &material) {
    const LoadedTable table = m_tables.load(material, "ChemComp");
    m_notes.LoadNotes(table);
    m_grid.Show(table);
    if (!table.others.isEmpty()) m_notes.AddOtherElements(table.others);
}
