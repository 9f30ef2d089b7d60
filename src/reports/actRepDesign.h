// The sub-report of the design values: the design table of one material at its design temperature.
#pragma once

#include <memory>

#include <QVector>

#include "platform/printing/report.h"
#include "platform/runtime/x_array_db.h"

class Material;

/// Columns that do not fit across the page stand in a second block below the table. Raises 91 without a
/// material window.
class actRepDesign : public Printing::Report {
    Q_OBJECT
public:
    /// Without a material it takes the current one when it starts.
    explicit actRepDesign(std::shared_ptr<Material> material = nullptr);

protected:
    void DataInitialize() override;
    void FetchData(bool &eof) override;
    void Format(Printing::Section &section) override;

private:
    bool testWidth();
    bool testColumnsBeyondCreep();
    void markExtendedRows();
    void bindTemplateFields();
    void addColumn(int column);
    void addNamesToBlock(const QString &column, int y);
    void addBlockColumns();
    void addBlockColumn(int column, const QString &beside, int width);
    bool hasCaption(int column) const;
    bool isInBlock(int column) const { return bExtended && column >= m_firstBlockColumn; }
    void placeBlockCell(Printing::Field &cell, int row, const Printing::Control *above,
                        const Printing::Control &previous, int width);
    int nextBlockWidth();
    float columnSize(int column) const;
    int printedSize(int column) const;

    Printing::Field &templateField(const char *name) const;
    bool isExtendedRow(int row) const { return bExtRow.value(row); }
    int lastRow() const { return xDesign->UpperBound(1); }

    std::shared_ptr<Material> m_material;
    std::shared_ptr<XArrayDB> xDesign;
    int iRow = 1;
    int iLastCol = 0;
    /// In the creep table's columns, where there is one; past their end when none of them is in the block.
    int iFirstExtCol = 0;
    /// The same in the columns of xDesign.
    int m_firstBlockColumn = 0;
    bool bExtended = false;
    QVector<bool> bExtRow;
    int iFirstExtRow = 0;
    bool bCreep = false;
    QVector<float> aColSize;
    QVector<bool> bEmptyCol;
    /// In aColSize and bEmptyCol, of the next column of the block; before the first, -1.
    int m_creepColumn = -1;
    Printing::Control *m_lastField = nullptr;
};
