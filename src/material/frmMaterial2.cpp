#include "material/frmMaterial2.h"

#include "data/cell_values.h"
#include "data/Material.h"
#include "data/table_vocabulary.h"
#include "material/frmChart.h"
#include "material/material_layout.h"
#include "platform/forms/default_instance.h"
#include "platform/forms/help_context.h"
#include "platform/runtime/runtime_error.h"
#include "reports/frmSave.h"
#include "reports/report_commands.h"
#include "reports/report_export.h"
#include "shell/mdiVelmar.h"

using namespace MaterialLayout;

namespace {

/// Of a page without a row in the vocabulary, as the design values are.
constexpr int PlainSymbol = 10;

bool hasGraph(const QString &boundKey) {
    const TableVocabulary::Table *table = TableVocabulary::find(boundKey);
    return table && table->yAxisTitle;
}

/// By the index of cmdPrintSave.
const QStringList PrintSaveTips{"Save Graph As Portable Document Format File (*.pdf)...",
                                "Print (Preview) Graph...", "Enlarge Graph View",
                                "Print (Preview) Design Values Table...",
                                "Save Design Values Table To File (*.pdf,*.rtf,*.txt)..."};

} // namespace

frmMaterial2::frmMaterial2()
    : MaterialControls(static_cast<QWidget &>(*this))
    , m_graphs(*this)
    , m_notes(*this)
    , m_noData(*this, m_graphs)
    , m_unboundGrid(*tdbTable)
    , m_references(*this)
    , m_composition(m_tables, m_unboundGrid, m_notes)
    , m_chart(*this, m_tables, m_unboundTables.columns)
    , m_unboundTables(*this, m_tables, m_unboundGrid, m_notes, m_noData, m_chart)
    , m_boundTables(*this, m_tables, m_notes, m_noData, m_chart)
    , m_addInfo(m_tables, m_notes)
    , m_design(*this, *this, m_tables.values)
    , m_saving(*this, m_tables, m_design) {
    setIcon(QIcon(":/velmar/app/velmar-ped.svg"));
    HelpContext::set(*this, "Material_Window.htm");
    setWidth(WindowWidth);
    setHeight(WindowHeight);
    connectControls();
}

frmMaterial2::~frmMaterial2() = default;

void frmMaterial2::connectControls() {
    connect(cmdShowNotes, &QPushButton::clicked, this, [this] { m_notes.Toggle(); });
    connect(TimerFlash, &QTimer::timeout, this, [this] { m_notes.Flash(); });
    connect(CommandShowGraph, &QPushButton::clicked, this, [this] { m_graphs.Choose(true); });
    connect(CommandShowTable, &QPushButton::clicked, this, [this] { m_graphs.Choose(false); });
    connect(cmdUnBoundGraph, &QPushButton::clicked, this, [this] { m_graphs.ShowUnboundGraph(true); });
    connect(cmdUnBoundTable, &QPushButton::clicked, this, [this] { m_graphs.ShowUnboundGraph(false); });
    connect(cboColumnList, &QComboBox::currentIndexChanged, this, [this] {
        if (m_chart.pickColumns()) m_chart.BuildColumnChart(*m_material, strCurrentTable);
    });
    for (const auto &[index, button] : cmdPrintSave)
        connect(button, &QToolButton::clicked, this, [this, i = index] { printSave(i); });
    // Behind the page of design values, which may have changed the text itself by then.
    connect(txtDesignTemp, &QLineEdit::textChanged, this, [this] { offerSaving(); });
    const QStringList keys{"Rp02", "Rp10", "Rm"};
    for (int i = 0; i < keys.size(); ++i)
        connect(optMechProp(i), &QRadioButton::clicked, this, [this, key = keys[i]] { ShowTable(key); });
}

void frmMaterial2::printSave(int index) {
    constexpr int Enlarge = 2;
    if (index == Enlarge) {
        NewForm<frmChart>()->ShowModal();
        return;
    }
    const bool designValues = index > Enlarge;
    if (designValues && !m_design.hasTemperature()) return;
    iReportType = designValues ? ReportKind::DesignValues : ReportKind::Graph;
    switch (index) {
    case 0:
        ReportCommands::saveReport(ReportExport::Pdf);
        break;
    case 4:
        DefaultInstance<frmSave>().setCaption("Save Design Values...");
        DefaultInstance<frmSave>().ShowModal();
        break;
    default:
        ReportCommands::previewReport();
        break;
    }
}

void frmMaterial2::Form_Load() {
    mdiVelmar &main = mdiVelmar::instance();
    InitLayout();
    m_notes.StorePlace();
    for (TDBGrid *grid : {tdbTable, tdbBoundTable, tdbDesign})
        main.SetRowColors(*grid, false);
    if (!main.menu.mnuSettingsElem(SettingsEntry::Colour).Checked()) main.Do_Undo_Colour(*this);
    m_boundTables.InitColumns();
    lblDesignTemp->setText(lblDesignTemp->text() + " [°C]");
    HideAll();
    showReferencePage();
    SetToolTips(main.bToolTips);
}

void frmMaterial2::SetToolTips(bool showTips) {
    const auto tip = [showTips](const QString &text) { return showTips ? text : QString(); };
    for (int i = 0; i < PrintSaveTips.size(); ++i)
        cmdPrintSave(i)->setToolTip(tip(PrintSaveTips[i]));
    txtDesignTemp->setToolTip(tip("Enter Design Temperature Here"));
    txtMainData(6)->setToolTip(tip("Date Velmar-PED last updated for this Material"));
    txtMainData(8)->setToolTip(tip("Date Velmar-PED last updated for this Standard"));
    const bool notesOpen = placeOf(framNotes).height() > ClosedNotesHeight;
    cmdShowNotes->setToolTip(tip(notesOpen ? "Hide Table Notes" : "Show Table Notes"));
}

void frmMaterial2::Form_Activate() {
    mdiVelmar::instance().SetCurrentMaterial(m_material);
    keepFocus();
}

/// The user cannot resize the window, only maximise or minimise it.
void frmMaterial2::Form_Resize() {
    if (WindowState() != vbNormal) return;
    if (Width() != WindowWidth) setWidth(WindowWidth);
    if (Height() != WindowHeight) setHeight(WindowHeight);
}

void frmMaterial2::showReferences(const LoadedTable &references) {
    m_references.Fill(references);
}

void frmMaterial2::ShowTable(const QString &key) {
    if (!m_material) throw RuntimeError(91);
    Material &material = *m_material;
    HideAll();
    strCurrentTable = key;
    if (key == QLatin1String("Ref")) {
        showReferencePage();
    } else if (key == QLatin1String("ChemComp")) {
        showComposition(material);
    } else if (key == QLatin1String("MechProp") || key == QLatin1String("CreepProp")) {
        showUnboundTable(material, key);
    } else if (key == QLatin1String("AddInfo")) {
        showAddInfo(material);
    } else if (key == QLatin1String("Design")) {
        showDesign(material);
    } else if (key == QLatin1String("Elevated")) {
        strCurrentTable = "Rp02";
        optMechProp(0)->setChecked(true);
        showBoundTable(material, strCurrentTable);
    } else {
        showBoundTable(material, key);
    }
    setPageSymbol(strCurrentTable);
    offerSaving();
    keepFocus();
}

void frmMaterial2::offerSaving() {
    if (m_material) m_saving.Offer(*m_material, strCurrentTable);
}

void frmMaterial2::CheckTablesForRecords() {
    const QString shown = strCurrentTable;
    GradeWindow::CheckTablesForRecords();
    ShowTable(shown);
}

LoadedTable frmMaterial2::load(const QString &key) {
    LoadedTable table = GradeWindow::load(key);
    // As after the page of such a table: the next one shows as a table, and not as a graph.
    if (!table.noData.isEmpty() && !TableVocabulary::isUnbound(key)) m_graphs.bGraphShown = false;
    return table;
}

void frmMaterial2::HideAll() {
    m_saving.Withdraw();
    m_notes.Reset();
    for (QWidget *part : QList<QWidget *>{ImgPic(1), ImgPic(2), framAxisCols, framChart, tdbTable, framMain,
                                          framStand, lblFullForm, lblMain, tdbBoundTable, framOptions,
                                          framBlank, cmdUnBoundGraph, framDesign, txtNoData, framNoData})
        part->hide();
    m_graphs.ResetBlank();
    m_boundTables.ResetColumns();
}

void frmMaterial2::showReferencePage() {
    for (QWidget *part : QList<QWidget *>{framMain, framStand, lblMain, ImgPic(1)})
        part->show();
}

void frmMaterial2::showComposition(Material &material) {
    for (QWidget *part : QList<QWidget *>{tdbTable, lblFullForm, framNotes})
        part->show();
    m_unboundGrid.ClearUnboundGrid();
    m_composition.LoadChemical(material);
}

void frmMaterial2::showUnboundTable(Material &material, const QString &key) {
    for (QWidget *part : QList<QWidget *>{tdbTable, lblFullForm, framNotes})
        part->show();
    m_unboundGrid.ClearUnboundGrid();
    m_unboundTables.LoadUnboundColumns(material, key);
    cmdUnBoundGraph->setVisible(key == QLatin1String("CreepProp") && material.TableHasData(key));
}

void frmMaterial2::showAddInfo(Material &material) {
    m_notes.ShowAsPage();
    lblFullForm->show();
    m_addInfo.LoadAddInfo(material);
    cmdShowNotes->hide();
}

void frmMaterial2::showDesign(Material &material) {
    if (!m_design.bDesignBuilt) {
        m_design.BuildDesignTable(material, [this](const QString &key) { load(key); });
        m_design.bDesignBuilt = true;
    }
    framDesign->show();
    lblFullForm->show();
}

void frmMaterial2::showBoundTable(Material &material, const QString &key) {
    framOptions->show();
    lblElevated->setVisible(TableVocabulary::isElevated(key));
    framMechOpt->setVisible(TableVocabulary::isElevated(key));
    m_graphs.ShowBoundPage(hasGraph(key));
    lblFullForm->show();
    m_boundTables.LoadBoundTable(material, key);
    if (TableVocabulary::isElevated(key)) focusMechOption();
}

void frmMaterial2::focusMechOption() {
    // The focus would bring a window behind to the front.
    const Form *front = mdiVelmar::instance().activeChild();
    if (front != nullptr && front != this) return;
    for (const auto &[index, option] : optMechProp)
        if (option->isChecked() && !framOptions->isHidden()) option->setFocus();
}

/// The control that had the focus may have gone with its page, and left it to the frame around this window.
void frmMaterial2::keepFocus() {
    if (mdiVelmar::instance().activeChild() != this) return;
    const QWidget *focused = window()->focusWidget();
    if (focused != nullptr && focused->isVisible() && isAncestorOf(focused)) return;
    if (framDesign->isVisible() && txtDesignTemp->isEnabled())
        txtDesignTemp->setFocus();
    else
        focusNextChild();
}

void frmMaterial2::setPageSymbol(const QString &key) {
    const TableVocabulary::Table *table = TableVocabulary::find(key);
    const QString picture = mdiVelmar::instance().ImageList1.Source(table ? table->symbol : PlainSymbol);
    ImgPic(0)->setPicture(picture);
    ImgPic(2)->setPicture(picture);
}
