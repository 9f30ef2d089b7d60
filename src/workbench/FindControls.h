// The controls of the window that finds grades by value.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <QToolButton>

#include "platform/forms/control_array.h"
#include "platform/forms/drop_down_list.h"
#include "platform/forms/tdb_grid.h"
#include "values/value_search.h"

class PropertyPlot;
class QGridLayout;
class QHBoxLayout;
class QVBoxLayout;
class TableReading;

/// Made with their texts, names and layout; the conditions behind the first are hidden.
struct FindControls {
    explicit FindControls(QWidget &window);

    QLineEdit *txtStandard;
    QLineEdit *txtGroup;
    QLineEdit *txtProductForm;
    /// How many grades the texts leave.
    QLabel *lblTexts;

    // One a condition
    ControlArray<DropDownList> cboProperty{"cboProperty"};
    ControlArray<QLineEdit> txtTemperature{"txtTemperature"};
    ControlArray<QLineEdit> txtThickness{"txtThickness"};
    ControlArray<QLineEdit> txtLeast{"txtLeast"};
    ControlArray<QLineEdit> txtGreatest{"txtGreatest"};
    /// How many grades it leaves, or what is wrong with it.
    ControlArray<QLabel> lblLeft{"lblLeft"};
    ControlArray<QToolButton> cmdRemove{"cmdRemove"};
    QPushButton *cmdAdd;

    QTabWidget *tabPages;
    TDBGrid *tdbFound;
    PropertyPlot *plot;
    /// The line that tells the rest, or how far a table is read.
    QStackedWidget *stkLine;
    QLabel *lblSummary;
    TableReading *reading;

    QPushButton *cmdSelect;
    QLabel *lblSelected;
    QPushButton *cmdCopy;
    QPushButton *cmdSave;

    /// Of a condition, or of a text.
    QList<QLineEdit *> boxes() const;
    QList<QLineEdit *> boxesOf(int condition) const;
    /// The first so many conditions show.
    void showConditions(int count);
    void setTips(bool shown);

private:
    QHBoxLayout *makeTexts(QWidget *window);
    QGridLayout *makeConditions(QWidget *window);
    void makeCondition(QWidget *window, QGridLayout *layout, int index);
    void makePages(QWidget *window);
    QHBoxLayout *makeCommands(QWidget *window);
    void orderTabs();
};
