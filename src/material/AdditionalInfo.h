// The running text of a material's additional information.
#pragma once

class Material;
class NotesPanel;
class WindowTables;

class AdditionalInfo {
public:
    AdditionalInfo(WindowTables &tables, NotesPanel &panel);

    void LoadAddInfo(Material &material);

private:
    WindowTables &m_tables;
    NotesPanel &m_panel;
};
