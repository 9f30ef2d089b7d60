// The values of the selected grades beside each other: a row a property, a column a grade.
#pragma once

#include <QWidget>

#include "exchange/taken_table.h"
#include "workbench/compare_input.h"

class QLabel;
class QLineEdit;
class SelectedValues;
class TDBGrid;
struct ComparisonRow;

class ComparisonPage : public QWidget {
    Q_OBJECT
public:
    /// `values` outlives the page.
    ComparisonPage(const SelectedValues &values, QWidget *parent);

    /// The columns are those of other grades now.
    void gradesChanged();
    /// Without a temperature and a thickness that are understood the cells stay empty.
    void show(const CompareInput &input);
    /// What is shown.
    TakenTable taken() const;

    QLineEdit *txtFilter;
    TDBGrid *tdbValues;
    /// Told where the filter leaves no row.
    QLabel *lblNoRow;

Q_SIGNALS:
    void filterChanged();

private:
    const SelectedValues &m_values;
    std::shared_ptr<const QVector<ComparisonRow>> m_rows;
};
