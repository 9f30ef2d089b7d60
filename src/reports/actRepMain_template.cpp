#include "reports/actRepMain_template.h"

#include "reports/actRepMain.h"
#include "reports/report_layout.h"

namespace MainReportTemplate {

using namespace Printing;
using namespace ReportLayout;

namespace {

// The distance above a heading parts it from the place before.
constexpr int HeadingTop = 360;
constexpr int HeadingHeight = 345;
constexpr int PlaceHeight = 840;
constexpr int TableDistance = 300;
constexpr int IconSize = 360;
constexpr int LineHeight = 270;

const QString IconFolder = QStringLiteral(":/velmar/toolbar/");

/// A word of the header and the field beside it.
void addPair(Section &section, const QString &label, const QString &word, const QString &field, int left,
             int top, int labelWidth, int fieldWidth) {
    Label &name = addLabel(section, label, word, left, top, labelWidth, LineHeight);
    name.ForeColor = QColor(0x55, 0x55, 0x55);
    addField(section, field, left + labelWidth, top, fieldWidth, LineHeight).Font.Bold = true;
}

void addBlockTitle(Section &section, const QString &name, const QString &text, int top) {
    Label &label = addLabel(section, name, text, 0, top, PageWidth, 300);
    label.Font.Bold = true;
    label.Font.Size = 11;
    auto &rule = section.Controls.Add<Line>("lin" + text);
    rule.Top = top + 300;
    rule.Width = PageWidth;
}

void addReportHeader(actRepMain &report) {
    Section &section = report.AddSection(SectionType::ReportHeader, "ReportHeader");
    section.Height = 3930;
    addProgramHead(section);

    constexpr int WordWidth = 1650;
    constexpr int Right = 6000;
    constexpr int RightWordWidth = 1050;
    const auto addWide = [&section](const char *label, const char *word, const char *field, int top) {
        addPair(section, label, word, field, 0, top, WordWidth, PageWidth - WordWidth);
    };
    const auto addLeft = [&section](const char *label, const char *word, const char *field, int top) {
        addPair(section, label, word, field, 0, top, WordWidth, Right - 120 - WordWidth);
    };
    const auto addRight = [&section](const char *label, const char *word, const char *field, int top) {
        addPair(section, label, word, field, Right, top, RightWordWidth, PageWidth - Right - RightWordWidth);
    };
    addBlockTitle(section, "lblMaterial", "Material", 870);
    addLeft("lblMatName", "Name", "txtMatName", 1230);
    addRight("lblNumber", "Number", "txtMatNumber", 1230);
    addLeft("lblMatGroup", "Group", "txtMatGroup", 1530);
    addRight("lblRevDate", "Rev. Date", "txtRevDate", 1530);
    addWide("lblMatDesc", "Description", "txtMatDesc", 1830);
    addBlockTitle(section, "lblStandard", "Standard", 2280);
    addLeft("lblSName", "Name", "txtStandName", 2640);
    addRight("lblSRevDate", "Rev. Date", "txtSRevDate", 2640);
    addWide("lblSDesc", "Description", "txtStandDesc", 2940);
    addWide("lblProdForm", "Product Form(s)", "txtProdForm", 3510);
}

/// A place for one table, under a heading of its own or of its group.
Section &addPlace(actRepMain &report, const QString &name, const QString &heading, const QString &headingText,
                  const QString &icon, const QString &picture) {
    Section &section = report.AddSection(SectionType::GroupHeader, name);
    section.KeepWithNext = false;
    section.KeepTogether = true;
    section.Height = PlaceHeight;
    addImage(section, icon, IconFolder + picture, 0, HeadingTop - 15, IconSize, IconSize);
    Label &label = addLabel(section, heading, headingText, IconSize + 90, HeadingTop,
                            PageWidth - IconSize - 90, HeadingHeight);
    asHeading(label, 1);
    return section;
}

void addFurtherPlace(actRepMain &report, const QString &name, const QString &subReport) {
    Section &section = report.AddSection(SectionType::GroupHeader, name);
    section.KeepWithNext = false;
    section.KeepTogether = true;
    section.Visible = false;
    addSubReport(section, subReport, TableDistance);
}

void addPlaces(actRepMain &report) {
    // the composition's report begins with the empty place of the title that it does not show
    addSubReport(addPlace(report, "ghChemComp", "lblChemComp", "Chemical Composition", "imgIcon1",
                          "chemical-composition.svg"),
                 "subRepChemComp", HeadingTop + HeadingHeight);
    Section &mech = addPlace(report, "ghMechProp", "lblMechProp", "Mechanical Properties", "imgIcon2",
                             "mechanical-properties.svg");
    // not shown itself: the design values take its picture
    addImage(mech, "imgIcon6", IconFolder + "design-values.svg", 0, HeadingTop - 15, IconSize, IconSize)
        .Visible = false;
    addSubReport(mech, "subRepMechProp", PlaceHeight);
    for (const char *number : {"1", "2", "3"})
        addFurtherPlace(report, QLatin1String("ghElevated") + QLatin1String(number),
                        QLatin1String("subRepElevated") + QLatin1String(number));
    addFurtherPlace(report, "ghCreepProp", "subRepCreepProp");
    addSubReport(
        addPlace(report, "ghImpEnergy", "lblImpEnergy", "Impact Energy", "imgIcon3", "impact-energy.svg"),
        "subRepImpEnergy", PlaceHeight);
    Section &phys = addPlace(report, "ghPhysProp1", "lblPhysProp", "Physical Properties", "imgIcon4",
                             "physical-properties.svg");
    phys.Visible = false;
    addSubReport(phys, "subRepPhysProp1", PlaceHeight);
    for (const char *number : {"2", "3", "4", "5"})
        addFurtherPlace(report, QLatin1String("ghPhysProp") + QLatin1String(number),
                        QLatin1String("subRepPhysProp") + QLatin1String(number));
    Section &info = addPlace(report, "ghAddInfo", "lblAddInfo", "Additional Information...", "imgIcon5",
                             "additional-information.svg");
    info.KeepTogether = false;
    addField(info, "txtAddInfo", 0, PlaceHeight, PageWidth, LineHeight);
}

void addFooter(actRepMain &report) {
    Section &section = report.AddSection(SectionType::PageFooter, "PageFooter");
    addPageFooter(section);
    asFootnote(section.Controls.Add<Label>("lblCopyright"));
}

} // namespace

void build(actRepMain &report) {
    report.DocumentName = "Velmar-PED";
    setPage(report.PageSetup);
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
