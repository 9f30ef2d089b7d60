#include "search/frmSelectStand.h"

#include "data/cell_values.h"
#include "data/queries.h"
#include "platform/dao/recordset.h"

namespace {

// All in twips.
constexpr int Width = 10230;
constexpr int Height = 6300;
constexpr int ListWidth = 3330;
constexpr int ListHeight = 4170;

} // namespace

frmSelectStand::frmSelectStand()
    : PickWindow("frmSelectStand", ::Width, ::Height)
    , dtaProdForms(new DataControl(this))
    , lstSelect(named(new QListWidget(this), "lstSelect", "Standards")) {
    setCaption("Select Standard...");
    dtaProdForms->setObjectName("dtaProdForms");
    dtaProdForms->setRecordSource(Queries::sqlInitialSelection());
    place(lstSelect, 120, 120, ListWidth, ListHeight);
    makeDetails();
    setTabOrder(lstSelect, txtSearch);
    setTabOrder(txtSearch, cmdFind(0));
    connect(lstSelect, &QListWidget::currentTextChanged, this, [this](const QString &standard) {
        dtaSelect->recordset()->FindFirst("standard = '" + standard + '\'');
    });
    connect(lstSelect, &QListWidget::itemDoubleClicked, this, [this] { choose(chosenText()); });
    connect(dtaSelect, &DataControl::Reposition, this, [this] {
        showBoundFields();
        showProductForms();
    });
}

void frmSelectStand::makeDetails() {
    constexpr int Left = 120;
    constexpr int BoxWidth = 6300;
    QGroupBox *frame = framSelect.add(3, new QGroupBox(this), "Standard");
    place(frame, 2 * 120 + ListWidth, 120, ::Width - 3 * 120 - ListWidth, ListHeight);
    const auto label = [frame](const QString &name, const QString &text, int top) {
        auto *made = named(new QLabel(text, frame), name);
        place(made, Left, top, BoxWidth, 240);
        return made;
    };
    const auto box = [frame](const QString &name, const QString &accessibleName, int top, int height) {
        auto *made = named(new QPlainTextEdit(frame), name, accessibleName);
        made->setReadOnly(true);
        made->setTabChangesFocus(true);
        place(made, Left, top, BoxWidth, height);
        return made;
    };
    lblDescription = label("lblDescription", "Description", 120);
    txtDescription = box("txtDescription", "Description", 390, 1350);
    lblRevisionDate = label("lblRevisionDate", "Revision Date", 1860);
    txtRevisionDate = named(new QLineEdit(frame), "txtRevisionDate", "Revision Date");
    txtRevisionDate->setReadOnly(true);
    txtRevisionDate->setToolTip("Date Velmar-PED last updated for this Standard");
    place(txtRevisionDate, Left, 2130, 1800, 345);
    lblProductForms = label("lblProductForms", "Product Forms", 2610);
    txtProductForms = box("txtProductForms", "Product Forms", 2880, 1170);
}

void frmSelectStand::GetStandardList() {
    const auto rows = dtaSelect->recordset()->Clone();
    if (rows->Eof() || rows->Bof()) return;
    rows->MoveLast();
    rows->MoveFirst();
    strStandards.clear();
    for (int i = 0; i < rows->RecordCount(); ++i) {
        strStandards << cellText(rows->Fields("standard"));
        if (i < rows->RecordCount() - 1) rows->MoveNext();
    }
    lstSelect->addItems(strStandards);
    lstSelect->setCurrentRow(0);
}

QString frmSelectStand::chosenText() const {
    return lstSelect->currentItem() != nullptr ? lstSelect->currentItem()->text() : QString();
}

void frmSelectStand::moved() {
    if (strStandards.isEmpty()) return;
    const qsizetype row = strStandards.indexOf(cellText(dtaSelect->recordset()->Fields("standard")));
    lstSelect->setCurrentRow(static_cast<int>(row));
}

void frmSelectStand::showBoundFields() {
    const auto rows = dtaSelect->recordset();
    const bool onRow = rows->AbsolutePosition() >= 0;
    txtDescription->setPlainText(onRow ? cellText(rows->Fields("description")) : QString());
    txtRevisionDate->setText(onRow ? cellText(rows->Fields("revision_date")) : QString());
}

/// A standard without product forms leaves those of the one before: the text is only written where there are
/// some.
void frmSelectStand::showProductForms() {
    if (lstSelect->currentItem() == nullptr) return;
    dtaProdForms->setRecordSource(Queries::sqlStandardForms(chosenText()));
    dtaProdForms->Refresh();
    const auto forms = dtaProdForms->recordset();
    QStringList names;
    for (; !forms->Eof(); forms->MoveNext())
        names << cellText(forms->Fields("productForm"));
    if (!names.isEmpty()) txtProductForms->setPlainText(names.join(", "));
}
