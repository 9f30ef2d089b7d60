// The pick of a standard, with its description, date and product forms.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>

#include "search/PickWindow.h"

class frmSelectStand : public PickWindow {
    Q_OBJECT
public:
    frmSelectStand();

    /// Fills list and array from the present rows of dtaSelect. Without any the list stays empty.
    void GetStandardList();

    DataControl *dtaProdForms;
    QListWidget *lstSelect;
    QLabel *lblDescription;
    QPlainTextEdit *txtDescription;
    QLabel *lblRevisionDate;
    QLineEdit *txtRevisionDate;
    QLabel *lblProductForms;
    QPlainTextEdit *txtProductForms;

    /// The names in lstSelect, in its order.
    QStringList strStandards;

protected:
    QWidget *list() const override { return lstSelect; }
    QString chosenText() const override;
    QString searchedField() const override { return QStringLiteral("standard"); }
    /// The list follows the recordset.
    void moved() override;

private:
    void makeDetails();
    void showBoundFields();
    void showProductForms();
};
