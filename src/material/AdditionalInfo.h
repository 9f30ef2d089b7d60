// The running text of a material's additional information.
#pragma once

class DataControl;
class Material;
class NotesPanel;

class AdditionalInfo {
public:
    AdditionalInfo(DataControl &dtaTable, DataControl &dtaOther, NotesPanel &panel);

    void LoadAddInfo(Material &material);

private:
    DataControl &m_dtaTable;
    DataControl &m_dtaOther;
    NotesPanel &m_panel;
};
