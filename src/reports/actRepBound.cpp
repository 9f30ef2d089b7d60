#include "reports/actRepBound.h"

#include "data/cell_values.h"
#include "data/Material.h"
#include "data/modDBase.h"
#include "data/modVelmar.h"
#include "data/queries.h"
#include "data/temperature_columns.h"
#include "platform/dao/database.h"
#include "platform/dao/recordset.h"
#include "platform/runtime/runtime_error.h"
#include "reports/report_layout.h"
#include "shell/mdiVelmar.h"

using namespace Printing;
using namespace ReportLayout;

namespace {

const QString EmptyLine = QStringLiteral("\r\n\r\n");

// With these widths eight thickness bands fill the page; more of them share it.
constexpr int TemperatureWidth = 1400;
constexpr int ColumnWidth = 1100;
constexpr int PhysicalColumnWidth = 1700;
constexpr int CaptionHeight = 750;

/// The headings of physical properties as formulas, in store for imgPhysA and imgPhysB.
const char *const Formulas[] = {"modulus-of-elasticity",  "expansion-mean",
                                "thermal-conductivity",   "heat-capacity-mean",
                                "electrical-resistivity", "heat-capacity-differential"};

QString formulaFile(const QString &name) {
    return ":/velmar/formula/" + name + ".svg";
}

void addColumn(Section &title, Section &detail, int column, int left, int width) {
    const QString number = QString::number(column);
    Label &caption = addLabel(title, "lblCol" + number, {}, left, CaptionTop, width, CaptionHeight);
    asCaption(caption);
    caption.VerticalAlignment = 1;
    asCell(addField(detail, "txtField" + number, left, 0, width, RowHeight));
}

QString bandHeading(const QString &lower, const QString &separator, int upper) {
    return "(" + lower + separator + EmptyLine + QString::number(upper) + "mm";
}

} // namespace

actRepBound::actRepBound(std::shared_ptr<Material> material)
    : m_material(std::move(material)) {
    AddSection(SectionType::PageHeader, "PageHeader");
    Section &title = AddSection(SectionType::GroupHeader, "ghTitle");
    title.RepeatOnNewPage = true;
    Section &detail = AddSection(SectionType::Detail, "Detail");
    addTitle(title, {});
    addColumn(title, detail, 1, 0, TemperatureWidth);
    for (int column = 2; column <= 4; ++column)
        addColumn(title, detail, column, TemperatureWidth + (column - 2) * ColumnWidth, ColumnWidth);
    for (int i = 0; i < static_cast<int>(std::size(Formulas)); ++i)
        addImage(title, "imgPhys" + QString::number(i), formulaFile(Formulas[i]), 0, 0, 0, 0).Visible = false;
    addImage(title, "imgPhysA", {}, 0, 0, 0, 0).Visible = false;
    addImage(title, "imgPhysB", formulaFile("expansion-differential"), 0, 0, 0, 0).Visible = false;
    addLabel(title, "lblCompatibleData", "Compatible Data Note", 0, CaptionTop, PageWidth, RowHeight)
        .Visible = false;
    addNotes(AddSection(SectionType::GroupFooter, "gfNotes"));
    AddSection(SectionType::PageFooter, "PageFooter");
}

void actRepBound::ReportStart() {
    if (!m_material) m_material = mdiVelmar::instance().mCurrent;
    QStringList &queue = m_material->colBoundTables();
    if (queue.isEmpty()) throw RuntimeError(9);
    m_key = queue.first();
    showColumn(1, "Temperature" + EmptyLine + "[°C]", "temp");
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
    DataSource =
        modDBase::dbMain()->OpenRecordset(Queries::sqlReportTemperatureRows(m_key, m_material->ID()));
    if (m_key == QLatin1String("ImpEnergy"))
        SetImpactColumns();
    else
        SetPhysicalColumns();
}

void actRepBound::SetPhysicalColumns() {
    placeColumns(PhysicalColumnWidth);
    int column = 2;
    for (const TemperatureColumn &known : temperatureColumns(m_key)) {
        showColumn(column, known.heading, known.field);
        if (!known.picture.isEmpty()) showFormula(column, known);
        ++column;
    }
    while (column <= 4)
        hideColumn(column++);
}

/// The columns with data stand next to each other, without gaps.
void actRepBound::SetImpactColumns() {
    int next = 2;
    int flag = 1;
    for (const TemperatureColumn &column : temperatureColumns(m_key)) {
        if ((m_material->ImpEnergyCols() & flag) != 0) showColumn(next++, column.heading, column.field);
        flag *= 2;
    }
    while (next <= 4)
        hideColumn(next++);
}

void actRepBound::SetThicknessColumns() {
    const QVector<qint16> limits = m_material->ElevatedColumns(m_key);
    const int bands = static_cast<int>(limits.size()) - 1; // the first band is element 1
    placeColumns(std::min(ColumnWidth, (PageWidth - TemperatureWidth) / std::max(bands, 1)));
    for (int band = 1; band <= std::min(bands, 3); ++band) {
        const QString lower = band == 1 ? QStringLiteral("   ") : QString::number(limits[band - 1]);
        showColumn(band + 1, bandHeading(lower, ") - ", limits[band]), QString::number(limits[band]));
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
        control.Left = rightEdge(preceding);
        control.Border.TopStyle = control.Border.BottomStyle = control.Border.RightStyle = 1;
    };
    const QString number = QString::number(position);
    const QString preceding = QString::number(position - 1);
    ControlList &titles = Sections("ghTitle").Controls;
    auto &caption = titles.Add<Field>("lblCol" + number);
    copyLook(caption, titles.Item<TextControl>("lblCol" + preceding));
    // the separator is narrower here than in the three columns of the template, and stays so
    caption.Text = bandHeading(QString::number(lower), ") -", upper);

    ControlList &cells = Sections("Detail").Controls;
    auto &cell = cells.Add<Field>("txtField" + number);
    copyLook(cell, cells.Item<TextControl>("txtField" + preceding));
    cell.DataField = QString::number(upper);
}

void actRepBound::fillNotes() {
    QString notes;
    if (bGroupData) notes = modVelmar::NoDataText(*m_material, m_key, true, false);
    const QString tableNotes = m_material->TableNotes(mdiVelmar::instance().GetTableIndex(m_key));
    if (!tableNotes.isEmpty()) notes += (notes.isEmpty() ? QString() : EmptyLine) + tableNotes;
    Sections("gfNotes").Controls.Item<Field>("txtNotes").Text = notes;
    if (isNoValue(notes)) Sections("gfNotes").Visible = false;
}

void actRepBound::fillTitle() {
    const mdiVelmar &main = mdiVelmar::instance();
    auto &title = Sections("ghTitle").Controls.Item<Label>("lblTitle");
    title.Text = main.GetTableName(main.GetTableIndex(m_key));
    if (bGroupData) title.Text += " - Compatible Group Data * **";
    nameMaterial(title, *m_material);
}

Label &actRepBound::heading(int column) const {
    return Sections("ghTitle").Controls.Item<Label>("lblCol" + QString::number(column));
}

Field &actRepBound::field(int column) const {
    return Sections("Detail").Controls.Item<Field>("txtField" + QString::number(column));
}

void actRepBound::placeColumns(int width) {
    for (int column = 2; column <= 4; ++column) {
        heading(column).Left = field(column).Left = TemperatureWidth + (column - 2) * width;
        heading(column).Width = field(column).Width = width;
    }
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

void actRepBound::showFormula(int column, const TemperatureColumn &known) {
    ControlList &controls = Sections("ghTitle").Controls;
    Label &label = heading(column);
    auto &image = controls.Item<Image>(column == 2 ? "imgPhysA" : "imgPhysB");
    for (int i = 0; i < static_cast<int>(std::size(Formulas)); ++i)
        if (known.picture == QLatin1String(Formulas[i]))
            image.Content = controls.Item<Image>("imgPhys" + QString::number(i)).Content;
    image.Left = label.Left;
    image.Top = label.Top;
    image.Width = label.Width;
    image.Height = label.Height;
    image.Visible = true;
    image.AlternativeText = known.heading.simplified();
    label.Text.clear();
}
