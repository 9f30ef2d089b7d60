// The pick of a value from a list of one field.
#pragma once

#include "platform/forms/db_list.h"
#include "search/PickWindow.h"

class frmSelect : public PickWindow {
    Q_OBJECT
public:
    frmSelect();

    DBList *dblSelect;

protected:
    QWidget *list() const override { return dblSelect; }
    QString chosenText() const override { return dblSelect->Text(); }
    QString searchedField() const override { return dblSelect->ListField(); }
    void moved() override { dblSelect->Refresh(); }
    /// An error ends it quietly: a quote in the find text finds nothing and says nothing.
    void find(int direction, const QString &criterion) override;

    void Form_Activate() override;
    void Form_Unload(bool &cancel) override;
};
