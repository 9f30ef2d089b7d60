// The page of references: the grade, its standard and the standard's product forms.
#pragma once

class DataControl;
class Material;
struct MaterialControls;

class ReferencePage {
public:
    ReferencePage(MaterialControls &controls, DataControl &dtaTable);

    /// Everything but the product forms.
    void Fill(const Material &material);
    /// Raises 3021 where a form of the standard has no name.
    void LoadProductForms(Material &material);

private:
    MaterialControls &m_controls;
    DataControl &m_dtaTable;
};
