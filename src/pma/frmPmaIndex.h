// The index of particular material appraisals: a list to search and to sort, whose rows open documents.
#pragma once

#include "platform/forms/form.h"

class DataControl;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class TDBGrid;

class frmPmaIndex : public Form {
    Q_OBJECT
public:
    frmPmaIndex();

    /// The file in the program's folder.
    static const QString strPmaFile;

    // controls
    DataControl *dtaPmaIndex;
    TDBGrid *tdbIndex;
    QLineEdit *txtSearchString;
    QPushButton *cmdSearch;
    QPushButton *cmdInfo;
    QGroupBox *fraInfo;
    QLabel *lblInfo;

protected:
    void Form_Load() override;
    void Form_Resize() override;

private:
    void buildGrid();
    void runSource(const QString &sql);
    void resetList();
    void search();
    void searchStringChanged();
    void sort(int column, bool ascending);
    void openCurrentDocument();
};
