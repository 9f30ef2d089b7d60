#include "pma/frmPmaIndex.h"

#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "data/queries.h"
#include "platform/dao/recordset.h"
#include "platform/forms/colours.h"
#include "platform/forms/data_control.h"
#include "platform/forms/help_context.h"
#include "platform/forms/placement.h"
#include "platform/forms/tdb_grid.h"
#include "platform/runtime/app.h"
#include "platform/runtime/conversions.h"
#include "platform/runtime/runtime_error.h"
#include "pma/modDocument.h"
#include "shell/mdiVelmar.h"

const QString frmPmaIndex::strPmaFile = QStringLiteral("/PMA_Index.mdb");

namespace {

/// The path of a row's document; it is known by its place and not by its name.
constexpr int DocumentField = 6;

struct IndexColumn {
    const char *caption;
    const char *field;
    int width; // twips
};

const IndexColumn Columns[] = {{"Specification", "Specification", 2700}, {"Name", "Designationname", 2250},
                               {"Number", "Designationnumber", 1800},    {"Product", "Product", 2100},
                               {"Date", "RevisionDate", 1500},           {"Revision", "Revision", 1050}};

const QString InfoText = QStringLiteral(
    "In guideline WGP 7/21 it is explained that two different processes for materials are provided for in "
    "the directive. One is to verify compliance of the material specification to the ESRs of the "
    "directive. The other is to evaluate the suitability of the material for a specific application. A "
    "particular material appraisal (PMA) is intended to achieve the first one, although the two processes "
    "can be performed simultaneously. A PMA drafted by Harmotek can be sent to a client but is only valid "
    "when signed by Harmotek Sweden after design review.");

/// Without a leading folder a path is meant from the program's folder. The index may have been written on a
/// system that separates folders by a backslash.
QString documentFile(QString path) {
    return QDir(App::current().path).absoluteFilePath(path.replace('\\', '/'));
}

} // namespace

frmPmaIndex::frmPmaIndex()
    : Form("frmPmaIndex")
    , dtaPmaIndex(new DataControl(this))
    , tdbIndex(named(new TDBGrid(this), "tdbIndex", "Index of Particular Material Appraisal"))
    , txtSearchString(named(new QLineEdit(this), "txtSearchString", "Search text"))
    , cmdSearch(named(new QPushButton("Search", this), "cmdSearch", "Search"))
    , cmdInfo(named(new QPushButton("More info >>", this), "cmdInfo", "More info"))
    , fraInfo(named(new QGroupBox("PMA - DRAFTED BY HARMOTEK", this), "fraInfo", "PMA - DRAFTED BY HARMOTEK"))
    , lblInfo(named(new QLabel(InfoText, fraInfo), "lblInfo")) {
    setCaption("PMA Index");
    HelpContext::set(*this, "PMA.htm");
    dtaPmaIndex->setObjectName("dtaPmaIndex");
    lblInfo->setWordWrap(true);
    lblInfo->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    buildGrid();
    setTabOrder(txtSearchString, cmdSearch);
    setTabOrder(cmdSearch, tdbIndex);
    setTabOrder(tdbIndex, cmdInfo);
    connect(cmdSearch, &QPushButton::clicked, this, &frmPmaIndex::search);
    connect(txtSearchString, &QLineEdit::returnPressed, this, &frmPmaIndex::search);
    connect(txtSearchString, &QLineEdit::textChanged, this, &frmPmaIndex::searchStringChanged);
    connect(cmdInfo, &QPushButton::clicked, this,
            [this] { modDocument::OpenDocument(this, App::current().path + "/morepmainfo.pdf"); });
    connect(tdbIndex, &TDBGrid::HeadClick, this, [this](int column) { sort(column, true); });
    connect(tdbIndex, &TDBGrid::FootClick, this, [this](int column) { sort(column, false); });
    connect(tdbIndex, &TDBGrid::DblClick, this, &frmPmaIndex::openCurrentDocument);
}

void frmPmaIndex::buildGrid() {
    tdbIndex->setCaption("Index of Particular Material Appraisal");
    tdbIndex->setColumnFooters(true);
    tdbIndex->setMarqueeStyle(MarqueeStyle::Row);
    for (const IndexColumn &definition : Columns) {
        GridColumn &column = tdbIndex->AddColumn(definition.caption);
        column.setDataField(definition.field);
        column.setWidth(definition.width);
    }
    tdbIndex->setDataSource(dtaPmaIndex);
}

void frmPmaIndex::Form_Load() {
    resetList();
    mdiVelmar &main = mdiVelmar::instance();
    tdbIndex->setEvenRowStyle({toQColor(main.cBlue)});
    tdbIndex->setOddRowStyle({toQColor(main.cInfoBack)});
    tdbIndex->setAlternatingRowStyle(true);
    txtSearchString->setFocus();
    setWidth(11280);
    setHeight(5040);
}

void frmPmaIndex::Form_Resize() {
    const int width = ScaleWidth();
    const int height = ScaleHeight();
    place(txtSearchString, 240, 240, 3600, 345);
    place(cmdSearch, 3960, 210, 1320, 405);
    place(cmdInfo, 5400, 210, 1560, 405); // a screen may be narrower than the window
    constexpr int InfoHeight = 1800;
    place(tdbIndex, 240, 780, width - 480, height - 780 - InfoHeight - 360);
    place(fraInfo, 240, height - InfoHeight - 240, width - 480, InfoHeight);
    place(lblInfo, 180, 330, width - 480 - 360, InfoHeight - 420);
}

void frmPmaIndex::runSource(const QString &sql) {
    dtaPmaIndex->setRecordSource(sql);
    dtaPmaIndex->Refresh();
    tdbIndex->setRowOrder(-1, Qt::AscendingOrder);
}

void frmPmaIndex::resetList() {
    dtaPmaIndex->setDatabaseName(App::current().path + strPmaFile);
    runSource(Queries::sqlPmaIndex());
}

void frmPmaIndex::search() {
    runSource(Queries::sqlPmaSearch(txtSearchString->text()));
}

void frmPmaIndex::searchStringChanged() {
    if (txtSearchString->text().trimmed().isEmpty()) resetList();
}

/// Sorting drops the search, so that the whole index is seen in order; the box keeps its text for the next
/// press.
void frmPmaIndex::sort(int column, bool ascending) {
    runSource(Queries::sqlPmaSorted(tdbIndex->Columns(column).DataField(), ascending));
    tdbIndex->setRowOrder(column, ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
}

void frmPmaIndex::openCurrentDocument() {
    mdiVelmar &main = mdiVelmar::instance();
    main.setMousePointer(vbHourglass);
    try {
        const QString file = documentFile(CStr(dtaPmaIndex->recordset()->Fields(DocumentField)));
        if (modDocument::FileExists(file)) modDocument::OpenDocument(this, file);
    } catch (const RuntimeError &) {
        // a row without a document has nothing to open
    }
    main.setMousePointer(vbDefault);
}
