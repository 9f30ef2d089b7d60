#include "material/AdditionalInfo.h"

#include "material/NotesPanel.h"
#include "material/WindowTables.h"

AdditionalInfo::AdditionalInfo(WindowTables &tables, NotesPanel &panel)
    : m_tables(tables)
    , m_panel(panel) {}

void AdditionalInfo::LoadAddInfo(Material &material) {
    m_panel.setText(m_tables.load(material, "AddInfo").notes);
}
