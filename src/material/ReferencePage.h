// The page of references: the grade, its standard and the standard's product forms.
#pragma once

#include <QVector>

class DataControl;
class Material;
struct MaterialControls;

class ReferencePage {
public:
    ReferencePage(MaterialControls &controls, DataControl &dtaTable);

    /// Everything but the product forms, which are to be loaded before: the rows take their heights from the
    /// texts.
    void Fill(const Material &material);
    /// Raises 3021 where a form of the standard has no name.
    void LoadProductForms(Material &material);

private:
    void layOut();
    int linesOf(int box) const;
    int placeRow(const QVector<int> &boxes, int top, int lines);

    MaterialControls &m_controls;
    DataControl &m_dtaTable;
};
