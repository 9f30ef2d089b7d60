// The controls of the window with a material card.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStackedWidget>

#include "platform/forms/drop_down_list.h"

class QGridLayout;
class QHBoxLayout;

/// Made with their texts, names and layout.
struct CardControls {
    explicit CardControls(QWidget &window);

    /// The controls, or in their place the line that tells how to select a grade.
    QStackedWidget *stkCard;
    QLabel *lblEmpty;

    DropDownList *cboGrade;
    /// 0 CalculiX / Abaqus, 1 Ansys MAPDL.
    DropDownList *cboFormat;
    /// By UnitSystem.
    DropDownList *cboUnits;
    QLineEdit *txtPoisson;
    QLabel *lblPoisson;
    QLineEdit *txtDensity;
    QLabel *lblDensity;
    DropDownList *cboYield;
    DropDownList *cboBand;
    QLabel *lblBand;
    QPlainTextEdit *txtCard;
    QPushButton *cmdCopy;
    QPushButton *cmdSave;

    void showEmpty(bool empty);
    void setTips(bool shown);

private:
    QWidget *makePage();
    QGridLayout *makeChoices(QWidget *page);
    QHBoxLayout *makeCommands(QWidget *page);
};
