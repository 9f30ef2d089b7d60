// The controls of the search window.
#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "platform/forms/control_array.h"
#include "platform/forms/data_control.h"
#include "platform/forms/drop_down_list.h"
#include "platform/forms/image_box.h"
#include "platform/forms/tdb_grid.h"

/// Made with their texts and with their places for a screen of 1024 pixels or more.
struct SearchControls {
    explicit SearchControls(QWidget &window);

    // Frames; all others stand in the first one
    QFrame *framStandDesc;
    QFrame *framSide;
    QFrame *framSearch;
    QGroupBox *framMatTable;
    QGroupBox *framSelTable;
    QGroupBox *framTabNav;
    QGroupBox *framSelTabNav;
    /// Panels behind the controls of a frame.
    ControlArray<QLabel> lblBack{"lblBack"};

    // Which standards
    QLabel *Label1;
    DropDownList *cmbChooseStd;
    QCheckBox *chkListAll;
    QPushButton *cmdShowPmaIndex;
    ImageBox *imgIcon;

    // Criteria: 0 standard, 1 name, 2 number, 3 description, 4 group, 5 revision date, 6 product form
    QLabel *lblSearch;
    QLabel *lblShow;
    QLabel *lblProdForm;
    ControlArray<QCheckBox> chkSearch{"chkSearch"};
    ControlArray<QLineEdit> txtSearch{"txtSearch"};
    ControlArray<QPushButton> cmdSelect{"cmdSelect"};

    // What was found
    QLabel *lblListFrame;
    QLabel *lblMaterialsCount;
    QLabel *lblMatCount;
    QLabel *lblStdInfo;
    TDBGrid *tdbMaterials;
    /// First, previous, next and last: 0 to 3 for tdbMaterials, 4 to 7 for tdbSelected.
    ControlArray<QPushButton> cmdTabNav{"cmdTabNav"};
    QPushButton *cmdSelectMat;
    ImageBox *imgFolder;
    ControlArray<QPushButton> cmdBatch{"cmdBatch"};

    // What was selected
    QLabel *lblSelectedFram;
    QLabel *lblSelCount;
    TDBGrid *tdbSelected;
    /// 0 show, 1 clear, 2 remove.
    ControlArray<QPushButton> cmdSelections{"cmdSelections"};
    ImageBox *imgBin;
    /// The picture of the full bin, in store.
    ImageBox *imgFullBin;

    DataControl *dtaMaterials;
    DataControl *dtaStandard;
    DataControl *dtaSelected;
    DataControl *dtaProdForm;

    /// Top and height in twips of tdbMaterials and of the panel behind it, without the guidance above them.
    struct MaterialsPlace {
        int backTop = 480;
        int backHeight = 3855;
        int gridTop = 615;
        int gridHeight = 3615;
    };
    MaterialsPlace materialsPlace;
    /// The guidance moves the upper edge of tdbMaterials down.
    void showStdInfo(bool shown);

    /// The rest of the controls follow those that the work goes through.
    void orderTabs();

private:
    void makeFrames(QWidget *window);
    void makeChoice();
    void makeCriteria();
    void makeMaterials();
    void makeSelected();
    void makeDataControls(QWidget *window);
    void addNavigation(QWidget *frame, int firstIndex, const QString &grid);
    void addColumns();
    void placeControls();
    void placeCriteria();
    void placeNavigation();
};
