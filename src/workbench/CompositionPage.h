// The chemical compositions of the selected grades beside each other: a row an element.
#pragma once

#include <map>

#include <QWidget>

#include "exchange/taken_table.h"
#include "values/composition_comparison.h"

class QLabel;
class TDBGrid;

class CompositionPage : public QWidget {
    Q_OBJECT
public:
    explicit CompositionPage(QWidget *parent);

    /// Reads those that were not shown before. Raises what GradeComposition::load raises.
    void show(const QVector<Grades::Grade> &grades);
    /// What is shown.
    TakenTable taken() const;

    TDBGrid *tdbComposition;
    QLabel *lblMarked;

private:
    void setColumns();

    QVector<Grades::Grade> m_grades;
    std::map<qint16, GradeComposition> m_read;
    std::shared_ptr<const QVector<CompositionRow>> m_rows;
};
