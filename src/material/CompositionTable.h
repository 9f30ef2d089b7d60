// The page of the chemical composition.
#pragma once

class DataControl;
class Material;
class NotesPanel;
class UnboundGrid;

class CompositionTable {
public:
    CompositionTable(UnboundGrid &table, DataControl &dtaTable, DataControl &dtaOther, NotesPanel &notes);

    /// The grid is cleared and the table's notes are loaded. A name or number with a single quote in it
    /// raises 3075. Where the standard promises other elements and the grade has no row of them, 3021 is
    /// raised.
    void LoadChemical(Material &material);

private:
    void showElements(Material &material);
    void showOtherElements(Material &material);

    UnboundGrid &m_table;
    DataControl &m_dtaTable;
    DataControl &m_dtaOther;
    NotesPanel &m_notes;
};
