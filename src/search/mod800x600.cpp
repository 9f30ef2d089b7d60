#include "search/mod800x600.h"

#include "platform/forms/default_instance.h"
#include "platform/forms/placement.h"
#include "search/frmSearch.h"

namespace mod800x600 {

namespace {

// All in twips.
constexpr int SideWidth = 2415;
constexpr int TablesLeft = 2640;
constexpr int TablesWidth = 8730;
constexpr int PictureLeft = 8280;
constexpr int PictureSize = 375;
constexpr int ButtonHeight = 375;

void fitSide(SearchControls &c) {
    place(c.framSide, 120, 120, SideWidth, 1365);
    place(c.Label1, 120, 105, 780, 330);
    place(c.cmbChooseStd, 960, 105, 1335, 330);
    place(c.chkListAll, 120, 495, 2175, 300);
    place(c.cmdShowPmaIndex, 120, 855, 1635, ButtonHeight);
    place(c.imgIcon, 1890, 840, 405, 405);
}

void fitCriteria(SearchControls &c) {
    constexpr int FirstBox = 480;
    constexpr int BoxStep = 720;
    constexpr int CaptionHeight = 255;
    place(c.framSearch, 120, 1545, SideWidth, 5430);
    place(c.lblShow, 120, 15, 1200, 210);
    int top = FirstBox;
    for (int i : {0, 6, 1, 2, 3, 4, 5}) {
        QWidget *caption = i < 6 ? static_cast<QWidget *>(c.chkSearch(i)) : c.lblProdForm;
        place(caption, 120, top - CaptionHeight, 2055, CaptionHeight);
        place(c.txtSearch(i), 120, top, 1680, 285);
        place(c.cmdSelect(i), 1800, top, 375, 285);
        top += BoxStep;
    }
}

/// The frame's title takes a line that its row of buttons needs; a screen reader still says it.
void fitNavigation(QGroupBox *frame, SearchControls &c, int firstButton, int height) {
    frame->setTitle({});
    frame->setFlat(true);
    for (int i = 0; i < 4; ++i)
        place(c.cmdTabNav(firstButton + i), i * 345, (height - ButtonHeight) / 2, 330, ButtonHeight);
}

void fitMaterials(SearchControls &c) {
    place(c.framMatTable, TablesLeft, 120, TablesWidth, 4095);
    place(c.lblListFrame, 1800, 0, 1500, 225);
    place(c.lblMaterialsCount, 6480, 0, 1425, 225);
    place(c.lblMatCount, 7980, 0, 630, 225);
    QFont small = c.lblStdInfo->font();
    small.setPointSize(8);
    c.lblStdInfo->setFont(small);
    place(c.lblStdInfo, 120, 255, TablesWidth - 240, 435);
    c.materialsPlace.gridTop = 405;
    c.materialsPlace.gridHeight = 3135;
    place(c.tdbMaterials, 120, 405, TablesWidth - 240, 3135);
    place(c.framTabNav, 120, 3600, 1395, 495);
    fitNavigation(c.framTabNav, c, 0, 495);
    place(c.cmdSelectMat, 1560, 3660, 1455, ButtonHeight);
    place(c.cmdBatch(0), 3120, 3660, 2505, ButtonHeight);
    place(c.cmdBatch(1), 5700, 3660, 2505, ButtonHeight);
    place(c.imgFolder, PictureLeft, 3660, PictureSize, PictureSize);
}

void fitSelected(SearchControls &c) {
    place(c.framSelTable, TablesLeft, 4200, TablesWidth, 2775);
    place(c.lblSelectedFram, 1800, 0, 1800, 225);
    place(c.lblSelCount, 5700, 0, 2910, 225);
    place(c.tdbSelected, 120, 270, TablesWidth - 240, 1950);
    place(c.framSelTabNav, 120, 2280, 1395, ButtonHeight);
    fitNavigation(c.framSelTabNav, c, 4, ButtonHeight);
    place(c.cmdSelections(2), 1560, 2280, 1455, ButtonHeight);
    place(c.cmdSelections(1), 3120, 2280, 1455, ButtonHeight);
    place(c.cmdSelections(0), 4680, 2280, 1455, ButtonHeight);
    place(c.imgBin, PictureLeft, 2280, PictureSize, PictureSize);
}

} // namespace

void FitSearchWindow() {
    SearchControls &c = DefaultInstance<frmSearch>();
    for (const auto &[index, panel] : c.lblBack)
        panel->hide();
    c.lblSearch->hide();
    // in the place of the hidden panels
    for (QFrame *frame : {c.framSide, c.framSearch})
        frame->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    place(c.framStandDesc, 120, 0, 11700, 7470);
    fitSide(c);
    fitCriteria(c);
    fitMaterials(c);
    fitSelected(c);
}

} // namespace mod800x600
