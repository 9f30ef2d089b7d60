// One property of the selected grades over temperature, a curve a grade.
#pragma once

#include <QWidget>

#include "exchange/taken_table.h"
#include "values/property.h"
#include "workbench/compare_input.h"

class MSChart;
class QComboBox;
class QLabel;
class SelectedValues;

class ComparisonChartPage : public QWidget {
    Q_OBJECT
public:
    /// `values` outlives the page.
    ComparisonChartPage(const SelectedValues &values, QWidget *parent);

    /// The properties are those of other grades now; the chosen one stays where it is among them.
    void gradesChanged();
    /// The temperature is drawn as a line where it is understood; without a thickness that is understood
    /// there are no curves.
    void show(const CompareInput &input);
    /// The points of the curves.
    TakenTable taken(const CompareInput &input) const;

    /// The name of the chosen property; one that the grades do not have chooses the first.
    QString property() const { return m_property; }
    void setProperty(const QString &name);

    QComboBox *cboProperty;
    MSChart *chtValues;
    /// Tells which grades have no curve, and why.
    QLabel *lblMissing;

Q_SIGNALS:
    void propertyChanged();

private:
    const Property *chosen() const;
    void chosenByUser();

    const SelectedValues &m_values;
    QString m_property;
};
