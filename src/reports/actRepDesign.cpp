#include "reports/actRepDesign.h"

#include <cmath>

#include "data/CreepColumns.h"
#include "data/Material.h"
#include "platform/runtime/runtime_error.h"
#include "reports/report_layout.h"
#include "reports/ReportSource.h"
#include "shell/mdiVelmar.h"

using namespace Printing;
using namespace ReportLayout;

namespace {

constexpr int LabelWidth = 1310;
constexpr int SmallestColumn = 1155;
constexpr int DesignCaptionHeight = 851;
constexpr int ValueHeight = 283;
constexpr int FieldTop = 10;
constexpr int BlockGap = 70;
constexpr int DummyOffset = 50;
constexpr double FontSize = 8;
/// Six tables: the layout knows no more rows, and a seventh table would have no place of its own.
constexpr int LastLaidOutRow = 18;

/// A table has a row of captions, a row of values and an empty one.
enum class RowKind { Caption, Value, Spacer };

RowKind kindOf(int row) {
    return static_cast<RowKind>((row - 1) % 3);
}

/// `column` is a number, "0" for the tables' names.
QString blockCellName(int row, const QString &column) {
    return QStringLiteral("txtFieldExt%1_%2").arg(QString::number(row), column);
}

const QString NamesColumn = QStringLiteral("0");

void frameRight(TextControl &control) {
    control.Border.TopStyle = control.Border.RightStyle = control.Border.BottomStyle = 1;
}

} // namespace

actRepDesign::actRepDesign(std::shared_ptr<Material> material)
    : m_material(std::move(material)) {
    AddSection(SectionType::PageHeader, "PageHeader");
    Section &header = AddSection(SectionType::GroupHeader, "ghDesignTemp");
    header.RepeatOnNewPage = true;
    header.Height = 600;
    addLabel(header, "lblDesignTemp", "Temperature", 0, 0, LabelWidth, TitleHeight);
    addField(header, "txtDesignTemp", LabelWidth + 60, 0, 3000, TitleHeight).Font.Bold = true;
    addLabel(header, "lblTable", "Table", 0, 300, LabelWidth, TitleHeight);

    AddSection(SectionType::GroupHeader, "ghExtended");
    Section &detail = AddSection(SectionType::Detail, "Detail");
    Field &first = addField(detail, "txtField0", 0, FieldTop, LabelWidth, ValueHeight);
    Field &second = addField(detail, "txtField1", LabelWidth, FieldTop, SmallestColumn, ValueHeight);
    for (Field *field : {&first, &second}) {
        asCell(*field);
        field->Font.Size = FontSize;
    }
    second.Border.LeftStyle = 0;
    addLabel(detail, "lblDummy", {}, 0, 0, 0, 0);

    Section &block = AddSection(SectionType::GroupFooter, "gfExtended");
    block.Visible = false;
    block.KeepTogether = block.BelowHeadings = true;
    Label &continued = addLabel(block, "lblContinued", "Continued...", 0, 150, PageWidth, TitleHeight);
    asHeading(continued, 2);
    continued.HeadingLevel = 0;
    continued.KeepWithNext = true;
    Section &key = AddSection(SectionType::GroupFooter, "gfDesignValuesKey");
    key.KeepTogether = key.BelowHeadings = true;
    addField(key, "txtKey", 0, 60, PageWidth, TitleHeight).Font.Size = FontSize;
    AddSection(SectionType::PageFooter, "PageFooter");
}

Field &actRepDesign::templateField(const char *name) const {
    return Sections("Detail").Controls.Item<Field>(QLatin1String(name));
}

void actRepDesign::DataInitialize() {
    Sections("gfDesignValuesKey").Controls.Item<Field>("txtKey").Text =
        "KEY\r\n\r\n'-' = Below Temperature Range of this table\r\n"
        "'+' = Above Temperature Range of this table\r\n"
        "'x' = No value given for this temperature";
    if (!m_material) m_material = mdiVelmar::instance().mCurrent;
    const Material &material = *m_material;
    const ReportSource &source = ReportSource::of(material);
    xDesign = source.designValues();
    iLastCol = xDesign->UpperBound(2);
    Sections("ghDesignTemp").Controls.Item<Field>("txtDesignTemp").Text = source.designTemperature() + " °C";
    bCreep = material.TableHasData("CreepProp");
    if (bCreep) {
        aColSize = material.MechCreepColSize("CreepProp");
        bEmptyCol = source.EmptyCreepCols();
        templateField("txtField1").Width = printedSize(1);
    }
    bExtended = testWidth();
    if (bExtended) {
        markExtendedRows();
        // without a row in it the block would be a lone heading
        Sections("gfExtended").Visible = iFirstExtRow > 0;
        const Control &heading = Sections("gfExtended").Controls.Item("lblContinued");
        addNamesToBlock(NamesColumn, bottomEdge(heading) + BlockGap);
    }
    m_lastField = &templateField("txtField1");
    m_lastField->Visible = !isInBlock(1);
    for (int column = 2; column <= iLastCol && !isInBlock(column); ++column)
        addColumn(column);
    if (iFirstExtRow > 0) addBlockColumns();
    bindTemplateFields();
}

void actRepDesign::bindTemplateFields() {
    for (const char *number : {"0", "1"}) {
        const QString name = QLatin1String("Field") + QLatin1String(number);
        Fields.Add(name);
        Sections("Detail").Controls.Item<Field>("txt" + name).DataField = name;
    }
}

/// Of a creep column, never below the smallest; also for a column past the end.
float actRepDesign::columnSize(int column) const {
    return std::max(aColSize.value(column), static_cast<float>(SmallestColumn));
}

/// The same, but no wider than the page beside the tables' names.
int actRepDesign::printedSize(int column) const {
    return std::min(qRound(columnSize(column)), PageWidth - LabelWidth);
}

bool actRepDesign::testWidth() {
    int width = bCreep ? 0 : templateField("txtField0").Width;
    const int last = bCreep ? static_cast<int>(aColSize.size()) - 1 : iLastCol;
    for (int column = bCreep ? 0 : 1; column <= last; ++column) {
        if (bCreep && bEmptyCol.value(column)) continue;
        width = bCreep ? static_cast<int>(std::lrint(static_cast<float>(width) + columnSize(column)))
                       : width + SmallestColumn;
        if (width > PageWidth) {
            iFirstExtCol = column;
            // empty creep columns have no column in the design table
            m_firstBlockColumn = column - static_cast<int>(bEmptyCol.mid(0, column).count(true));
            // the tables' names stay where they are, whatever the width of the creep table's first column
            m_firstBlockColumn = std::max(m_firstBlockColumn, 1);
            return true;
        }
    }
    return bCreep && testColumnsBeyondCreep();
}

/// Another table may have more columns than the creep table, by which the page was measured.
bool actRepDesign::testColumnsBeyondCreep() {
    const auto creepColumns = static_cast<int>(aColSize.size() - bEmptyCol.count(true));
    int width = templateField("txtField0").Width + templateField("txtField1").Width;
    for (int column = 2; column <= iLastCol; ++column) {
        width += SmallestColumn;
        if (width <= PageWidth || column < creepColumns) continue;
        iFirstExtCol = static_cast<int>(aColSize.size());
        m_firstBlockColumn = column;
        return true;
    }
    return false;
}

/// The tables that have columns past the break.
void actRepDesign::markExtendedRows() {
    bExtRow.fill(false, lastRow() + 1);
    if (m_firstBlockColumn > iLastCol) return;
    for (int row = 1; row <= lastRow(); row += 3) {
        const QString cell = xDesign->Get(row, m_firstBlockColumn).toString();
        if (cell.isEmpty() || cell == QLatin1String(" ")) continue;
        for (int i = row; i < row + 3; ++i)
            bExtRow[i] = true;
        if (iFirstExtRow == 0) iFirstExtRow = row;
    }
}

void actRepDesign::addColumn(int column) {
    const QString name = "Field" + QString::number(column);
    Field &field = addField(Sections("Detail"), "txt" + name, rightEdge(*m_lastField), FieldTop,
                            SmallestColumn, ValueHeight);
    field.VerticalAlignment = 1;
    field.Alignment = 2;
    frameRight(field);
    field.DataField = name;
    Fields.Add(name);
    m_lastField = &field;
}

/// The tables' names beside columns of the block, from `y` down; `column` tells these cells from others.
void actRepDesign::addNamesToBlock(const QString &column, int y) {
    Section &block = Sections("gfExtended");
    const Field &label = templateField("txtField0");
    for (int row = iFirstExtRow; row <= lastRow(); ++row) {
        if (!isExtendedRow(row)) continue;
        const RowKind kind = kindOf(row);
        const int height = row > LastLaidOutRow || kind == RowKind::Spacer ? 0
                           : kind == RowKind::Caption                      ? DesignCaptionHeight
                                                                           : ValueHeight;
        Field &cell = addField(block, blockCellName(row, column), label.Left, y, label.Width, height);
        asCell(cell);
        cell.VerticalAlignment = 0;
        cell.Font = label.Font;
        cell.Font.Bold = cell.KeepWithNext = true;
        cell.Visible = kind == RowKind::Caption && row <= LastLaidOutRow;
        cell.DataField = blockCellName(row, NamesColumn);
        if (column == NamesColumn) Fields.Add(cell.DataField);
        y += height + BlockGap;
    }
    block.Height = y;
}

/// The width of the block's next column. Flagged creep columns have none.
int actRepDesign::nextBlockWidth() {
    if (m_creepColumn < 0) m_creepColumn = std::max(iFirstExtCol, 1);
    while (bEmptyCol.value(m_creepColumn))
        ++m_creepColumn;
    return bCreep ? printedSize(m_creepColumn++) : SmallestColumn;
}

/// Columns for which the page has no more room stand further down, beside the names again, unless they are
/// empty.
void actRepDesign::addBlockColumns() {
    Section &block = Sections("gfExtended");
    QString beside = NamesColumn;
    for (int column = m_firstBlockColumn; column <= iLastCol; ++column) {
        const int width = nextBlockWidth();
        if (rightEdge(block.Controls.Item(blockCellName(iFirstExtRow, beside))) + width > PageWidth) {
            if (!hasCaption(column)) return;
            beside = NamesColumn + '_' + QString::number(column);
            addNamesToBlock(beside, block.Height);
        }
        addBlockColumn(column, beside, width);
        beside = QString::number(column);
    }
}

bool actRepDesign::hasCaption(int column) const {
    for (int row = iFirstExtRow; row <= std::min(lastRow(), LastLaidOutRow); row += 3)
        if (isExtendedRow(row) && !xDesign->Get(row, column).toString().isEmpty()) return true;
    return false;
}

void actRepDesign::addBlockColumn(int column, const QString &beside, int width) {
    Section &block = Sections("gfExtended");
    const bool startsLine = beside.startsWith(NamesColumn);
    const Control *above = nullptr;
    for (int row = iFirstExtRow; row <= lastRow(); ++row) {
        if (!isExtendedRow(row)) continue;
        auto &cell = block.Controls.Add<Field>(blockCellName(row, QString::number(column)));
        cell.DataField = cell.Name;
        Fields.Add(cell.Name);
        if (row > LastLaidOutRow) {
            cell.Visible = false;
            continue;
        }
        placeBlockCell(cell, row, above, block.Controls.Item<Field>(blockCellName(row, beside)), width);
        if (startsLine && kindOf(row) != RowKind::Spacer) cell.Border.LeftStyle = 1;
        above = &cell;
    }
}

void actRepDesign::placeBlockCell(Field &cell, int row, const Control *above, const Control &previous,
                                  int width) {
    cell.Left = above ? above->Left : rightEdge(previous);
    cell.Top = above ? bottomEdge(*above) + BlockGap : previous.Top;
    cell.Width = width;
    cell.Alignment = 2;
    cell.Font.Size = static_cast<const Field &>(previous).Font.Size;
    switch (kindOf(row)) {
    case RowKind::Caption:
        cell.Height = DesignCaptionHeight;
        cell.KeepWithNext = true;
        frameRight(cell);
        break;
    case RowKind::Value:
        cell.Height = ValueHeight;
        cell.VerticalAlignment = 1;
        cell.Font.Bold = true;
        frameRight(cell);
        break;
    case RowKind::Spacer:
        cell.Visible = false;
        break;
    }
}

/// The values of the second block stay in their fields until it is printed, after the last row.
void actRepDesign::FetchData(bool &eof) {
    eof = iRow > lastRow();
    if (eof) return;
    // a table without a value in the block's first column has no fields there
    const auto putIntoBlock = [this](int column, const QVariant &cell) {
        const QString name = blockCellName(iRow, QString::number(column));
        if (Fields.contains(name)) Fields(name) = cell;
    };
    for (int column = 0; column <= iLastCol; ++column) {
        const QVariant cell = xDesign->Get(iRow, column);
        if (isInBlock(column)) {
            putIntoBlock(column, cell);
            continue;
        }
        if (bExtended && column == 0) putIntoBlock(0, cell);
        Fields("Field" + QString::number(column)) = cell;
    }
    ++iRow;
}

/// `iRow` is the row behind the one that is laid out.
void actRepDesign::Format(Section &section) {
    if (section.Name != QLatin1String("Detail")) return;
    const int row = iRow - 1;
    section.KeepWithNext = kindOf(row) == RowKind::Caption;
    const double fontSize = templateField("txtField0").Font.Size;
    Control &dummy = section.Controls.Item("lblDummy");
    for (int column = 0; column <= iLastCol; ++column) {
        if (isInBlock(column)) break;
        auto &field = section.Controls.Item<Field>("txtField" + QString::number(column));
        field.Font.Size = fontSize;
        if (row <= LastLaidOutRow) {
            field.Top = FieldTop;
            field.KeepWithNext = kindOf(row) == RowKind::Caption;
            switch (kindOf(row)) {
            case RowKind::Caption:
                field.Height = DesignCaptionHeight;
                field.Font.Bold = column == 0;
                field.VerticalAlignment = 0;
                field.Visible = true;
                break;
            case RowKind::Value:
                field.Height = ValueHeight;
                field.Font.Bold = true;
                field.VerticalAlignment = 1;
                break;
            case RowKind::Spacer:
                field.Height = 0;
                field.Visible = false;
                break;
            }
        }
        dummy.Top = field.Height + DummyOffset;
    }
}
