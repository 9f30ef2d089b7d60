// Compare Grades.
#pragma once

#include "exchange/taken_table.h"
#include "workbench/compare_input.h"
#include "workbench/SelectedValues.h"
#include "workbench/WorkbenchWindow.h"

class ComparisonChartPage;
class ComparisonPage;
class CompositionPage;
class QLabel;
class QLineEdit;
class QPushButton;
class QTabWidget;
class SelectionPages;

/// The selected grades beside each other, at one temperature and one thickness, with every key.
class frmCompare : public WorkbenchWindow {
    Q_OBJECT
public:
    frmCompare();

    Q_INVOKABLE void SetToolTips(bool showTips);

    // controls
    SelectionPages *fraPages;
    QLineEdit *txtTemperature;
    QLineEdit *txtThickness;
    /// What is wrong with the boxes, or missing in them.
    QLabel *lblTyped;
    QTabWidget *tabPages;
    ComparisonPage *pagValues;
    ComparisonChartPage *pagChart;
    CompositionPage *pagComposition;
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
    CompareInput input() const;
    void showPage();
    TakenTable taken() const;
    void save();

    SelectedValues m_values;
};
