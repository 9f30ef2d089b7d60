#include "search/SelectedList.h"

#include "data/cell_values.h"
#include "data/Material.h"
#include "data/modDBase.h"
#include "data/queries.h"
#include "data/status_numbers.h"
#include "material/frmMaterial2.h"
#include "material/UnseenMaterial.h"
#include "platform/dao/database.h"
#include "platform/dao/recordset.h"
#include "platform/forms/announcement.h"
#include "platform/forms/default_instance.h"
#include "platform/forms/drop_target.h"
#include "platform/forms/msg_box.h"
#include "platform/forms/toolbar.h"
#include "platform/runtime/conversions.h"
#include "search/frmSearch.h"
#include "shell/main_state.h"
#include "shell/mdiVelmar.h"

namespace {

constexpr int MostMaterials = 10;
constexpr int MostForBatch = 30;

int matID(const Recordset &grades) {
    return CInt(grades.Fields("matID"));
}

/// Whether the grade's standard is known. Tells the user where it is not.
bool hasStandard(const Recordset &found, const Recordset &standards) {
    if (!standards.Eof() && !standards.Bof()) return true;
    MsgBox("The standard '" + cellText(found.Fields("standard")) + "' of the material '" +
               cellText(found.Fields("name")) + "' is not in the database. The material cannot be selected.",
           vbExclamation, "Standard Missing");
    return false;
}

} // namespace

SelectedList::SelectedList(frmSearch &window)
    : m_search(window) {
    connect(m_search.cmdSelectMat, &QPushButton::clicked, this, &SelectedList::add);
    connect(m_search.cmdSelections(0), &QPushButton::clicked, this, &SelectedList::show);
    connect(m_search.cmdSelections(1), &QPushButton::clicked, this, &SelectedList::clear);
    connect(m_search.cmdSelections(2), &QPushButton::clicked, this, &SelectedList::remove);
    connect(m_search.tdbSelected, &TDBGrid::DblClick, this, &SelectedList::show);
    connect(m_search.tdbSelected, &TDBGrid::HeadClick, this,
            [this](int column) { refresh(m_search.mSearchFields[static_cast<std::size_t>(column)].field); });

    for (const auto &[index, button] : m_search.cmdBatch)
        connect(button, &QPushButton::clicked, this, &SelectedList::printAll);

    const auto adds = [this](const QString &source) {
        if (source == m_search.tdbMaterials->objectName()) add();
    };
    const auto removes = [this](const QString &source) {
        if (source == m_search.tdbSelected->objectName()) remove();
    };
    connect(new DropTarget(m_search.imgFolder), &DropTarget::Dropped, this, adds);
    connect(m_search.tdbSelected, &TDBGrid::Dropped, this, adds);
    connect(new DropTarget(m_search.imgBin), &DropTarget::Dropped, this, removes);
    connect(m_search.tdbMaterials, &TDBGrid::Dropped, this, removes);
}

bool SelectedList::batchOffered() const {
    return !m_search.cmdBatch(0)->isHidden();
}

void SelectedList::addFromList() {
    if (m_search.dtaMaterials->recordset()->RecordCount() > 0) add();
}

bool SelectedList::mayAdd(const Recordset &found) const {
    const Materials &selected = mdiVelmar::instance().colMaterials;
    if ((selected.Count() == MostMaterials && !batchOffered()) || selected.Count() == MostForBatch) {
        // the title says 10 for 30 too: the number that holds is in the text
        MsgBox("You have already selected the Maximum Number of Materials", vbInformation,
               "10 Materials already selected!");
        return false;
    }
    const int id = matID(found);
    for (const auto &material : selected) {
        if (material->ID() != id) continue;
        MsgBox("This Material is already selected!", vbOKOnly, "Duplicate Choice");
        return false;
    }
    return true;
}

void SelectedList::add() {
    if (m_search.cmbChooseStd->currentText() != QLatin1String("EN"))
        MsgBox("You have entered an ASME/SS-standard. \r\n"
               "The material properties given by VELMAR PED are valid for EN-standards only.",
               vbExclamation, "ASME/SS-standard");
    const auto found = m_search.dtaMaterials->recordset();
    if (found->Eof() || found->Bof() || !mayAdd(*found)) return;
    take(*found, *m_search.dtaStandard->recordset());
}

void SelectedList::addGrade(qint16 id) {
    Database &database = *modDBase::dbMain();
    const auto found = database.OpenRecordset(Queries::sqlSelectedMaterials({id}));
    if (found->Eof() || !mayAdd(*found)) return;
    const auto standards = database.OpenRecordset(Queries::sqlAllStandards());
    const QString standard = cellText(found->Fields("standard"));
    while (!standards->Eof() &&
           cellText(standards->Fields("standard")).compare(standard, Qt::CaseInsensitive) != 0)
        standards->MoveNext();
    take(*found, *standards);
}

void SelectedList::take(const Recordset &found, const Recordset &standard) {
    if (!hasStandard(found, standard)) return;
    auto material = std::make_shared<Material>();
    material->SetProperties(found, standard);
    Materials &selected = mdiVelmar::instance().colMaterials;
    selected.Add(material);
    refresh({});
    if ((selected.Count() == MostMaterials && !batchOffered()) || selected.Count() == MostForBatch)
        m_search.cmdSelectMat->setEnabled(false);
}

void SelectedList::remove() {
    Materials &selected = mdiVelmar::instance().colMaterials;
    if (selected.Count() == 0) return;
    const int id = matID(*m_search.dtaSelected->recordset());
    for (const auto &material : selected) {
        if (material->ID() != id) continue;
        selected.Remove(Materials::keyOf(*material));
        m_search.cmdSelectMat->setEnabled(true);
        refresh({});
        fillBin();
        return;
    }
}

void SelectedList::clear() {
    Materials &selected = mdiVelmar::instance().colMaterials;
    if (selected.Count() == 0) return;
    while (selected.Count() > 0)
        selected.Remove(1);
    m_search.dtaSelected->setRecordSource(Queries::sqlNoMaterialCleared());
    m_search.dtaSelected->Refresh();
    fillBin();
    showCount();
    m_search.cmdSelectMat->setEnabled(true);
}

/// Nothing empties it again while the window lives: it tells that a material was taken out, and the list does
/// not.
void SelectedList::fillBin() {
    if (m_search.imgBin->Picture() != m_search.imgFullBin->Picture())
        m_search.imgBin->setPicture(m_search.imgFullBin->Picture());
}

void SelectedList::refresh(const QString &order) {
    QVector<int> ids;
    for (const auto &material : mdiVelmar::instance().colMaterials)
        ids << material->ID();
    if (ids.isEmpty())
        m_search.dtaSelected->setRecordSource(Queries::sqlNoMaterial());
    else
        m_search.dtaSelected->setRecordSource(Queries::sqlSelectedMaterials(ids) + " order by " +
                                              (order.isEmpty() ? "standard, name" : order));
    m_search.dtaSelected->Refresh();
    showCount();
    // a material also leaves the list when its window is closed by the toolbar
    if (ids.size() < MostMaterials) m_search.cmdSelectMat->setEnabled(true);
}

void SelectedList::showCount() {
    const int count = mdiVelmar::instance().colMaterials.Count();
    const QString text = count < 1    ? "No Materials Currently Selected"
                         : count == 1 ? "1 Material Currently Selected"
                                      : QString::number(count) + " Materials Currently Selected";
    if (text != m_search.lblSelCount->text()) announce(m_search, text);
    m_search.lblSelCount->setText(text);
}

void SelectedList::show() {
    if (mdiVelmar::instance().colMaterials.Count() == 0) return;
    OpenSelectedMaterials();
    mdiVelmar::instance().ShowStatus(StatusNumber::ChooseTable);
}

void SelectedList::OpenSelectedMaterials() {
    mdiVelmar &main = mdiVelmar::instance();
    main.setMousePointer(vbHourglass);
    openWindows();
    showMaterialCommands();
    MainState::arrange(main, main.iArrangement != 0);
    main.strTableButton = "Ref";
    if (!main.bBatchPrint)
        for (const auto &material : main.colMaterials)
            material->MyForm()->Show();
    main.iMaterialsOpen = static_cast<qint16>(main.colMaterials.Count());
    main.UpdateMenusAndButtons("View", 0);
    m_search.Hide();
    main.setMousePointer(vbDefault);
}

void SelectedList::printAll() {
    mdiVelmar &main = mdiVelmar::instance();
    if (main.colMaterials.Count() == 0) return;
    main.bBatchPrint = true;
    OpenSelectedMaterials();
    main.DoBatchPrint();
    main.bBatchPrint = false;
    main.SelectMaterials();
}

/// They stay invisible until they are in their places.
void SelectedList::openWindows() {
    for (const auto &material : mdiVelmar::instance().colMaterials) {
        // what a batch prints nobody looks at
        GradeWindow *window = mdiVelmar::instance().bBatchPrint
                                  ? static_cast<GradeWindow *>(NewForm<UnseenMaterial>())
                                  : NewForm<frmMaterial2>();
        window->setCaption("Name: " + material->Name() + " Number: " + material->Number() +
                           " Standard: " + material->Standard());
        window->SetMaterial(material);
    }
}

void SelectedList::showMaterialCommands() {
    mdiVelmar &main = mdiVelmar::instance();
    main.menu.mnuFileElem(FileEntry::ShowOrSelect).setCaption(SelectCaption);
    // a bar that the user has hidden stays hidden
    main.Toolbar1->setVisible(!main.menu.mnuSettingsToolElem(ToolbarEntry::Show).Enabled());
    MainState::showMaterialsOpen(main, true);
}
