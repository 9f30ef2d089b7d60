#include "reports/actRepBound.h"

#include "data/Material.h"
#include "data/modDBase.h"
#include "data/modVelmar.h"
#include "data/queries.h"
#include "platform/dao/database.h"
#include "platform/runtime/runtime_error.h"
#include "reports/report_layout.h"
#include "shell/mdiVelmar.h"

using namespace Printing;
using namespace ReportLayout;

namespace {

const QString LineEnd = QStringLiteral("\r\n");
const QString EmptyLine = LineEnd + LineEnd;

constexpr int TemperatureWidth = 1500;
constexpr int ColumnWidth = 1200;
constexpr int CaptionTop = 420;
constexpr int CaptionHeight = 720;
constexpr int RowHeight = 283;
constexpr int BatchTitleWidth = 9071;

struct Formula {
    const char *name;
    const char *picture;
};

const Formula Formulas[] = {{"imgPhys0", "modulus-of-elasticity"},  {"imgPhys1", "expansion-mean"},
                            {"imgPhys2", "thermal-conductivity"},   {"imgPhys3", "heat-capacity-mean"},
                            {"imgPhys4", "electrical-resistivity"}, {"imgPhys5", "heat-capacity-differential"}};

QString formulaFile(const QString &name) {
    return ":/velmar/formula/" + name + ".svg";
}

void addColumn(Section &title, Section &detail, int column, int left, int width) {
    asCaption(addLabel(title, QStringLiteral("lblCol%1").arg(column), {}, left, CaptionTop, width, CaptionHeight));
    asCell(addField(detail, QStringLiteral("txtField%1").arg(column), left, 0, width, RowHeight));
}

/// Over a heading, which it does not show unless it is given a picture.
Image &addHeadingPicture(Section &title, const QString &name) {
    Image &image = addImage(title, name, {}, 0, 0, 0, 0);
    image.Visible = false;
    return image;
}

} // namespace

actRepBound::actRepBound() {
    AddSection(SectionType::PageHeader, "PageHeader");
    Section &title = AddSection(SectionType::GroupHeader, "ghTitle");
    title.RepeatOnNewPage = true;
    Section &detail = AddSection(SectionType::Detail, "Detail");
    asHeading(addLabel(title, "lblTitle", {}, 0, 90, PageWidth, 270), 2);
    addColumn(title, detail, 1, 0, TemperatureWidth);
    for (int column = 2; column <= 4; ++column)
        addColumn(title, detail, column, TemperatureWidth + (column - 2) * ColumnWidth, ColumnWidth);
    for (const Formula &formula : Formulas)
        addImage(title, formula.name, formulaFile(formula.picture), 0, 0, ColumnWidth, CaptionHeight).Visible = false;
    addHeadingPicture(title, "imgPhysA");
    addHeadingPicture(title, "imgPhysB").Content =
        addImage(title, "imgPhysBTemplate", formulaFile("expansion-differential"), 0, 0, 0, 0).Content;
    title.Controls.Item("imgPhysBTemplate").Visible = false;
    addLabel(title, "lblCompatibleData", "Compatible Data Note", 0, CaptionTop, PageWidth, RowHeight).Visible = false;

    Section &notes = AddSection(SectionType::GroupFooter, "gfNotes");
    Label &notesLabel = addLabel(notes, "lblNotes", "Notes", 0, 75, PageWidth, 240);
    notesLabel.Font.Bold = true;
    notesLabel.Font.Size = 9;
    addField(notes, "txtNotes", 0, 315, PageWidth, 240).Font.Size = 9;
    AddSection(SectionType::PageFooter, "PageFooter");
}

void actRepBound::ReportStart() {
    mdiVelmar &main = mdiVelmar::instance();
    m_material = main.mCurrent;
    QStringList &queue = m_material->colBoundTables();
    if (queue.isEmpty()) throw RuntimeError(9);
    m_key = queue.first();
    showColumn(1, "Temperature" + EmptyLine + "[" + QChar(0xB0) + "C]", "temp");
    bindRows();
    fillNotes();
    fillTitle();
    queue.removeFirst();
}

/// The window sorts tables without bands by thickness, the paper by temperature.
void actRepBound::bindRows() {
    if (m_material->ElevatedMultiCol(m_key)) {
        DataSource = modDBase::dbMain()->OpenRecordset(Queries::sqlReportPivot(m_key, m_material->ID()));
        SetThicknessColumns();
        return;
    }
    DataSource = modDBase::dbMain()->OpenRecordset(Queries::sqlReportTemperatureRows(m_key, m_material->ID()));
    if (m_key == QLatin1String("ImpEnergy"))
        SetImpactColumns();
    else
        SetPhysicalColumns();
}

void actRepBound::SetPhysicalColumns() {
    hideColumn(4);
    hideColumn(3);
    const QString caption = mdiVelmar::instance().GetCaption(m_key);
    showColumn(2, caption, m_key);
    if (m_key == QLatin1String("ModElast")) {
        showFormula(2, "imgPhys0", caption);
    } else if (m_key == QLatin1String("ThermExp")) {
        showFormula(2, "imgPhys1", QChar(0xDF) + QStringLiteral("20, t [E-6/K]"));
        showColumn(3, {}, "ThermExpDiff");
        showFormula(3, "imgPhysBTemplate", QChar(0xDF) + QStringLiteral("diff, t [E-6/K]"));
    } else if (m_key == QLatin1String("ThermCond")) {
        showFormula(2, "imgPhys2", caption);
    } else if (m_key == QLatin1String("SpecThermCap")) {
        showFormula(2, "imgPhys3", "Cp20, t [J/kgK]");
        showColumn(3, {}, "SpecThermCapDiff");
        showFormula(3, "imgPhys5", "Cp diff, t [J/kgK]");
    } else if (m_key == QLatin1String("SpecElecRes")) {
        showFormula(2, "imgPhys4", caption);
    }
}

/// The columns with data stand next to each other, without gaps.
void actRepBound::SetImpactColumns() {
    struct ImpactColumn {
        int flag;
        const char *caption;
        const char *field;
    };
    const ImpactColumn columns[] = {{1, "KV", "kv"}, {2, "KVL", "kvLong"}, {4, "KVT", "kvTrans"}};
    int next = 2;
    for (const ImpactColumn &column : columns)
        if ((m_material->ImpEnergyCols() & column.flag) != 0)
            showColumn(next++, column.caption + EmptyLine + "[Joule]", column.field);
    while (next <= 4)
        hideColumn(next++);
}

void actRepBound::SetThicknessColumns() {
    const QVector<qint16> limits = m_material->ElevatedColumns(m_key);
    const int bands = static_cast<int>(limits.size()) - 1; // the first band is element 1
    for (int band = 1; band <= std::min(bands, 3); ++band) {
        const QString lower = band == 1 ? "   " : QString::number(limits[band - 1]);
        const QString upper = QString::number(limits[band]);
        showColumn(band + 1, "(" + lower + ") - " + EmptyLine + upper + "mm", upper);
    }
    for (int column = bands + 2; column <= 4; ++column)
        hideColumn(column);
    for (int band = 4; band <= bands; ++band)
        AddThicknessField(band + 1, limits[band - 1], limits[band]);
}

void actRepBound::AddThicknessField(int position, int lower, int upper) {
    const auto copyLook = [](TextControl &control, const TextControl &preceding) {
        control.Top = preceding.Top;
        control.Height = preceding.Height;
        control.Width = preceding.Width;
        control.Alignment = preceding.Alignment;
        control.VerticalAlignment = preceding.VerticalAlignment;
        control.Font.Size = preceding.Font.Size;
        control.BackStyle = preceding.BackStyle;
        control.BackColor = preceding.BackColor;
        control.Left = preceding.Left + preceding.Width;
        control.Border.TopStyle = control.Border.BottomStyle = control.Border.RightStyle = 1;
    };
    const QString number = QString::number(position);
    const QString preceding = QString::number(position - 1);
    ControlList &titles = Sections("ghTitle").Controls;
    Field &caption = titles.Add<Field>("lblCol" + number);
    copyLook(caption, titles.Item<TextControl>("lblCol" + preceding));
    // the separator is narrower here than in the three columns of the template, and stays so
    caption.Text = "(" + QString::number(lower) + ") -" + EmptyLine + QString::number(upper) + "mm";

    ControlList &cells = Sections("Detail").Controls;
    Field &cell = cells.Add<Field>("txtField" + number);
    copyLook(cell, cells.Item<TextControl>("txtField" + preceding));
    cell.DataField = QString::number(upper);
}

void actRepBound::fillNotes() {
    const int index = mdiVelmar::instance().GetTableIndex(m_key);
    QString notes;
    if (bGroupData) notes = NoDataText(*m_material, m_key, true, false);
    const QString tableNotes = m_material->TableNotes(index);
    if (!tableNotes.isEmpty()) notes += (notes.isEmpty() ? QString() : EmptyLine) + tableNotes;
    Sections("gfNotes").Controls.Item<Field>("txtNotes").Text = notes;
    if (notes.isEmpty() || notes == QLatin1String("-")) Sections("gfNotes").Visible = false;
}

void actRepBound::fillTitle() {
    mdiVelmar &main = mdiVelmar::instance();
    Label &title = Sections("ghTitle").Controls.Item<Label>("lblTitle");
    title.Text = main.GetTableName(main.GetTableIndex(m_key));
    if (bGroupData) title.Text += " - Compatible Group Data * **";
    if (main.bBatchPrint) {
        title.Width = BatchTitleWidth;
        title.Text += "     " + m_material->Name() + '_' + m_material->Number();
    }
}

Label &actRepBound::heading(int column) const {
    return Sections("ghTitle").Controls.Item<Label>(QStringLiteral("lblCol%1").arg(column));
}

Field &actRepBound::field(int column) const {
    return Sections("Detail").Controls.Item<Field>(QStringLiteral("txtField%1").arg(column));
}

void actRepBound::showColumn(int column, const QString &caption, const QString &dataField) {
    heading(column).Visible = true;
    heading(column).Text = caption;
    field(column).Visible = true;
    field(column).DataField = dataField;
}

void actRepBound::hideColumn(int column) {
    heading(column).Visible = false;
    field(column).Visible = false;
}

void actRepBound::showFormula(int column, const QString &picture, const QString &text) {
    ControlList &controls = Sections("ghTitle").Controls;
    Label &label = heading(column);
    Image &image = controls.Item<Image>(column == 2 ? "imgPhysA" : "imgPhysB");
    image.Content = controls.Item<Image>(picture).Content;
    image.Left = label.Left;
    image.Top = label.Top;
    image.Width = label.Width;
    image.Height = label.Height;
    image.Visible = true;
    image.AlternativeText = QString(text).simplified();
    label.Text.clear();
}
