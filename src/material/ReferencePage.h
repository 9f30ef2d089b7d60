// The page of references: the grade, its standard and the standard's product forms.
#pragma once

#include <QVector>

struct LoadedTable;
struct MaterialControls;

class ReferencePage {
public:
    explicit ReferencePage(MaterialControls &controls);

    /// The rows take their heights from the texts.
    void Fill(const LoadedTable &references);

private:
    void layOut();
    int linesOf(int box) const;
    int placeRow(const QVector<int> &boxes, int top, int lines);

    MaterialControls &m_controls;
};
