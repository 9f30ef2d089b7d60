// Values over Temperature.
#pragma once

#include "values/value_sheet.h"
#include "workbench/WorkbenchWindow.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class SelectionPages;
class SheetColumns;
class TDBGrid;

/// One of the selected grades: a row a temperature, a column a property and thickness band.
class frmValueSheet : public WorkbenchWindow {
    Q_OBJECT
public:
    frmValueSheet();

    Q_INVOKABLE void SetToolTips(bool showTips);

    // controls
    SelectionPages *fraPages;
    QComboBox *cboGrade;
    QLineEdit *txtFrom;
    QLineEdit *txtTo;
    QLineEdit *txtStep;
    /// What is wrong with the boxes.
    QLabel *lblTyped;
    SheetColumns *lstColumns;
    TDBGrid *tdbSheet;
    QPushButton *cmdCopy;
    QPushButton *cmdSave;

protected:
    void Form_Load() override;
    void selectionChanged() override;
    void restore(const QSettings &settings) override;
    void keep(QSettings &settings) const override;

private:
    QWidget *layOut();
    void connectControls();
    int currentGrade() const;
    void gradeChosen();
    void columnsChosen();
    void showRows();
    ValueSheet sheet() const;
    void save();

    std::shared_ptr<const GradeValues> m_values;
    QVector<ValueColumn> m_columns;
    /// Empty where the boxes are not understood.
    QStringList m_temperatures;
};
