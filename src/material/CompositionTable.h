// The page of the chemical composition.
#pragma once

class Material;
class NotesPanel;
class UnboundGrid;
class WindowTables;

class CompositionTable {
public:
    CompositionTable(WindowTables &tables, UnboundGrid &grid, NotesPanel &notes);

    /// The grid is cleared.
    void LoadChemical(Material &material);

private:
    WindowTables &m_tables;
    UnboundGrid &m_grid;
    NotesPanel &m_notes;
};
