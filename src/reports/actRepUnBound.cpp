#include "reports/actRepUnBound.h"

#include "data/cell_values.h"
#include "data/CreepColumns.h"
#include "data/Material.h"
#include "platform/runtime/runtime_error.h"
#include "reports/report_layout.h"
#include "shell/mdiVelmar.h"

using namespace Printing;
using namespace ReportLayout;

namespace {

// Less what the composition gives up, twelve columns of it fill the page, and four lines become three.
constexpr int UnboundColumnWidth = 900;
constexpr int UnboundCaptionHeight = 960;
constexpr int CompositionWidthLess = 50;
constexpr int CompositionHeightLess = 280;
constexpr double CompositionFontSize = 8;
/// The first column of the composition that stands below the table.
constexpr int CompositionBreak = 12;

// In the block below the table.
constexpr int BlockTitleTop = 180;
constexpr int BlockCaptionTop = BlockTitleTop + CaptionTop;
constexpr int BlockLineDistance = 120;

void addFirstColumnOfBlock(Section &block) {
    constexpr int width = UnboundColumnWidth - CompositionWidthLess;
    constexpr int captionHeight = UnboundCaptionHeight - CompositionHeightLess;
    constexpr int rowTop = BlockCaptionTop + captionHeight;
    asCaption(addLabel(block, "lblCapExt", {}, 0, BlockCaptionTop, width, captionHeight));
    for (const auto &[name, text, top] :
         {std::tuple("FieldExt", "min", rowTop), std::tuple("FieldExt0", "max", rowTop + RowHeight)}) {
        Field &field = addField(block, name, 0, top, width, RowHeight);
        asCell(field);
        field.Text = text;
        field.Font.Size = CompositionFontSize;
    }
    asCaption(addLabel(block, "lblX_0", {}, 0, BlockCaptionTop, width, UnboundCaptionHeight));
    asCell(addField(block, "FieldX1_0", 0, BlockCaptionTop + UnboundCaptionHeight, width, RowHeight));
}

void addOtherElements(Section &section) {
    Label &label = addLabel(section, "lblOther", "Other Elements", 0, 90, PageWidth, 240);
    Field &text = addField(section, "txtOther", 0, 330, PageWidth, 240);
    label.Font.Bold = label.KeepWithNext = true;
    label.Font.Size = text.Font.Size = 9;
}

} // namespace

actRepUnBound::actRepUnBound(std::shared_ptr<Material> material)
    : mMaterial(std::move(material)) {
    AddSection(SectionType::PageHeader, "PageHeader");
    Section &title = AddSection(SectionType::GroupHeader, "ghTitle");
    title.Height = CaptionTop + UnboundCaptionHeight;
    title.RepeatOnNewPage = true;
    addTitle(title, "  Title");
    asCaption(addLabel(title, "lblCaption0", {}, 0, CaptionTop, UnboundColumnWidth, UnboundCaptionHeight));
    AddSection(SectionType::GroupHeader, "ghOther");
    AddSection(SectionType::GroupHeader, "ghExtended");
    asCell(
        addField(AddSection(SectionType::Detail, "Detail"), "Field0", 0, 0, UnboundColumnWidth, RowHeight));

    Section &block = AddSection(SectionType::GroupFooter, "gfExtended");
    block.Visible = false;
    block.KeepTogether = true;
    Label &continued = addLabel(block, "lblExtended", {}, 0, BlockTitleTop, PageWidth, TitleHeight);
    asHeading(continued, 2);
    continued.HeadingLevel = 0;
    continued.KeepWithNext = true;
    addFirstColumnOfBlock(block);
    Section &other = AddSection(SectionType::GroupFooter, "gfOther");
    other.Visible = false;
    other.KeepTogether = true;
    addOtherElements(other);
    addNotes(AddSection(SectionType::GroupFooter, "gfNotes"));
    AddSection(SectionType::PageFooter, "PageFooter");
}

bool actRepUnBound::isComposition() const {
    return strKey == QLatin1String("ChemComp");
}

bool actRepUnBound::isExtended(int column) const {
    return isComposition() ? column >= CompositionBreak : m_tooWide && column >= iFirstExtCol;
}

int actRepUnBound::widthOf(int column) const {
    if (isComposition()) return section("ghTitle").Controls.Item("lblCaption0").Width;
    if (column >= m_widths.size()) throw RuntimeError(9);
    return m_widths[column];
}

void actRepUnBound::DataInitialize() {
    takeTable();
    if (isComposition())
        prepareComposition();
    else
        prepareByWidth();
    mMaterial->colUnBoundTables().removeFirst();
    fillTitle();
    section("ghTitle").Controls.Item<Label>("lblCaption0").Text = mMaterial->ColCaption(strKey, 0);
    addColumns();
    bindFields();
    fillNotes();
}

void actRepUnBound::takeTable() {
    if (!mMaterial) mMaterial = mdiVelmar::instance().mCurrent;
    if (mMaterial->colUnBoundTables().isEmpty()) throw RuntimeError(9);
    strKey = mMaterial->colUnBoundTables().first();
    aTable = mMaterial->UnboundTableData(strKey);
    iLastCol = aTable.UpperBound(2);
    iRow = aTable.LowerBound(1);
    m_lastCaption = &section("ghTitle").Controls.Item("lblCaption0");
    m_lastField = &section("Detail").Controls.Item("Field0");
}

void actRepUnBound::prepareComposition() {
    Section &title = section("ghTitle");
    title.Controls.Item("lblTitle").Visible = false;
    const QString others = mMaterial->OthersText();
    if (mMaterial->OthersElement() && !isNoValue(others)) {
        section("gfOther").Visible = true;
        section("gfOther").Controls.Item<Field>("txtOther").Text = others;
    }
    title.Height -= CompositionHeightLess;
    m_lastCaption->Height -= CompositionHeightLess;
    m_lastCaption->Width -= CompositionWidthLess;
    m_lastField->Width -= CompositionWidthLess;
    section("Detail").Controls.Item<Field>("Field0").Font.Size = CompositionFontSize;
    if (iLastCol < CompositionBreak) return;

    Section &block = section("gfExtended");
    block.Visible = true;
    block.Controls.Item("lblX_0").Visible = false;
    block.Controls.Item("FieldX1_0").Visible = false;
    m_lastBlockCaption = &block.Controls.Item("lblCapExt");
    m_lastBlockField = &block.Controls.Item("FieldExt");
    m_lastBlockMaximum = &block.Controls.Item("FieldExt0");
}

void actRepUnBound::prepareByWidth() {
    aWidths = mMaterial->MechCreepColSize(strKey);
    // the same flags that the window has; the window itself is gone when a batch is printed
    if (strKey == QLatin1String("CreepProp")) bEmptyCol = emptyCreepColumns(aTable);
    fitWidths();
    m_lastCaption->Width = m_lastField->Width = widthOf(0);
    m_tooWide = testWidth();
    if (m_tooWide) beginBlock();
}

/// So that every column has room on the page beside the first.
void actRepUnBound::fitWidths() {
    m_widths.clear();
    for (const float width : aWidths)
        m_widths << qRound(width);
    if (m_widths.isEmpty()) return;
    int widest = 0;
    for (int column = 1; column < m_widths.size(); ++column)
        if (!isEmptyColumn(column)) widest = std::max(widest, m_widths[column]);
    int &first = m_widths.first();
    first = std::min(first, std::max(PageWidth - widest, PageWidth / 2));
    for (int column = 1; column < m_widths.size(); ++column)
        m_widths[column] = std::min(m_widths[column], PageWidth - first);
}

bool actRepUnBound::testWidth() {
    float width = 0;
    for (int column = 0; column < aWidths.size(); ++column) {
        if (!isEmptyColumn(column)) width += aWidths[column];
        if (width > PageWidth) {
            iFirstExtCol = column;
            return true;
        }
    }
    return false;
}

/// The block repeats the first column.
void actRepUnBound::beginBlock() {
    Section &block = section("gfExtended");
    block.Visible = true;
    for (const char *name : {"lblCapExt", "FieldExt", "FieldExt0"})
        block.Controls.Item(name).Visible = false;
    auto &caption = block.Controls.Item<Label>("lblX_0");
    caption.Left = block.Controls.Item("lblCapExt").Left;
    caption.Width = widthOf(0);
    caption.Text = mMaterial->ColCaption(strKey, 0);
    auto &first = block.Controls.Item<Field>("FieldX1_0");
    first.Left = block.Controls.Item("FieldExt").Left;
    first.Width = widthOf(0);
    first.DataField = first.Name;
    Fields.Add(first.Name);
    const Control *above = &first;
    for (int row = aTable.LowerBound(1) + 1; row <= aTable.UpperBound(1); ++row) {
        Field &cell = addField(block, QStringLiteral("FieldX%1_0").arg(row), first.Left, bottomEdge(*above),
                               first.Width, first.Height);
        asCell(cell);
        cell.DataField = cell.Name;
        Fields.Add(cell.Name);
        above = &cell;
    }
    m_lastBlockCaption = &caption;
    m_lastBlockField = &first;
}

void actRepUnBound::fillTitle() {
    const mdiVelmar &main = mdiVelmar::instance();
    const QString name = main.GetTableName(main.GetTableIndex(strKey));
    auto &title = section("ghTitle").Controls.Item<Label>("lblTitle");
    title.Text = name;
    nameMaterial(title, *mMaterial);
    section("gfExtended").Controls.Item<Label>("lblExtended").Text = name + " continued...";
}

void actRepUnBound::addColumns() {
    for (int column = 1; column <= iLastCol; ++column) {
        if (isEmptyColumn(column)) continue;
        if (!isExtended(column)) {
            addColumnCaption(column);
            addColumnField(column);
        } else if (isComposition()) {
            addBlockElement(column);
        } else {
            addBlockColumn(column);
        }
    }
}

void actRepUnBound::addColumnCaption(int column) {
    Label &caption = addLabel(section("ghTitle"), "lblCaption" + QString::number(column),
                              mMaterial->ColCaption(strKey, column), rightEdge(*m_lastCaption),
                              m_lastCaption->Top, widthOf(column), m_lastCaption->Height);
    asCaption(caption);
    m_lastCaption = &caption;
}

void actRepUnBound::addColumnField(int column) {
    Section &detail = section("Detail");
    const int width = isComposition() ? m_lastField->Width : widthOf(column);
    Field &field = addField(detail, "Field" + QString::number(column), rightEdge(*m_lastField),
                            m_lastField->Top, width, m_lastField->Height);
    asCell(field);
    field.Border.LeftStyle = 0;
    field.Font.Size = detail.Controls.Item<Field>("Field0").Font.Size;
    field.DataField = field.Name;
    m_lastField = &field;
}

/// What does not fit beside the block's columns stands below them, beside the first column again.
void actRepUnBound::makeRoomInBlock(int width) {
    const bool lineHasColumns = m_lastBlockCaption->Left > 0;
    if (!lineHasColumns || rightEdge(*m_lastBlockCaption) + width <= PageWidth) return;
    QStringList cells{"FieldExt", "FieldExt0"};
    if (!isComposition()) {
        cells.clear();
        for (int row = aTable.LowerBound(1); row <= aTable.UpperBound(1); ++row)
            cells << QStringLiteral("FieldX%1_0").arg(row);
    }
    Section &block = section("gfExtended");
    const int lineHeight =
        bottomEdge(block.Controls.Item(cells.last())) - BlockCaptionTop + BlockLineDistance;
    const QString suffix = '_' + QString::number(++m_blockLine);
    const int lower = (m_blockLine - 1) * lineHeight;

    const auto &caption = block.Controls.Item<Label>(isComposition() ? "lblCapExt" : "lblX_0");
    Label &captionAgain = addLabel(block, caption.Name + suffix, caption.Text, caption.Left,
                                   caption.Top + lower, caption.Width, caption.Height);
    asCaption(captionAgain);
    m_lastBlockCaption = &captionAgain;
    m_lastBlockField = nullptr;
    for (const QString &name : cells) {
        const auto &cell = block.Controls.Item<Field>(name);
        Field &again = addField(block, name + suffix, cell.Left, cell.Top + lower, cell.Width, cell.Height);
        asCell(again);
        again.Font.Size = cell.Font.Size;
        again.Text = cell.Text;
        again.DataField = cell.DataField;
        if (!m_lastBlockField) m_lastBlockField = &again;
        m_lastBlockMaximum = &again;
    }
}

/// An element below the composition: its caption, and its limits one above the other.
void actRepUnBound::addBlockElement(int column) {
    makeRoomInBlock(widthOf(column));
    Section &block = section("gfExtended");
    const QString number = QString::number(column);
    Label &caption = addLabel(block, "lblCaption" + number, mMaterial->ColCaption(strKey, column),
                              rightEdge(*m_lastBlockCaption), m_lastBlockCaption->Top, widthOf(column),
                              m_lastBlockCaption->Height);
    asCaption(caption);
    m_lastBlockCaption = &caption;
    const int left = rightEdge(*m_lastBlockMaximum);
    m_lastBlockField = &addBlockCell("Field" + number, *m_lastBlockField, left, widthOf(column));
    m_lastBlockMaximum = &addBlockCell("FieldExt" + number, *m_lastBlockMaximum, left, widthOf(column));
    for (Control *control : {m_lastBlockField, m_lastBlockMaximum})
        static_cast<Field *>(control)->Font.Size = CompositionFontSize;
}

/// A column that does not fit: its caption, and all its rows one below the other.
void actRepUnBound::addBlockColumn(int column) {
    makeRoomInBlock(widthOf(column));
    Section &block = section("gfExtended");
    Label &caption = addLabel(block, "lblX_" + QString::number(column), mMaterial->ColCaption(strKey, column),
                              rightEdge(*m_lastBlockCaption), m_lastBlockCaption->Top, widthOf(column),
                              m_lastBlockCaption->Height);
    asCaption(caption);
    m_lastBlockCaption = &caption;
    const int left = rightEdge(*m_lastBlockField);
    Control *above = nullptr;
    for (int row = aTable.LowerBound(1); row <= aTable.UpperBound(1); ++row) {
        Field &cell = addBlockCell(QStringLiteral("FieldX%1_%2").arg(row).arg(column), *m_lastBlockField,
                                   left, caption.Width);
        if (above)
            cell.Top = bottomEdge(*above);
        else
            m_lastBlockField = &cell;
        Fields.Add(cell.Name);
        above = &cell;
    }
}

Field &actRepUnBound::addBlockCell(const QString &name, const Control &beside, int left, int width) {
    Field &cell = addField(section("gfExtended"), name, left, beside.Top, width, beside.Height);
    asCell(cell);
    cell.Border.LeftStyle = 0;
    cell.DataField = name;
    return cell;
}

void actRepUnBound::bindFields() {
    section("Detail").Controls.Item<Field>("Field0").DataField = "Field0";
    for (int column = 0; column <= iLastCol; ++column) {
        Fields.Add("Field" + QString::number(column));
        if (isComposition() && isExtended(column)) Fields.Add("FieldExt" + QString::number(column));
    }
}

void actRepUnBound::fillNotes() {
    const QString notes = mMaterial->TableNotes(mdiVelmar::instance().GetTableIndex(strKey));
    section("gfNotes").Controls.Item<Field>("txtNotes").Text = notes;
    if (isNoValue(notes)) section("gfNotes").Visible = false;
}

/// The values of a block stay in their fields until it is printed, after the last row.
void actRepUnBound::FetchData(bool &eof) {
    eof = iRow > aTable.UpperBound(1);
    if (eof) return;
    const QString blockRow = QStringLiteral("FieldX%1_").arg(iRow);
    constexpr int Maxima = 2;
    for (int column = 0; column <= iLastCol; ++column) {
        const QVariant cell = aTable.Get(iRow, column);
        const QString number = QString::number(column);
        if (isComposition()) {
            Fields((isExtended(column) && iRow == Maxima ? "FieldExt" : "Field") + number) = cell;
        } else if (m_tooWide && column == 0) {
            Fields(blockRow + '0') = cell;
            Fields("Field0") = cell;
        } else if (isExtended(column)) {
            if (!isEmptyColumn(column)) Fields(blockRow + number) = cell;
        } else {
            Fields("Field" + number) = cell;
        }
    }
    ++iRow;
}
