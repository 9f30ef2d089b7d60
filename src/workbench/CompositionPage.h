// The chemical compositions of the selected grades beside each other: a row an element.
#pragma once

#include <map>

#include <QTimer>
#include <QWidget>

#include "exchange/taken_table.h"
#include "values/composition_comparison.h"

class QLabel;
class TDBGrid;

class CompositionPage : public QWidget {
    Q_OBJECT
public:
    explicit CompositionPage(QWidget *parent);

    /// Reads those that were not shown before. What takes longer is read on while the page is in sight, and
    /// told meanwhile; until all are read no row is shown. Raises what GradeComposition::load raises.
    void show(const QVector<Grades::Grade> &grades);
    /// What is shown.
    TakenTable taken() const;

    TDBGrid *tdbComposition;
    QLabel *lblMarked;
    /// After so many milliseconds of reading the user has a turn.
    int patience = 50;

private:
    void setColumns();
    void readOn();
    void showProgress();
    void showRows();

    QVector<Grades::Grade> m_grades;
    std::map<qint16, GradeComposition> m_read;
    QTimer m_later;
    std::shared_ptr<const QVector<CompositionRow>> m_rows;
};
