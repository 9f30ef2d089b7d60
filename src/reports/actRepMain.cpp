#include "reports/actRepMain.h"

#include <QDateTime>
#include <QScopeGuard>

#include "data/Material.h"
#include "data/status_numbers.h"
#include "platform/runtime/app.h"
#include "platform/runtime/regional_settings.h"
#include "platform/runtime/runtime_error.h"
#include "reports/actRepBatchPrint.h"
#include "reports/actRepBound.h"
#include "reports/actRepDesign.h"
#include "reports/actRepGraph.h"
#include "reports/actRepMain_template.h"
#include "reports/actRepUnBound.h"
#include "reports/report_export.h"
#include "reports/report_window.h"
#include "reports/ReportSource.h"
#include "shell/mdiVelmar.h"

using namespace Printing;

namespace {

std::unique_ptr<actRepMain> &globalInstance() {
    static std::unique_ptr<actRepMain> report;
    return report;
}

/// "A, C." for the forms A, B, C: the second is left out, as it always was.
QString productFormsText(const QStringList &forms) {
    QString text;
    for (int i = 0; i < forms.size(); ++i) {
        if (i <= 1)
            text = forms[0];
        else
            text += ", " + forms[i];
    }
    return text + '.';
}

} // namespace

actRepMain &actRepMain::instance() {
    if (!globalInstance()) globalInstance() = std::make_unique<actRepMain>();
    return *globalInstance();
}

actRepMain::actRepMain() {
    MainReportTemplate::build(*this);
}

void actRepMain::RunToFile() {
    const auto unload = qScopeGuard([] { globalInstance().reset(); });
    Run();
}

void actRepMain::ShowModal(QWidget *owner) {
    const auto unload = qScopeGuard([] { globalInstance().reset(); });
    Run();
    ReportWindow::showModal(*this, "actRepMain", owner);
}

void actRepMain::ReportStart() {
    chooseMaterial();
    choosePictures();
    fillHeader();
    nameBatchSections();
    setText("ReportHeader", "txtDateTime",
            RegionalSettings::current().dateText(QDateTime::currentDateTime()));
    setText("PageFooter", "lblCopyright", App::current().legalCopyright);
    chooseContent();
    if (mdiVelmar::instance().bBatchPrint) actRepBatchPrint::instance().ReportStarted();
}

void actRepMain::chooseMaterial() {
    const mdiVelmar &main = mdiVelmar::instance();
    mMaterial = main.bBatchPrint ? actRepBatchPrint::instance().colBatchMaterials.Item(1) : main.mCurrent;
    if (!mMaterial) throw RuntimeError(91);
}

/// The icons beside the headings are seen in the preview and on paper only.
void actRepMain::choosePictures() {
    if (bSaveToFile && iSaveFormat != ReportExport::Pdf) {
        Sections("ReportHeader").Controls.Item("imgVelmar").Visible = false;
        setText("ReportHeader", "lblVelmar", "Velmar-PED");
    }
    if (!bSaveToFile) return;
    for (const auto &section : sections()) {
        for (const auto &control : section->Controls) {
            auto *text = dynamic_cast<TextControl *>(control.get());
            if (control->Name.startsWith("imgIcon")) control->Visible = false;
            // into the place that the icon leaves
            if (text && text->HeadingLevel > 0) text->Left = 0;
        }
    }
}

void actRepMain::fillHeader() {
    const auto dateText = [](const QDateTime &date) { return RegionalSettings::current().dateText(date); };
    const std::pair<const char *, QString> texts[] = {
        {"txtMatName", mMaterial->Name()},
        {"txtMatNumber", mMaterial->Number()},
        {"txtMatGroup", mMaterial->Group()},
        {"txtMatDesc", mMaterial->Description()},
        {"txtRevDate", dateText(mMaterial->RevisionDate())},
        {"txtStandName", mMaterial->Standard()},
        {"txtStandDesc", mMaterial->StandardDescription()},
        {"txtSRevDate", dateText(mMaterial->StandardRevisionDate())}};
    for (const auto &[field, text] : texts)
        setText("ReportHeader", field, text);
    if (mMaterial->HasProductForms() && !mMaterial->ProductForms().isEmpty())
        setText("ReportHeader", "txtProdForm", productFormsText(mMaterial->ProductForms()));

    strReportKey = mMaterial->Name() + '_' + mMaterial->Number();
    Caption = "Name : " + mMaterial->Name() + " Number : " + mMaterial->Number() +
              " Standard : " + mMaterial->Standard();
    DocumentName = App::current().title + '_' + strReportKey;
    Author = App::current().title;
    setText("PageFooter", "lblDocName", DocumentName);
}

/// In a long batch each section says whose it is, and the outline has the material above its sections.
void actRepMain::nameBatchSections() {
    if (!mdiVelmar::instance().bBatchPrint) return;
    auto &title = Sections("ReportHeader").Controls.Item<Label>("lblVelmar");
    title.HeadingLevel = 1;
    title.OutlineText = mMaterial->Name() + ' ' + mMaterial->Number() + ' ' + mMaterial->Standard();
    const std::pair<const char *, const char *> headings[] = {
        {"ghChemComp", "lblChemComp"}, {"ghImpEnergy", "lblImpEnergy"}, {"ghAddInfo", "lblAddInfo"}};
    for (const auto &[section, label] : headings)
        Sections(QLatin1String(section)).Controls.Item<Label>(label).Text += "     " + strReportKey;
}

/// A batch prints tables, and its windows are gone by then.
ReportKind actRepMain::reportKind() const {
    if (mdiVelmar::instance().bBatchPrint) return ReportKind::Tables;
    return ReportSource::of(*mMaterial).reportKind();
}

void actRepMain::chooseContent() {
    const ReportKind kind = reportKind();
    if (kind != ReportKind::Tables) {
        if (kind == ReportKind::Graph) {
            placeReport("ghMechProp", "subRepMechProp", std::make_shared<actRepGraph>(mMaterial));
        } else {
            placeReport("ghMechProp", "subRepMechProp", std::make_shared<actRepDesign>(mMaterial));
            ControlList &controls = Sections("ghMechProp").Controls;
            controls.Item<Image>("imgIcon2").Content = controls.Item<Image>("imgIcon6").Content;
            setText("ghMechProp", "lblMechProp", "Design Values");
        }
        // it is all there is, and may begin below the header
        Sections("ghMechProp").KeepTogether = false;
        hide("ghChemComp");
        hide("ghImpEnergy");
        hide("ghAddInfo");
        return;
    }
    selectTables();
    if (!mMaterial->AddInfo().isEmpty() && prints("AddInfo"))
        setText("ghAddInfo", "txtAddInfo", mMaterial->AddInfo());
    else
        hide("ghAddInfo");
}

/// The order of the keys in the queues is the order in which the engine starts the sub-reports: that of the
/// sections.
void actRepMain::selectTables() {
    QStringList &unbound = mMaterial->colUnBoundTables();
    QStringList &bound = mMaterial->colBoundTables();
    int mechanical = 0;

    if (prints("ChemComp")) {
        unbound.append("ChemComp");
        placeReport("ghChemComp", "subRepChemComp", std::make_shared<actRepUnBound>(mMaterial));
    } else {
        hide("ghChemComp");
    }
    if (prints("MechProp")) {
        mechanical = 1;
        unbound.append("MechProp");
        placeReport("ghMechProp", "subRepMechProp", std::make_shared<actRepUnBound>(mMaterial));
    }
    if (prints("CreepProp")) {
        ++mechanical;
        unbound.append("CreepProp");
        placeReport("ghCreepProp", "subRepCreepProp", std::make_shared<actRepUnBound>(mMaterial));
    }
    for (const char *key : {"Rp02", "Rp10", "Rm"}) {
        if (!prints(key)) continue;
        ++mechanical;
        bound.append(key);
        nextElevatedSlot();
    }
    // its heading is that of the whole group: it stays, with nothing of its own below it, for any of the
    // others
    if (mechanical == 0) hide("ghMechProp");
    if (prints("ImpEnergy")) {
        placeReport("ghImpEnergy", "subRepImpEnergy", std::make_shared<actRepBound>(mMaterial));
        bound.append("ImpEnergy");
    } else {
        hide("ghImpEnergy");
    }
    for (const char *key : {"ModElast", "ThermExp", "ThermCond", "SpecThermCap", "SpecElecRes"}) {
        if (!prints(key)) continue;
        bound.append(key);
        nextPhysicalSlot();
    }
}

void actRepMain::nextElevatedSlot() {
    const QString number = QString::number(++iElevatedSlot);
    if (iElevatedSlot <= 3)
        placeReport("ghElevated" + number, "subRepElevated" + number,
                    std::make_shared<actRepBound>(mMaterial));
}

void actRepMain::nextPhysicalSlot() {
    const QString number = QString::number(++iPhysSlot);
    if (iPhysSlot <= 5)
        placeReport("ghPhysProp" + number, "subRepPhysProp" + number,
                    std::make_shared<actRepBound>(mMaterial));
}

void actRepMain::placeReport(const QString &section, const QString &control, std::shared_ptr<Report> report) {
    Sections(section).Visible = true;
    Sections(section).Controls.Item<SubReport>(control).Object = std::move(report);
}

void actRepMain::hide(const QString &section) {
    Sections(section).Visible = false;
}

void actRepMain::setText(const QString &section, const QString &control, const QString &text) {
    Sections(section).Controls.Item<TextControl>(control).Text = text;
}

bool actRepMain::prints(const QString &key) const {
    return mMaterial->PrintTable(mdiVelmar::instance().GetTableIndex(key));
}

void actRepMain::ReportEnd() {
    mdiVelmar &main = mdiVelmar::instance();
    if (!bSaveToFile) {
        main.ShowStatus(StatusNumber::onlyShown(StatusNumber::Preview));
        return;
    }
    main.ShowStatus(StatusNumber::onlyShown(StatusNumber::ChooseFile));
    try {
        ReportExport::saveAsking(document(), iSaveFormat, mMaterial->Name(), main.comDlg);
    } catch (const RuntimeError &) {
        // Cancel, or no way to write the file: nobody is told, and the help says so; a box would stop a row
        // of saves
    }
    main.ShowStatus(bFromChart ? StatusNumber::onlyShown(StatusNumber::EnlargedChart)
                               : StatusNumber::Restore);
}
