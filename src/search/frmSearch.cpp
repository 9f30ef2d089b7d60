#include "search/frmSearch.h"

#include <QTimer>

#include "data/look_ahead.h"
#include "data/modDBase.h"
#include "data/queries.h"
#include "platform/dao/database.h"
#include "platform/dao/recordset.h"
#include "platform/forms/default_instance.h"
#include "platform/forms/help_context.h"
#include "platform/runtime/app.h"
#include "platform/runtime/conversions.h"
#include "pma/frmPmaIndex.h"
#include "pma/modDocument.h"
#include "search/mod800x600.h"
#include "search/ResultGrid.h"
#include "search/search_tips.h"
#include "search/SearchCriteria.h"
#include "search/SelectedList.h"
#include "shell/HTMLHelp.h"
#include "shell/mdiVelmar.h"
#include "shell/modToolTips.h"

namespace {

constexpr int Width1024 = 15090;
constexpr int Height1024 = 10020;
constexpr int Width800 = 11700;
constexpr int Height800 = 7470;

} // namespace

frmSearch::frmSearch()
    : Form("frmSearch", Kind::MdiChild)
    , SearchControls(*static_cast<QWidget *>(this))
    , m_criteria(std::make_unique<SearchCriteria>(*this))
    , m_results(std::make_unique<ResultGrid>(*this, *m_criteria))
    , m_selected(std::make_unique<SelectedList>(*this)) {
    setCaption("Select Material(s)...");
    HelpContext::set(*this, "Selecting.htm");
    setIcon(QIcon(":/velmar/app/velmar-ped.svg"));
    setSizable(false);
    setMinMaxButtons(true, false);
    connectControls();
}

frmSearch::~frmSearch() = default;

void frmSearch::connectControls() {
    SelectedList *selected = m_selected.get();
    connect(m_criteria.get(), &SearchCriteria::EnterPressed, selected, &SelectedList::addFromList);
    connect(tdbMaterials, &TDBGrid::EnterPressed, selected, &SelectedList::addFromList);
    connect(tdbMaterials, &TDBGrid::DblClick, selected, &SelectedList::add);
    connect(imgIcon, &ImageBox::Click, this, [] { HTMLHelp::ShowHelpTopic(1, "How_To_Contact_Us.htm"); });
    connect(cmdShowPmaIndex, &QPushButton::clicked, this, [this] {
        auto &index = DefaultInstance<frmPmaIndex>();
        index.setHeight(8500);
        index.setWidth(12800);
        index.ShowModal(this);
    });
}

void frmSearch::Form_Load() {
    mSearchFields = SearchStatements::initialFields();
    mStandardKinds = SearchStatements::standardKinds();
    for (DataControl *source : {dtaStandard, dtaMaterials, dtaSelected, dtaProdForm})
        source->setDatabaseName(modDBase::dbMain()->Name());
    dtaStandard->Refresh();
    showStdInfo(false);
    readLatestRevision();
    dtaMaterials->Refresh();
    fitSize();
    m_criteria->showCount();
    dtaSelected->Refresh();
    mdiVelmar::instance().SetRowColors(*tdbMaterials, false);
    mdiVelmar::instance().SetRowColors(*tdbSelected, true);
    m_results->applySavedLayout();
    tdbMaterials->HoldFields();
    tdbSelected->HoldFields();
    modToolTips::InitToolTips();
    orderTabs();
    SearchMaterials(SearchStatements::DefaultOrder);
    restoreCriteria();
    // this empties the boxes again, so that the window always opens on the whole list: a criterion forgotten
    // in the last run would hide grades
    cmbChooseStd->setCurrentIndex(0);
    cmdShowPmaIndex->setVisible(modDocument::FileExists(App::current().path + frmPmaIndex::strPmaFile));
    txtSearch(0)->setFocus();
    // once the list is seen and the processors are at rest
    QTimer::singleShot(150, this, [] {
        if (const auto database = modDBase::dbMain()) expectTablesOfGrades(*database);
    });
}

void frmSearch::readLatestRevision() {
    if (dtaStandard->recordset()->Eof()) return;
    dtaStandard->setRecordSource(Queries::sqlLatestRevision());
    dtaStandard->Refresh();
    const auto clone = dtaStandard->recordset()->Clone();
    clone->MoveFirst();
    mLatestRevision = clone->Fields("revision_date").toDateTime();
    dtaStandard->setRecordSource(Queries::sqlAllStandards());
    dtaStandard->Refresh();
}

void frmSearch::fitSize() {
    if (mdiVelmar::instance().bLowRes)
        mod800x600::FitSearchWindow();
    else
        Move(120, 20, Width1024, Height1024);
}

void frmSearch::restoreCriteria() {
    for (const auto &[index, box] : txtSearch)
        box->setText(mdiVelmar::instance().SavedSearch(index));
}

void frmSearch::Form_Resize() {
    if (WindowState() == vbMinimized) return;
    const bool lowRes = mdiVelmar::instance().bLowRes;
    setHeight(lowRes ? Height800 : Height1024);
    setWidth(lowRes ? Width800 : Width1024);
}

void frmSearch::Form_QueryUnload(bool &cancel, UnloadMode mode) {
    cancel = mode == vbFormControlMenu;
}

void frmSearch::keepCriteria() const {
    if (cmbChooseStd->currentIndex() < 0) return; // the boxes have not been filled yet
    mdiVelmar &main = mdiVelmar::instance();
    for (const auto &[index, box] : txtSearch)
        main.setSavedSearch(index, box->text());
    main.setSavedSearch(7, QString::number(cmbChooseStd->currentIndex()));
}

void frmSearch::Form_Unload(bool &) {
    keepCriteria();
    mdiVelmar::instance().menu.mnuFileElem(FileEntry::ShowOrSelect).setEnabled(true);
}

void frmSearch::SetToolTips(bool showTips) {
    SearchTips::set(*this, showTips);
}

void frmSearch::SearchMaterials(const QString &orderBy) {
    m_criteria->SearchMaterials(orderBy);
}

void frmSearch::RefreshSelected(const QString &order) {
    m_selected->refresh(order);
}

void frmSearch::SelectGrade(qint16 id) {
    m_selected->addGrade(id);
}

void frmSearch::ShowSelections() {
    m_selected->show();
}
