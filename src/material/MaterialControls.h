// The controls of a material window.
#pragma once

#include <QComboBox>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QToolButton>

#include "platform/forms/control_array.h"
#include "platform/forms/image_box.h"
#include "platform/forms/ms_chart.h"
#include "platform/forms/tdb_grid.h"

/// Made hidden, with their looks and their places inside their frames; InitLayout puts the overlapping parts
/// in place.
struct MaterialControls {
    explicit MaterialControls(QWidget &window);

    void InitLayout();

    // Background panels
    QLabel *lblMain;
    QLabel *lblFullForm;

    // Reference page: standard and grade
    QGroupBox *framStand;
    QGroupBox *framMain;
    ControlArray<QLabel> lblMainData{"lblMainData"};
    ControlArray<QPlainTextEdit> txtMainData{"txtMainData"};

    // Tables
    TDBGrid *tdbTable;
    TDBGrid *tdbBoundTable;

    // Right of a bound table
    QFrame *framOptions;
    QPushButton *CommandShowGraph;
    QPushButton *CommandShowTable;
    QLabel *lblElevated;
    QFrame *framMechOpt;
    ControlArray<QRadioButton> optMechProp{"optMechProp"};
    QLineEdit *txtCompatibleGroup;

    // Notes
    QFrame *framNotes;
    QPushButton *cmdShowNotes;
    QLabel *lblNotes;
    QPlainTextEdit *txtNotes;
    QPushButton *cmdUnBoundGraph;
    QTimer *TimerFlash;
    /// Closed, open, and closed but calling for attention: pictures in store.
    ControlArray<ImageBox> imgUpDown{"imgUpDown"};

    // No data
    QFrame *framNoData;
    QPlainTextEdit *txtNoData;

    // Design values
    QFrame *framDesign;
    QLabel *lblDesignTemp;
    QLineEdit *txtDesignTemp;
    TDBGrid *tdbDesign;
    QLabel *lblKey;

    // Graph
    QFrame *framChart;
    MSChart *MSChart1;
    QFrame *framBlank;
    QFrame *framAxisCols;
    ControlArray<QLabel> lblAxis{"lblAxis"};
    QLabel *lblXAxis;
    QComboBox *cboColumnList;
    QPushButton *cmdUnBoundTable;

    /// 0 save, 1 print and 2 enlarge the graph; 3 print and 4 save the design values.
    ControlArray<QToolButton> cmdPrintSave{"cmdPrintSave"};

    /// Page symbols: 0 beside the notes, 1 on the reference page, 2 beside a graph.
    ControlArray<ImageBox> ImgPic{"ImgPic"};
    /// Formulas for headings, in store.
    ControlArray<ImageBox> imgPhys{"imgPhys"};
    ControlArray<ImageBox> imgTherm{"imgTherm"};

private:
    void makePanels(QWidget *window);
    void makeReferencePage(QWidget *window);
    void makeTables(QWidget *window);
    void makeOptions(QWidget *window);
    void makeNotes(QWidget *window);
    void makeNoData(QWidget *window);
    void makeDesignPage(QWidget *window);
    void makeGraph(QWidget *window);
    void makePictures(QWidget *window);
    void setTabOrder();

    void addMainData(QWidget *frame, int index, const QString &label, int left, int width);
    void addPrintSave(QWidget *frame, int index, const QString &picture, const QString &toolTip, int left,
                      int top);
};
