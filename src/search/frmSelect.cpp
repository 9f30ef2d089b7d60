#include "search/frmSelect.h"

#include "data/modDBase.h"
#include "platform/dao/database.h"
#include "platform/dao/recordset.h"
#include "platform/runtime/runtime_error.h"

frmSelect::frmSelect()
    : PickWindow("frmSelect", 6930, 6300)
    , dblSelect(named(new DBList(this), "dblSelect", "Values")) {
    setCaption("Select...");
    place(dblSelect, 120, 120, 6690, 4170);
    dblSelect->setDataSource(dtaSelect);
    connect(dblSelect, &DBList::DblClick, this, [this] { choose(chosenText()); });
    setTabOrder(dblSelect, txtSearch);
    setTabOrder(txtSearch, cmdFind(0));
}

void frmSelect::find(int direction, const QString &criterion) {
    try {
        PickWindow::find(direction, criterion);
    } catch (const RuntimeError &) {
        moved();
    }
}

void frmSelect::Form_Activate() {
    try {
        if (!modDBase::dbMain() || !dtaSelect->hasRecordset()) return;
        dtaSelect->setDatabaseName(modDBase::dbMain()->Name());
        if (dtaSelect->recordset()->RecordCount() > 0) dtaSelect->recordset()->MoveFirst();
    } catch (const RuntimeError &) {
        return; // the list stands where it stood
    }
}

void frmSelect::Form_Unload(bool &) {
    if (!dtaSelect->hasRecordset()) return;
    Recordset &rows = *dtaSelect->recordset();
    if (rows.EditMode() != 0) rows.CancelUpdate(1);
    rows.Close();
}
