#include "reports/actRepMain_template.h"

#include "reports/actRepMain.h"
#include "reports/report_layout.h"

namespace MainReportTemplate {

using namespace Printing;
using namespace ReportLayout;

namespace {

constexpr int HeadingTop = 240;
constexpr int SubReportTop = 690;
constexpr int RowHeight = 270;

const QString IconFolder = QStringLiteral(":/velmar/toolbar/");

/// A word of the header and the field beside it.
void addPair(Section &section, const QString &label, const QString &word, const QString &field, int left,
             int top, int labelWidth, int fieldWidth) {
    Label &name = addLabel(section, label, word, left, top, labelWidth, RowHeight);
    name.ForeColor = QColor(0x55, 0x55, 0x55);
    Field &value = addField(section, field, left + labelWidth, top, fieldWidth, RowHeight);
    value.Font.Bold = true;
    value.CanGrow = true;
}

void addBlockTitle(Section &section, const QString &name, const QString &text, int top) {
    Label &label = addLabel(section, name, text, 0, top, PageWidth, 300);
    label.Font.Bold = true;
    label.Font.Size = 11;
    label.VerticalAlignment = 1;
    label.Border.BottomStyle = 1;
}

void addReportHeader(actRepMain &report) {
    Section &section = report.AddSection(SectionType::ReportHeader, "ReportHeader");
    section.Height = 3930;
    // the picture fills the gap in front of the word: it is the product's first letter
    Image &letter = addImage(section, "imgVelmar", ":/velmar/app/velmar-ped.svg", 0, 90, 540, 540);
    letter.AlternativeText = "V";
    Label &title = addLabel(section, "lblVelmar", "     elmar-PED", 0, 120, 6000, 540);
    title.Font.Size = 20;
    title.Font.Bold = true;
    Field &dateTime = addField(section, "txtDateTime", 6600, 330, 3600, RowHeight);
    dateTime.Alignment = 1;
    dateTime.Font.Size = 9;

    constexpr int WordWidth = 1350;
    addBlockTitle(section, "lblMaterial", "Material", 870);
    addPair(section, "lblMatName", "Name", "txtMatName", 0, 1230, WordWidth, 3900);
    addPair(section, "lblNumber", "Number", "txtMatNumber", 5400, 1230, WordWidth, 3450);
    addPair(section, "lblMatGroup", "Group", "txtMatGroup", 0, 1530, WordWidth, 3900);
    addPair(section, "lblRevDate", "Rev. Date", "txtRevDate", 5400, 1530, WordWidth, 3450);
    addPair(section, "lblMatDesc", "Description", "txtMatDesc", 0, 1830, WordWidth, PageWidth - WordWidth);

    addBlockTitle(section, "lblStandard", "Standard", 2220);
    addPair(section, "lblSName", "Name", "txtStandName", 0, 2580, WordWidth, 3900);
    addPair(section, "lblSRevDate", "Rev. Date", "txtSRevDate", 5400, 2580, WordWidth, 3450);
    addPair(section, "lblSDesc", "Description", "txtStandDesc", 0, 2880, WordWidth, PageWidth - WordWidth);
    addPair(section, "lblProdForm", "Product Form(s)", "txtProdForm", 0, 3450, 1650, PageWidth - 1650);
}

/// A place for one table, under a heading of its own or of its group.
Section &addPlace(actRepMain &report, const QString &name, const QString &heading, const QString &headingText,
                  const QString &icon, const QString &picture) {
    Section &section = report.AddSection(SectionType::GroupHeader, name);
    section.KeepWithNext = false;
    section.Height = 930;
    addImage(section, icon, IconFolder + picture, 0, HeadingTop - 15, 360, 360);
    Label &label = addLabel(section, heading, headingText, 450, HeadingTop, PageWidth - 450, 345);
    asHeading(label, 1);
    return section;
}

void addTablePlace(actRepMain &report, const QString &name, const QString &subReport, bool shown) {
    Section &section = report.AddSection(SectionType::GroupHeader, name);
    section.KeepWithNext = false;
    section.Visible = shown;
    addSubReport(section, subReport, 120);
}

void addPlaces(actRepMain &report) {
    addSubReport(addPlace(report, "ghChemComp", "lblChemComp", "Chemical Composition", "imgIcon1",
                          "chemical-composition.svg"),
                 "subRepChemComp", SubReportTop);
    Section &mech = addPlace(report, "ghMechProp", "lblMechProp", "Mechanical Properties", "imgIcon2",
                             "mechanical-properties.svg");
    // not shown itself: the design values take its picture
    addImage(mech, "imgIcon6", IconFolder + "design-values.svg", 0, HeadingTop - 15, 360, 360).Visible =
        false;
    addSubReport(mech, "subRepMechProp", SubReportTop);
    for (int i = 1; i <= 3; ++i)
        addTablePlace(report, QStringLiteral("ghElevated%1").arg(i),
                      QStringLiteral("subRepElevated%1").arg(i), false);
    addTablePlace(report, "ghCreepProp", "subRepCreepProp", false);
    addSubReport(
        addPlace(report, "ghImpEnergy", "lblImpEnergy", "Impact Energy", "imgIcon3", "impact-energy.svg"),
        "subRepImpEnergy", SubReportTop);
    Section &phys = addPlace(report, "ghPhysProp1", "lblPhysProp", "Physical Properties", "imgIcon4",
                             "physical-properties.svg");
    phys.Visible = false;
    addSubReport(phys, "subRepPhysProp1", SubReportTop);
    for (int i = 2; i <= 5; ++i)
        addTablePlace(report, QStringLiteral("ghPhysProp%1").arg(i),
                      QStringLiteral("subRepPhysProp%1").arg(i), false);
    Section &info = addPlace(report, "ghAddInfo", "lblAddInfo", "Additional Information...", "imgIcon5",
                             "additional-information.svg");
    addField(info, "txtAddInfo", 0, SubReportTop, PageWidth, RowHeight).CanGrow = true;
}

void addFooter(actRepMain &report) {
    Section &section = report.AddSection(SectionType::PageFooter, "PageFooter");
    addPageFooter(section);
    asFootnote(section.Controls.Add<Label>("lblCopyright"));
}

} // namespace

void build(actRepMain &report) {
    report.DocumentName = "Velmar-PED";
    addReportHeader(report);
    report.AddSection(SectionType::PageHeader, "PageHeader");
    addPlaces(report);
    report.AddSection(SectionType::Detail, "Detail");
    for (int i = 13; i >= 1; --i)
        report.AddSection(SectionType::GroupFooter, QStringLiteral("GroupFooter%1").arg(i)).Visible = false;
    addFooter(report);
    report.AddSection(SectionType::ReportFooter, "ReportFooter").Visible = false;
}

} // namespace MainReportTemplate
