// The sub-report of a table with any number of columns: composition, room temperature and creep properties.
#pragma once

#include <memory>

#include <QVector>

#include "platform/printing/report.h"
#include "platform/runtime/x_array_db.h"

class Material;

/// Takes its table's key from the head of the material's colUnBoundTables, and the cells from the material:
/// captions and fields are made at run time. Columns that do not fit across the page stand in a block below
/// the table. Raises 9 when no key is queued.
class actRepUnBound : public Printing::Report {
    Q_OBJECT
public:
    /// Without a material it takes the current one when it starts.
    explicit actRepUnBound(std::shared_ptr<Material> material = nullptr);

protected:
    void DataInitialize() override;
    void FetchData(bool &eof) override;

private:
    void takeTable();
    void prepareComposition();
    void prepareByWidth();
    void fitWidths();
    bool testWidth();
    void beginBlock();
    void fillTitle();
    void addColumns();
    void bindFields();
    void fillNotes();

    void addColumnCaption(int column);
    void addColumnField(int column);
    void makeRoomInBlock(int width);
    void addBlockElement(int column);
    void addBlockColumn(int column);
    Printing::Field &addBlockCell(const QString &name, const Printing::Control &beside, int left, int width);

    bool isComposition() const;
    /// Stands in the block below the table.
    bool isExtended(int column) const;
    bool isEmptyColumn(int column) const { return bEmptyCol.value(column); }
    int widthOf(int column) const;
    Printing::Section &section(const char *name) const { return Sections(QLatin1String(name)); }

    std::shared_ptr<Material> mMaterial;
    QString strKey;
    XArrayDB aTable;
    /// Twips; not used for the composition.
    QVector<float> aWidths;
    /// As printed, in whole twips.
    QVector<int> m_widths;
    /// Of creep properties only.
    QVector<bool> bEmptyCol;
    int iRow = 0;
    int iFirstExtCol = 0;
    int iLastCol = 0;
    bool m_tooWide = false;
    /// From 1.
    int m_blockLine = 1;

    // What the next column stands beside.
    Printing::Control *m_lastCaption = nullptr;
    Printing::Control *m_lastField = nullptr;
    Printing::Control *m_lastBlockCaption = nullptr;
    /// The upper one of the block's column, and for the composition the lower one.
    Printing::Control *m_lastBlockField = nullptr;
    Printing::Control *m_lastBlockMaximum = nullptr;
};
