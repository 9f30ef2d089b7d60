#include "search/SearchCriteria.h"

#include <algorithm>

#include "data/modDBase.h"
#include "data/queries.h"
#include "data/status_numbers.h"
#include "platform/dao/recordset.h"
#include "platform/forms/announcement.h"
#include "platform/forms/colours.h"
#include "platform/forms/key_hooks.h"
#include "search/frmSearch.h"
#include "search/modDBase_picks.h"
#include "shell/mdiVelmar.h"

namespace {

/// Typed as a name, and then chkListAll ticked: offers the printing of all selected materials.
const QString CodeWord = QStringLiteral("ZORBALTIKREMO");
/// What fitting the window to a small screen gives the second of its two buttons.
constexpr int FittedBatchHeight = 375;

/// What a standards system leaves of boxes and columns.
struct KindLayout {
    const char *kind;
    QList<int> boxes;
    QList<int> columns;
};

const KindLayout &layoutOf(const QString &kind) {
    static const KindLayout layouts[] = {
        {"EN", {0, 1, 2, 3, 4, 5, 6}, {0, 1, 2, 3, 4, 5, 7, 8, 9}},
        {"SS", {6, 1}, {0, 1, 2, 9}},
        {"ASME", {0, 6, 1}, {0, 1, 2, 7, 8}},
    };
    return kind == QLatin1String("EN") ? layouts[0] : kind == QLatin1String("SS") ? layouts[1] : layouts[2];
}

void run(DataControl &source, const QString &sql) {
    source.setRecordSource(sql);
    source.Refresh();
}

} // namespace

SearchCriteria::SearchCriteria(frmSearch &window)
    : m_search(window) {
    for (const auto &[index, box] : m_search.txtSearch) {
        connect(box, &QLineEdit::textChanged, this, &SearchCriteria::boxChanged);
        onKeyPress(box, [this, i = index](int &keyAscii) { keyTyped(i, keyAscii); });
    }
    for (const auto &[index, button] : m_search.cmdSelect)
        connect(button, &QPushButton::clicked, this, [this, i = index] { openList(i); });
    connect(m_search.chkListAll, &QCheckBox::toggled, this, &SearchCriteria::listAllClicked);
    connect(m_search.cmbChooseStd, &DropDownList::Click, this, &SearchCriteria::chooseStandard);
}

SearchStatements::Criteria SearchCriteria::criteria() const {
    SearchStatements::Criteria result;
    for (const auto &[index, box] : m_search.txtSearch)
        result.boxes[static_cast<std::size_t>(index)] = box->text();
    result.standardKind = m_search.cmbChooseStd->currentText();
    result.fields = m_search.mSearchFields;
    return result;
}

void SearchCriteria::SearchMaterials(const QString &orderBy) {
    const SearchStatements::Criteria present = criteria();
    // The narrowed list of standards lasts for a moment only: what is selected is looked up in the whole one.
    run(*m_search.dtaStandard, SearchStatements::standardsStatement(present));
    run(*m_search.dtaStandard, Queries::sqlAllStandards());

    const SearchStatements::MainQuery query = SearchStatements::mainQuery(present, orderBy);
    mWhereClause = query.mWhereClause;
    run(*m_search.dtaMaterials, query.sql);
    showCount();
    sayOrder(orderBy);
}

/// Of several fields by the first.
void SearchCriteria::sayOrder(const QString &orderBy) {
    const QStringList words = orderBy.section(',', 0, 0).split(' ');
    const auto &fields = m_search.mSearchFields;
    const auto by = std::find_if(fields.begin(), fields.end(),
                                 [&words](const auto &field) { return field.field == words.first(); });
    m_search.tdbMaterials->setRowOrder(by == fields.end() ? -1 : static_cast<int>(by - fields.begin()),
                                       words.last() == QLatin1String("DESC") ? Qt::DescendingOrder
                                                                             : Qt::AscendingOrder);
}

void SearchCriteria::showCount() {
    const auto clone = m_search.dtaMaterials->recordset()->Clone();
    clone->MoveLast();
    clone->MoveFirst();
    const QString count = QString::number(clone->RecordCount());
    if (count != m_search.lblMatCount->text())
        announce(m_search, m_search.lblMaterialsCount->text() + ' ' + count);
    m_search.lblMatCount->setText(count);
}

void SearchCriteria::chooseStandard() {
    mStandardKind = m_search.cmbChooseStd->currentText();
    if (m_search.mStandardKinds.contains(mStandardKind)) applyKind();
    m_search.tdbMaterials->ScrollToFirstColumn();
    for (const auto &[index, box] : m_search.txtSearch) {
        setBackColor(box, box->isEnabled() ? vbInfoBackground : vbButtonFace);
        box->clear();
    }
    SearchMaterials(SearchStatements::DefaultOrder);
}

void SearchCriteria::applyKind() {
    const KindLayout &layout = layoutOf(mStandardKind);
    for (const auto &[index, box] : m_search.txtSearch) {
        box->setEnabled(layout.boxes.contains(index));
        m_search.cmdSelect(index)->setEnabled(layout.boxes.contains(index));
    }
    SearchStatements::applyStandardKind(m_search.mSearchFields, mStandardKind);
    m_search.showStdInfo(mStandardKind != QLatin1String("EN"));
    for (int i = 0; i < m_search.tdbMaterials->ColumnCount(); ++i)
        m_search.tdbMaterials->Columns(i).setVisible(layout.columns.contains(i));
}

bool SearchCriteria::anyBoxFilled() const {
    for (const auto &[index, box] : m_search.txtSearch)
        if (!box->text().isEmpty()) return true;
    return false;
}

void SearchCriteria::boxChanged() {
    const bool filled = anyBoxFilled();
    if (filled == m_search.chkListAll->isChecked()) m_search.chkListAll->setChecked(!filled);
    m_search.tdbMaterials->HoldFields();
    SearchMaterials(SearchStatements::DefaultOrder);
}

void SearchCriteria::clearBoxes() {
    for (const auto &[index, box] : m_search.txtSearch)
        box->clear();
}

void SearchCriteria::listAllClicked() {
    if (m_search.chkListAll->isChecked()) {
        if (m_search.txtSearch(1)->text() == CodeWord) exposeBatch();
        clearBoxes();
    } else if (!anyBoxFilled()) {
        m_search.chkListAll->setChecked(true);
    }
}

void SearchCriteria::exposeBatch() {
    m_search.cmdBatch(0)->show();
    if (placeOf(m_search.cmdBatch(1)).height() == FittedBatchHeight) m_search.cmdBatch(1)->show();
}

void SearchCriteria::openList(int box) {
    const SearchStatements::ListQuery list = SearchStatements::listQuery(box, criteria(), mWhereClause);
    mdiVelmar::instance().ShowStatus(StatusNumber::PickItem);
    const QString database = "DatabaseName";
    const QString chosen = list.picksStandard
                               ? modDBase::SelectStandard(list.sql, database)
                               : modDBase::SelectFromList(list.sql, list.field, list.title, database);
    mdiVelmar::instance().ShowStatus(StatusNumber::Search);
    if (!chosen.isEmpty()) m_search.txtSearch(box)->setText(chosen);
}

void SearchCriteria::keyTyped(int box, int &keyAscii) {
    if (keyAscii == vbKeyReturn) {
        Q_EMIT EnterPressed();
        return;
    }
    const auto passed = SearchStatements::typedCharacter(box, QChar(keyAscii));
    keyAscii = passed ? passed->unicode() : 0;
}
