#include "search/SearchControls.h"

#include "data/queries.h"
#include "data/search_statements.h"

namespace {

const char *const StdInfo =
    "By entering an ASME/SS-standard/name Velmar PED gives you the corresponding EN-standard/name. The "
    "corresponding standards are not identical, therefore, the conversion must only be considered as "
    "guidance.";

const char *const BoxCaptions[] = {"Standard", "Name",          "Number",      "Description",
                                   "Group",    "Revision Date", "Product Form"};

struct ColumnDefinition {
    const char *caption;
    const char *field;
    int width; // twips
};

/// Column 6 stands for the product form's place among the criteria and shows nothing.
const ColumnDefinition MaterialColumns[] = {
    {"EN Standard", "standard", 1500}, {"EN Name", "name", 1800},
    {"EN Number", "numbr", 1200},      {"Description", "description", 2850},
    {"EN Group", "groups", 1050},      {"Revision Date", "revision_date", 1350},
    {"Product Form", "", 1500},        {"ASME Standard", "asmestandard", 1500},
    {"ASME Grade", "asmegrade", 1650}, {"SS", "ss", 960},
};

const char *const SelectedCaptions[] = {"Standard",    "Name",  "Number",
                                        "Description", "Group", "Revision Date"};

QLabel *label(QWidget *frame, const QString &name, const QString &text = {}) {
    return named(new QLabel(text, frame), name);
}

QPushButton *button(QWidget *frame, const QString &caption) {
    auto *made = new QPushButton(caption, frame);
    made->setAutoDefault(false);
    return made;
}

QString withoutMnemonic(QString caption) {
    return caption.remove('&');
}

} // namespace

SearchControls::SearchControls(QWidget &window) {
    makeFrames(&window);
    makeDataControls(&window);
    makeChoice();
    makeCriteria();
    makeMaterials();
    makeSelected();
    placeControls();
}

void SearchControls::makeFrames(QWidget *window) {
    framStandDesc = named(new QFrame(window), "framStandDesc", "Select material(s)");
    const auto panel = [this](const QString &name, const QString &accessibleName) {
        return named(new QFrame(framStandDesc), name, accessibleName);
    };
    framSide = panel("framSide", "Standards");
    framSearch = panel("framSearch", "Search Materials On...");
    framMatTable = named(new QGroupBox("Materials Table", framStandDesc), "framMatTable", "Materials Table");
    framSelTable =
        named(new QGroupBox("Selected Materials", framStandDesc), "framSelTable", "Selected Materials");
    QFrame *const behind[] = {framSide, framSearch};
    for (int i = 0; i < 6; ++i) {
        QWidget *frame = i < 2 ? static_cast<QWidget *>(behind[i]) : i < 4 ? framMatTable : framSelTable;
        lblBack.add(i, new QLabel(frame))->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    }
    framTabNav = named(new QGroupBox("Navigate", framMatTable), "framTabNav", "Navigate in Materials List");
    framSelTabNav =
        named(new QGroupBox("Navigate", framSelTable), "framSelTabNav", "Navigate in Selected Materials");
}

void SearchControls::makeDataControls(QWidget *window) {
    const auto source = [window](const QString &name, const QString &recordSource) {
        auto *control = new DataControl(window);
        control->setObjectName(name);
        control->setConnect("Access 2000;");
        control->setRecordSource(recordSource);
        return control;
    };
    dtaMaterials = source("dtaMaterials", "Materials");
    dtaStandard = source("dtaStandard", "Standard");
    dtaSelected = source("dtaSelected", Queries::sqlInitialSelection());
    dtaProdForm = source("dtaProdForm", Queries::sqlInitialSelection());
}

void SearchControls::makeChoice() {
    Label1 = label(framSide, "Label1", "Choose...");
    Label1->setAccessibleName("Choose standards");
    cmbChooseStd = named(new DropDownList(framSide), "cmbChooseStd", "Choose standards");
    cmbChooseStd->addItems(SearchStatements::standardKinds());
    cmbChooseStd->setCurrentIndex(-1);
    Label1->setBuddy(cmbChooseStd);
    chkListAll = named(new QCheckBox("&List All Materials", framSide), "chkListAll", "List All Materials");
    chkListAll->setChecked(true);
    cmdShowPmaIndex = named(button(framSide, "Show PMA Index"), "cmdShowPmaIndex", "Show PMA Index");
    imgIcon = named(new ImageBox(framSide), "imgIcon", "How to contact us");
    imgIcon->setPicture(":/velmar/app/velmar-ped.svg");
    imgIcon->setCursor(Qt::PointingHandCursor);
}

void SearchControls::makeCriteria() {
    lblSearch = label(framSearch, "lblSearch", "Search Materials On...");
    lblShow = label(framSearch, "lblShow", "Show...");
    lblProdForm = label(framSearch, "lblProdForm", BoxCaptions[6]);
    const QString pick = "Select A%1 '%2' From List...";
    for (int i = 0; i < 7; ++i) {
        const QString caption = BoxCaptions[i];
        if (i < 6)
            chkSearch.add(i, new QCheckBox(caption, framSearch), "Show '" + caption + "' Column")
                ->setChecked(true);
        txtSearch.add(i, new QLineEdit(framSearch), caption);
        cmdSelect.add(i, button(framSearch, "..."),
                      pick.arg(i >= 1 && i <= 4 ? " Material" : QString(), caption));
    }
    lblProdForm->setBuddy(txtSearch(6));
}

void SearchControls::makeMaterials() {
    lblListFrame = label(framMatTable, "lblListFrame", "Materials List...");
    lblMaterialsCount = label(framMatTable, "lblMaterialsCount", "Materials Count :");
    lblMatCount = label(framMatTable, "lblMatCount");
    lblMaterialsCount->setBuddy(lblMatCount);
    lblStdInfo = label(framMatTable, "lblStdInfo", StdInfo);
    lblStdInfo->setWordWrap(true);
    tdbMaterials = named(new TDBGrid(framMatTable), "tdbMaterials", "Materials List");
    tdbMaterials->setCaption("Materials List");
    tdbMaterials->setColumnFooters(true);
    addNavigation(framTabNav, 0, "Materials List");
    cmdSelectMat = named(button(framMatTable, "Select &Material"), "cmdSelectMat", "Select Material");
    imgFolder = named(new ImageBox(framMatTable), "imgFolder",
                      "Drag and Drop Material Here To Add To 'Selected' Grid");
    imgFolder->setPicture(":/velmar/search/folder.svg");
    for (int i = 0; i < 2; ++i)
        cmdBatch.add(i, button(framMatTable, "Print All Selected Materials"), "Print All Selected Materials")
            ->hide();
}

void SearchControls::makeSelected() {
    lblSelectedFram = label(framSelTable, "lblSelectedFram", "Selected Materials...");
    lblSelCount = label(framSelTable, "lblSelCount", "No Materials Currently Selected");
    tdbSelected = named(new TDBGrid(framSelTable), "tdbSelected", "Selected Materials");
    addNavigation(framSelTabNav, 4, "Selected Materials");
    const char *const captions[] = {"Sh&ow", "&Clear All", "&Remove Material"};
    for (int i = 0; i < 3; ++i)
        cmdSelections.add(i, button(framSelTable, captions[i]), withoutMnemonic(captions[i]));
    imgBin = named(new ImageBox(framSelTable), "imgBin",
                   "Drag and Drop Material Here To Remove From 'Selected' Grid");
    imgBin->setPicture(":/velmar/search/bin-empty.svg");
    imgFullBin = named(new ImageBox(framSelTable), "imgFullBin");
    imgFullBin->setPicture(":/velmar/search/bin-full.svg");
    imgFullBin->hide();
    addColumns();
}

void SearchControls::addNavigation(QWidget *frame, int firstIndex, const QString &grid) {
    const char *const pictures[] = {"first", "previous", "next", "last"};
    const char *const moves[] = {"First", "Previous", "Next", "Last"};
    for (int i = 0; i < 4; ++i) {
        QPushButton *move = cmdTabNav.add(firstIndex + i, button(frame, {}),
                                          QString("Move To %1 Material In %2").arg(moves[i], grid));
        move->setIcon(QIcon(QString(":/velmar/navigation/%1.svg").arg(pictures[i])));
    }
}

void SearchControls::addColumns() {
    int index = 0;
    for (const ColumnDefinition &definition : MaterialColumns) {
        GridColumn &column = tdbMaterials->AddColumn(definition.caption);
        column.setDataField(definition.field);
        column.setWidth(definition.width);
        if (index > 5) continue;
        GridColumn &selected = tdbSelected->AddColumn(SelectedCaptions[index++]);
        selected.setDataField(definition.field);
        selected.setWidth(definition.width);
    }
    tdbMaterials->setDataSource(dtaMaterials);
    tdbSelected->setDataSource(dtaSelected);
    for (TDBGrid *grid : {tdbMaterials, tdbSelected}) {
        grid->setAlternatingRowStyle(true);
        grid->setMarqueeStyle(MarqueeStyle::Row);
        grid->setCellDrag(true);
    }
}

void SearchControls::placeControls() {
    place(framStandDesc, 0, 0, 15000, 9645);
    place(framSearch, 120, 60, 12240, 1320);
    placeCriteria();
    place(framSide, 12465, 60, 2415, 1320);
    place(lblBack(0), 60, 60, 2295, 1200);
    place(Label1, 180, 150, 840, 330);
    place(cmbChooseStd, 1080, 150, 1155, 330);
    place(chkListAll, 180, 525, 2055, 300);
    place(cmdShowPmaIndex, 180, 840, 1575, 360);
    place(imgIcon, 1845, 825, 390, 390);

    place(framMatTable, 120, 1425, 14760, 5055);
    // beside the frame's title
    place(lblListFrame, 1800, 0, 1800, 225);
    place(lblMaterialsCount, 12600, 0, 1410, 225);
    place(lblMatCount, 14070, 0, 630, 225);
    place(lblStdInfo, 180, 285, 14400, 465);
    place(lblBack(2), 60, 480, 14640, 3855);
    place(tdbMaterials, 165, 615, 14430, 3615);
    place(lblBack(3), 60, 4380, 14640, 615);
    place(cmdSelectMat, 2700, 4485, 1800, 420);
    place(cmdBatch(0), 4680, 4440, 2700, 495);
    place(cmdBatch(1), 7500, 4440, 2700, 495);
    place(imgFolder, 14070, 4425, 525, 525);

    place(framSelTable, 120, 6525, 14760, 3060);
    place(lblSelectedFram, 1800, 0, 1800, 225);
    place(lblSelCount, 7905, 0, 2700, 225);
    lblSelCount->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    place(lblBack(4), 60, 330, 10560, 2670);
    place(tdbSelected, 165, 435, 10350, 2460);
    place(lblBack(5), 10680, 330, 4020, 2670);
    place(cmdSelections(0), 10860, 465, 1800, 420);
    place(cmdSelections(2), 10860, 975, 1800, 420);
    place(cmdSelections(1), 10860, 1485, 1800, 420);
    place(imgBin, 13200, 705, 960, 960);
    placeNavigation();
}

void SearchControls::placeCriteria() {
    struct Box {
        int index;
        int width; // twips, with its list button
    };
    const Box boxes[] = {{0, 1560}, {6, 1560}, {1, 1710}, {2, 1305}, {3, 1710}, {4, 1305}, {5, 1785}};
    constexpr int Gap = 60;
    constexpr int ListButton = 330;
    place(lblBack(1), 60, 345, 12120, 915);
    place(lblSearch, 180, 75, 3000, 240);
    place(lblShow, 180, 435, 600, 255);
    int left = 810;
    for (const Box &box : boxes) {
        if (box.index < 6)
            place(chkSearch(box.index), left, 435, box.width, 255);
        else
            place(lblProdForm, left + 30, 435, box.width - 30, 255);
        place(txtSearch(box.index), left, 750, box.width - ListButton, 345);
        place(cmdSelect(box.index), left + box.width - ListButton, 750, ListButton, 345);
        left += box.width + Gap;
    }
}

void SearchControls::placeNavigation() {
    constexpr int Width = 510;
    place(framTabNav, 165, 4380, 2310, 600);
    place(framSelTabNav, 10860, 2115, 2310, 735);
    for (int i = 0; i < 4; ++i) {
        place(cmdTabNav(i), 105 + i * (Width + 15), 270, Width, 300);
        place(cmdTabNav(i + 4), 105 + i * (Width + 15), 300, Width, 360);
    }
}

void SearchControls::showStdInfo(bool shown) {
    constexpr int InfoHeight = 300;
    const int shift = shown ? InfoHeight : 0;
    const auto lower = [shift](QWidget *widget, int top, int height) {
        const QRect old = placeOf(widget);
        place(widget, old.left(), top + shift, old.width(), height - shift);
    };
    lower(lblBack(2), materialsPlace.backTop, materialsPlace.backHeight);
    lower(tdbMaterials, materialsPlace.gridTop, materialsPlace.gridHeight);
    lblStdInfo->setVisible(shown);
}

void SearchControls::orderTabs() {
    const int boxes[] = {0, 6, 1, 2, 3, 4, 5};
    QList<QWidget *> order;
    for (int i : boxes)
        order << txtSearch(i);
    order << tdbMaterials << cmdSelectMat << cmdSelections(0) << chkListAll;
    for (int i : boxes)
        order << cmdSelect(i);
    for (const auto &[index, box] : chkSearch)
        order << box;
    order << cmbChooseStd << cmdShowPmaIndex;
    for (int i = 0; i < 4; ++i)
        order << cmdTabNav(i);
    order << cmdBatch(0) << cmdBatch(1) << tdbSelected << cmdSelections(2) << cmdSelections(1);
    for (int i = 4; i < 8; ++i)
        order << cmdTabNav(i);
    for (qsizetype i = 1; i < order.size(); ++i)
        QWidget::setTabOrder(order[i - 1], order[i]);
}
