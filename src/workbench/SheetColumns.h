// The columns that a sheet of values may have, each with a tick.
#pragma once

#include <QSet>
#include <QWidget>

#include "values/grade_values.h"

class QListWidget;
class QPushButton;

/// What was ticked stays so for another grade: a column is known by property and band.
class SheetColumns : public QWidget {
    Q_OBJECT
public:
    explicit SheetColumns(QWidget *parent);

    void offer(const QVector<ValueColumn> &columns);
    /// Those that are ticked, in their order.
    QVector<ValueColumn> chosen() const;

    /// By their titles.
    QStringList leftOut() const;
    void setLeftOut(const QStringList &titles);

    QListWidget *lstColumns;
    QPushButton *cmdAll;
    QPushButton *cmdNone;

Q_SIGNALS:
    void chosenChanged();

private:
    void tickAll(bool on);
    void remember();

    QVector<ValueColumn> m_columns;
    QSet<QString> m_leftOut;
};
