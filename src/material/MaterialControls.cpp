#include "material/MaterialControls.h"

#include "material/grid_columns.h"
#include "material/material_layout.h"
#include "platform/forms/colours.h"

using namespace MaterialLayout;

namespace {

constexpr int BoxLeft = 1560;
constexpr int ButtonHeight = 420;
constexpr int ButtonWidth = 1815;
constexpr int SymbolSize = 450;
constexpr int BoundColumns = 4;
constexpr int FlashInterval = 500; // milliseconds

QFrame *panel(QWidget *window, const QString &name, const QString &accessibleName) {
    auto *frame = named(new QFrame(window), name, accessibleName);
    frame->setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    return frame;
}

QPlainTextEdit *readOnlyText(QWidget *parent) {
    auto *box = new QPlainTextEdit(parent);
    box->setReadOnly(true);
    box->setTabChangesFocus(true);
    box->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // a blank at a line's end would bring it
    box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setBackColor(box, vbInfoBackground);
    return box;
}

QLabel *label(QWidget *parent, const QString &name, const QString &text) {
    return named(new QLabel(text, parent), name, text);
}

QPushButton *button(QWidget *parent, const QString &name, const QString &text) {
    return named(new QPushButton(text, parent), name, text);
}

TDBGrid *grid(QWidget *parent, const QString &name, const QString &accessibleName) {
    auto *result = named(new TDBGrid(parent), name, accessibleName);
    result->setAlternatingRowStyle(true);
    result->setRecordSelectors(false);
    return result;
}

QFont bold(QFont font) {
    font.setBold(true);
    return font;
}

} // namespace

MaterialControls::MaterialControls(QWidget &window) {
    // What is made later lies in front.
    makePanels(&window);
    makeReferencePage(&window);
    makeTables(&window);
    makeOptions(&window);
    makeNotes(&window);
    makeNoData(&window);
    makeDesignPage(&window);
    makeGraph(&window);
    makePictures(&window);
    setTabOrder();
}

void MaterialControls::makePanels(QWidget *window) {
    lblMain = named(new QLabel(window), "lblMain");
    lblFullForm = named(new QLabel(window), "lblFullForm");
    for (QLabel *background : {lblMain, lblFullForm}) {
        background->setFrameStyle(QFrame::Panel | QFrame::Sunken);
        resizeTo(background, PanelWidth, PanelHeight);
    }
}

void MaterialControls::addMainData(QWidget *frame, int index, const QString &text, int left, int width) {
    constexpr int LabelWidth = 1380;
    constexpr int LabelGap = 30;
    QLabel *caption = lblMainData.add(index, new QLabel(text, frame), text);
    place(caption, left - LabelGap - LabelWidth, 0, LabelWidth, BoxHeight);
    auto *box = txtMainData.add(index, readOnlyText(frame), text);
    box->document()->setDocumentMargin(2);
    place(box, left, 0, width, BoxHeight);
    caption->setBuddy(box);
}

/// The rows' heights, and with them the frames', follow from the texts (ReferencePage).
void MaterialControls::makeReferencePage(QWidget *window) {
    constexpr int SecondLeft = 8460;
    constexpr int FullWidth = 8985;
    constexpr int BesideSymbolWidth = FullWidth - BoxHeight - 75;
    constexpr int FirstWidth = 5280;
    constexpr int SecondWidth = 2085;
    framStand = named(new QGroupBox("Standard", window), "framStand", "Standard");
    resizeTo(framStand, PageWidth, 2025);
    addMainData(framStand, 0, "Name", BoxLeft, FirstWidth);
    addMainData(framStand, 8, "Last updated", SecondLeft, SecondWidth);
    addMainData(framStand, 1, "Description", BoxLeft, FullWidth);
    addMainData(framStand, 7, "Product form(s)", BoxLeft, BesideSymbolWidth);

    framMain = named(new QGroupBox("Material", window), "framMain", "Material");
    resizeTo(framMain, PageWidth, 1605);
    addMainData(framMain, 2, "Name", BoxLeft, FirstWidth);
    addMainData(framMain, 4, "Number", SecondLeft, SecondWidth);
    addMainData(framMain, 3, "Description", BoxLeft, FullWidth);
    addMainData(framMain, 5, "Group", BoxLeft, FirstWidth);
    addMainData(framMain, 6, "Last updated", SecondLeft, SecondWidth);
}

void MaterialControls::makeTables(QWidget *window) {
    tdbTable = grid(window, "tdbTable", "Table");
    AddGridColumn(*tdbTable, {}, 0);
    resizeTo(tdbTable, PageWidth, TableHeight);

    tdbBoundTable = grid(window, "tdbBoundTable", "Table over temperature");
    for (int i = 0; i < BoundColumns; ++i)
        AddGridColumn(*tdbBoundTable, {}, BoundColumnWidth);
    resizeTo(tdbBoundTable, BesideOptionsWidth, TableHeight);
}

void MaterialControls::makeOptions(QWidget *window) {
    // Everything stands in the upper part, which the notes and a graph leave in sight.
    framOptions = named(new QFrame(window), "framOptions", "Table options");
    resizeTo(framOptions, OptionsWidth, TableHeight);
    CommandShowGraph = button(framOptions, "CommandShowGraph", "Show Graph");
    CommandShowTable = button(framOptions, "CommandShowTable", "Show Table");
    for (QPushButton *command : {CommandShowGraph, CommandShowTable})
        place(command, 150, 150, ButtonWidth, ButtonHeight);

    lblElevated = label(framOptions, "lblElevated", "Minimum values at elevated temperature");
    lblElevated->setWordWrap(true);
    place(lblElevated, 150, 795, 3315, 480);
    framMechOpt = named(new QFrame(framOptions), "framMechOpt", "Minimum values at elevated temperature");
    place(framMechOpt, 150, 1320, 3315, ButtonHeight);
    const QStringList captions{"Rp0,2", "Rp1,0", "Rm"};
    for (int i = 0; i < captions.size(); ++i) {
        auto *option = optMechProp.add(i, new QRadioButton(captions[i], framMechOpt), captions[i]);
        place(option, i * 1125, 0, 1065, ButtonHeight);
    }
    optMechProp(0)->setChecked(true);

    txtCompatibleGroup = named(new QLineEdit(framOptions), "txtCompatibleGroup", "Compatible material group");
    txtCompatibleGroup->setReadOnly(true);
    txtCompatibleGroup->hide();
}

void MaterialControls::makeNotes(QWidget *window) {
    framNotes = named(new QFrame(window), "framNotes", "Notes");
    place(framNotes, PageLeft, ClosedNotesTop, PageWidth, ClosedNotesHeight);
    cmdShowNotes = button(framNotes, "cmdShowNotes", {});
    cmdShowNotes->setAccessibleName("Show or hide the notes");
    cmdShowNotes->setIconSize({18, 18});
    place(cmdShowNotes, 0, 15, 690, BoxHeight);
    lblNotes = named(new QLabel("Notes...", framNotes), "lblNotes", "Notes");
    lblNotes->setFont(bold(lblNotes->font()));
    place(lblNotes, NotesLabelLeft, 15, 3600, BoxHeight);
    cmdUnBoundGraph = button(framNotes, "cmdUnBoundGraph", "Show Graph");
    place(cmdUnBoundGraph, 8220, 0, ButtonWidth, ClosedNotesHeight);
    txtNotes = named(readOnlyText(framNotes), "txtNotes", "Notes");
    place(txtNotes, 0, 420, PageWidth, 1500);
    TimerFlash = new QTimer(window);
    TimerFlash->setObjectName("TimerFlash");
    TimerFlash->setInterval(FlashInterval);
}

void MaterialControls::makeNoData(QWidget *window) {
    framNoData = panel(window, "framNoData", "No data");
    txtNoData = named(readOnlyText(framNoData), "txtNoData", "No data");
}

void MaterialControls::makeDesignPage(QWidget *window) {
    framDesign = named(new QFrame(window), "framDesign", "Design values");
    resizeTo(framDesign, PageWidth, PageHeight);
    lblDesignTemp = label(framDesign, "lblDesignTemp", "Design temperature");
    place(lblDesignTemp, 0, 45, 2400, BoxHeight);
    txtDesignTemp = named(new QLineEdit(framDesign), "txtDesignTemp", "Design temperature");
    setBackColor(txtDesignTemp, vbInfoBackground);
    place(txtDesignTemp, 2475, 45, 1200, BoxHeight);
    lblDesignTemp->setBuddy(txtDesignTemp);
    addPrintSave(framDesign, 3, "toolbar/print.svg", "Print (Preview) Design Values Table...", 9705, 0);
    addPrintSave(framDesign, 4, "toolbar/save.svg", "Save Design Values Table To File (*.pdf,*.rtf,*.txt)...",
                 10215, 0);

    tdbDesign = grid(framDesign, "tdbDesign", "Design values");
    tdbDesign->setColumnHeaders(false); // each table brings its captions in a row of its own
    AddGridColumn(*tdbDesign, {}, 1800);
    AddGridColumn(*tdbDesign, {}, 1150);
    place(tdbDesign, 0, 540, PageWidth, 3180);
    lblKey = label(framDesign, "lblKey",
                   "KEY:  '-' = Below Temperature Range of this table, '+' = Above Temperature Range of this "
                   "table,  'x' = No value given for this Temperature");
    lblKey->setWordWrap(true);
    place(lblKey, 0, 3750, PageWidth, 465);
}

void MaterialControls::makeGraph(QWidget *window) {
    framChart = panel(window, "framChart", "Graph");
    setBackColor(framChart, vbInfoBackground);
    resizeTo(framChart, BesideOptionsWidth, PageHeight);
    MSChart1 = named(new MSChart(framChart), "MSChart1", "Graph of the table");
    place(MSChart1, 60, 60, 6285, 4095);
    addPrintSave(framChart, 0, "graph/save.svg", "Save Graph As Portable Document Format File (*.pdf)...",
                 6405, 75);
    addPrintSave(framChart, 1, "graph/print.svg", "Print (Preview) Graph...", 6405, 600);
    addPrintSave(framChart, 2, "graph/enlarge.svg", "Enlarge Graph View", 6405, 1125);

    framBlank = named(new QFrame(window), "framBlank", "Empty panel");
    framBlank->setAutoFillBackground(true);
    resizeTo(framBlank, OptionsWidth, TableHeight);

    framAxisCols = named(new QFrame(window), "framAxisCols", "Columns of the graph");
    framAxisCols->setAutoFillBackground(true);
    resizeTo(framAxisCols, OptionsWidth, OpenNotesHeight);
    const QStringList axes{"X Axis", "Y Axis"};
    for (int i = 0; i < axes.size(); ++i)
        place(lblAxis.add(i, new QLabel(axes[i], framAxisCols), axes[i]), 150, 150 + i * 525, 750, BoxHeight);
    lblXAxis = named(new QLabel(framAxisCols), "lblXAxis", "Column of the X axis");
    lblXAxis->setWordWrap(true); // three lines have room, for as long a name as a column may have
    place(lblXAxis, 960, 0, 2505, 645);
    cboColumnList = named(new QComboBox(framAxisCols), "cboColumnList", "Column of the Y axis");
    place(cboColumnList, 960, 675, 2505, BoxHeight);
    lblAxis(1)->setBuddy(cboColumnList);
    cmdUnBoundTable = button(framAxisCols, "cmdUnBoundTable", "Show Table");
    place(cmdUnBoundTable, 150, 1305, ButtonWidth, ButtonHeight);
}

void MaterialControls::addPrintSave(QWidget *frame, int index, const QString &picture, const QString &toolTip,
                                    int left, int top) {
    auto *command = cmdPrintSave.add(index, new QToolButton(frame), toolTip);
    command->setIcon(QIcon(":/velmar/" + picture));
    command->setIconSize({22, 22});
    command->setFocusPolicy(Qt::StrongFocus);
    place(command, left, top, 480, SymbolSize);
}

void MaterialControls::makePictures(QWidget *window) {
    const auto store = [window](ControlArray<ImageBox> &array, int index, const QString &picture,
                                QWidget *parent = nullptr) {
        auto *box = array.add(index, new ImageBox(parent != nullptr ? parent : window));
        box->setPicture(picture.isEmpty() ? QString() : ":/velmar/" + picture);
        box->hide();
    };
    store(ImgPic, 0, {}, framNotes);
    store(ImgPic, 1, "toolbar/references.svg");
    store(ImgPic, 2, {});
    place(ImgPic(0), PageWidth - BoxHeight - 60, 15, BoxHeight, BoxHeight);
    ImgPic(0)->show();
    resizeTo(ImgPic(1), BoxHeight, BoxHeight);
    place(ImgPic(2), OptionsLeft + OptionsWidth - SymbolSize - 120, PageTop + 120, SymbolSize, SymbolSize);

    store(imgUpDown, 0, "material/notes-closed.svg");
    store(imgUpDown, 1, "material/notes-open.svg");
    store(imgUpDown, 2, "material/notes-attention.svg");
    store(imgPhys, 0, "formula/modulus-of-elasticity.svg");
    store(imgPhys, 2, "formula/thermal-conductivity.svg");
    store(imgPhys, 4, "formula/electrical-resistivity.svg");
    store(imgTherm, 0, "formula/expansion-mean.svg");
    store(imgTherm, 1, "formula/expansion-differential.svg");
    store(imgTherm, 2, "formula/heat-capacity-mean.svg");
    store(imgTherm, 3, "formula/heat-capacity-differential.svg");
}

void MaterialControls::InitLayout() {
    moveTo(lblMain, PanelLeft, PanelTop);
    moveTo(lblFullForm, PanelLeft, PanelTop);
    for (QWidget *page : QList<QWidget *>{framChart, framDesign, framStand, tdbTable, tdbBoundTable})
        moveTo(page, PageLeft, PageTop);
    const QRect standard = placeOf(framStand);
    moveTo(framMain, PageLeft, standard.top() + standard.height() + FrameGap);
    moveTo(framOptions, OptionsLeft, PageTop);
    moveTo(framBlank, OptionsLeft, PageTop);
    moveTo(framAxisCols, OptionsLeft, OpenNotesTop);
}

void MaterialControls::setTabOrder() {
    QList<QWidget *> order{tdbTable, tdbBoundTable, cmdShowNotes};
    for (const auto &[index, option] : optMechProp)
        order << option;
    for (const auto &[index, command] : cmdPrintSave)
        order << command;
    order << txtDesignTemp << tdbDesign;
    for (qsizetype i = 1; i < order.size(); ++i)
        QWidget::setTabOrder(order[i - 1], order[i]);
}
