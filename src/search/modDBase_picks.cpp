#include "search/modDBase_picks.h"

#include "data/modDBase.h"
#include "data/passing_up.h"
#include "platform/dao/database.h"
#include "platform/forms/default_instance.h"
#include "search/frmSelect.h"
#include "search/frmSelectStand.h"

namespace modDBase {

namespace {

const char *const Source = "SelectFromList"; // of both

QString fileOf(const QString &database) {
    if (database != QLatin1String("DatabaseName")) return database;
    if (!dbMain()) throw RuntimeError(91);
    return dbMain()->Name();
}

} // namespace

QString SelectFromList(const QString &sql, const QString &field, const QString &title,
                       const QString &database) {
    return passingUp(Source, [&] {
        auto &window = DefaultInstance<frmSelect>();
        window.dtaSelect->setDatabaseName(fileOf(database));
        window.dtaSelect->setRecordSource(sql);
        window.dblSelect->setListField(field);
        window.dblSelect->ReFill();
        window.dblSelect->Refresh();
        window.setCaption("Select '" + title + '\'');
        window.ShowModal();
        return strSelectedValue();
    });
}

QString SelectStandard(const QString &sql, const QString &database) {
    return passingUp(Source, [&] {
        auto &window = DefaultInstance<frmSelectStand>();
        window.dtaProdForms->setDatabaseName(fileOf(database));
        window.dtaSelect->setDatabaseName(fileOf(database));
        window.dtaSelect->setRecordSource(sql);
        window.dtaSelect->Refresh();
        window.GetStandardList();
        window.setCaption("Select 'Standard'");
        window.ShowModal();
        return strSelectedValue();
    });
}

} // namespace modDBase
