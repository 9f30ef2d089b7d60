// The sub-report of one temperature table: the printed twin of the bound grid.
#pragma once

#include <memory>

#include "platform/printing/report.h"

class Material;
struct TemperatureColumn;

/// Takes its table's key from the head of the material's colBoundTables at its start and runs a query of its
/// own. Raises 9 when no key is queued.
class actRepBound : public Printing::Report {
    Q_OBJECT
public:
    /// Without a material it takes the current one when it starts.
    explicit actRepBound(std::shared_ptr<Material> material = nullptr);

protected:
    void ReportStart() override;

private:
    void bindRows();
    void SetPhysicalColumns();
    void SetImpactColumns();
    void SetThicknessColumns();
    /// A column made at run time: `position` is its number, `lower` and `upper` the limits of its band in mm.
    void AddThicknessField(int position, int lower, int upper);
    void fillNotes();
    void fillTitle();

    Printing::Label &heading(int column) const;
    Printing::Field &field(int column) const;
    /// Columns 2 to 4, `width` twips each.
    void placeColumns(int width);
    void showColumn(int column, const QString &caption, const QString &dataField);
    void hideColumn(int column);
    /// Shows the picture in the place of the heading's text; where only letters go, the text stands for it.
    void showFormula(int column, const TemperatureColumn &known);

    QString m_key;
    std::shared_ptr<Material> m_material;
    /// A table shown from a compatible group's data, which no grade has yet.
    bool bGroupData = false;
};
