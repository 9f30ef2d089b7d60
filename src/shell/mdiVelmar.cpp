#include "shell/mdiVelmar.h"

#include "data/database_names.h"
#include "data/Material.h"
#include "data/modDBase.h"
#include "data/status_numbers.h"
#include "data/table_vocabulary.h"
#include "platform/forms/colours.h"
#include "platform/forms/default_instance.h"
#include "platform/forms/form.h"
#include "platform/forms/forms.h"
#include "platform/forms/help_context.h"
#include "platform/forms/msg_box.h"
#include "platform/forms/placement.h"
#include "platform/forms/screen.h"
#include "platform/forms/status_bar.h"
#include "platform/forms/tdb_grid.h"
#include "platform/forms/toolbar.h"
#include "platform/runtime/app.h"
#include "platform/runtime/conversions.h"
#include "platform/runtime/runtime_error.h"
#include "shell/grid_colours.h"
#include "shell/HTMLHelp.h"
#include "shell/main_settings.h"
#include "shell/main_state.h"
#include "shell/main_toolbar.h"
#include "shell/MainActions.h"
#include "shell/modToolTips.h"
#include "shell/window_arrangement.h"

namespace {

const QString LineEnd = QStringLiteral("\r\n");

constexpr int SmallScreen = 1024;   // pixels
constexpr int SmallestScreen = 800; // pixels

QString missingDatabaseMessage() {
    return "Unable to locate database." + LineEnd + LineEnd +
           "Click 'Yes' to search for file, 'No' to exit program..." + LineEnd + LineEnd +
           "For more information double-click on the help file 'Velmar_PED_Help.chm'" + LineEnd +
           "in directory '" + App::current().path + "/' and read 'Can't Start Velmar-PED?'" + LineEnd +
           "in the 'How To Use Velmar-PED' book.";
}

QString smallScreenMessage() {
    return "Velmar-PED is best viewed with Screen Resolution "
           "(Desktop Area) of 800 x 600 (Pixels) or greater." +
           LineEnd + LineEnd + "Close this program." + LineEnd + "Right-Click on Desktop." + LineEnd +
           "Click on 'Properties' in pop-up menu." + LineEnd +
           "Click the 'Settings' tab on the Display Properties window." + LineEnd +
           "Change the 'Desktop Area' to 800 x 600 (Pixels) or greater." + LineEnd;
}

// Room for the search window and for two rows of material windows. In twips.
constexpr int RoomyWidth = 18690;
constexpr int RoomyHeight = 12975;

template <class Array>
auto &element(Array &array, int index) {
    if (index < 0 || index >= static_cast<int>(array.size())) throw RuntimeError(9);
    return array[static_cast<std::size_t>(index)];
}

mdiVelmar::MakeActions installedActions;

} // namespace

void mdiVelmar::installActions(MakeActions make) {
    installedActions = std::move(make);
}

mdiVelmar &mdiVelmar::instance() {
    return DefaultInstance<mdiVelmar>();
}

mdiVelmar::mdiVelmar()
    : MDIForm("mdiVelmar")
    , menu(*this)
    , m_actions(installedActions(*this))
    , m_databaseBoxes(comDlg) {
    buildControls();
    connectCommands();
}

mdiVelmar::~mdiVelmar() = default;

void mdiVelmar::buildControls() {
    setWindowIcon(QIcon(":/velmar/app/velmar-ped.svg"));
    setWidth(RoomyWidth);
    setHeight(RoomyHeight);
    Screen::fit(*this);
    Toolbar1 = new Toolbar("Toolbar1", this);
    addToolBar(Toolbar1);
    MainToolbar::addButtons(*Toolbar1);
    Toolbar1->setVisible(false);
    stbStatus = new StatusBar("stbStatus", this);
    setStatusBar(stbStatus);
    stbStatus->AddPanel(sbrText);
    stbStatus->AddPanel(sbrDate);
    stbStatus->AddPanel(sbrTime);
    MainToolbar::addPictures(ImageList1);
}

void mdiVelmar::connectCommands() {
    const auto entries = [this](MenuArray &array, void (MainActions::*action)(int)) {
        connect(&array, &MenuArray::Click, this, [this, action](int index) { (*m_actions.*action)(index); });
    };
    entries(menu.mnuFileElem, &MainActions::file);
    entries(menu.mnuViewElem, &MainActions::view);
    entries(menu.mnuViewMechElem, &MainActions::mechanical);
    entries(menu.mnuViewPhysElem, &MainActions::physical);
    entries(menu.mnuSettingsElem, &MainActions::settings);
    entries(menu.mnuSettingsToolElem, &MainActions::toolbarSettings);
    entries(menu.mnuToolsElem, &MainActions::tools);
    entries(menu.mnuWindowElem, &MainActions::window);
    entries(menu.mnuHelpElem, &MainActions::help);
    connect(Toolbar1, &Toolbar::ButtonClick, this,
            [this](ToolbarButton *button) { m_actions->toolbarButton(*button); });
    connect(Toolbar1, &Toolbar::ButtonMenuClick, this,
            [this](ButtonMenu *entry) { m_actions->toolbarMenu(*entry); });
    connect(stbStatus, &StatusBar::PanelDblClick, this, [this] { m_actions->settings(1); });
    connect(this, &MDIForm::DblClick, this, [this] { m_actions->settings(4); });
    HelpContext::setViewer([](const QString &topic) {
        if (topic.isEmpty())
            HTMLHelp::ShowHelpContents(1);
        else
            HTMLHelp::ShowHelpTopic(1, topic);
    });
}

void mdiVelmar::Form_Load() {
    // the icon is the first letter of the product's name, which the caption therefore lacks
    setCaption("elmar-PED - ");
    SetStatus();
    ShowStatus(StatusNumber::Search);
    setCaption("elmar-PED   ");
    Toolbar1->setImageList(&ImageList1);
    MainToolbar::numberImages(*Toolbar1);
    Toolbar1->setButtonSize(450);
    strArrangement = "Cascade";
    strTableButton = "Ref";
    cInfoBack = vbInfoBackground;
    cWorkspace = vbApplicationWorkspace;
    cGreen = 11074466;
    cBlue = 16697253;
    setBackColor(cBlue);
    GetDecimal();
    ReadSettings();
    testScreen();
    openDatabase();
}

void mdiVelmar::testScreen() {
    const int width = CheckScreenResolution();
    if (width < SmallestScreen) MsgBox(smallScreenMessage(), vbOKOnly, "Screen Resolution");
    bLowRes = width < SmallScreen;
}

void mdiVelmar::openDatabase() {
    if (!modDBase::OpenDBase(m_databaseBoxes, DatabaseFile, DatabasePathFile, true, true, DatabasePassword,
                             missingDatabaseMessage())) {
        UnloadMain();
        return;
    }
    Show();
    m_actions->showSearch();
    if (bColoursOff) Do_Undo_Colour_All();
    modToolTips::SetToolTips(bToolTips);
}

void mdiVelmar::UnloadMain() {
    Unload();
}

void mdiVelmar::Form_Unload(bool &) {
    modDBase::CloseDBase();
    WriteSettings();
    for (FormBase &form : Forms())
        if (form.Name() != Name()) form.Unload();
    colMaterials = {};
    mCurrent.reset();
}

qint16 mdiVelmar::CheckScreenResolution() const {
    return CInt(static_cast<double>(Screen::Width()) / Screen::TwipsPerPixelX());
}

float mdiVelmar::ColumnSize(int index) const {
    return element(m_columnSize, index);
}

void mdiVelmar::setColumnSize(int index, float twips) {
    element(m_columnSize, index) = twips;
}

bool mdiVelmar::ColumnVisible(int index) const {
    return element(m_columnVisible, index);
}

void mdiVelmar::setColumnVisible(int index, bool visible) {
    element(m_columnVisible, index) = visible;
}

QString mdiVelmar::SavedSearch(int index) const {
    return element(m_savedSearch, index);
}

void mdiVelmar::setSavedSearch(int index, const QString &text) {
    element(m_savedSearch, index) = text;
}

QString mdiVelmar::GetTableName(int index) const {
    return TableVocabulary::GetTableName(index);
}

QString mdiVelmar::GetShortTableName(int index) const {
    return TableVocabulary::GetShortTableName(index);
}

qint16 mdiVelmar::GetTableIndex(const QString &key) const {
    return static_cast<qint16>(TableVocabulary::GetTableIndex(key));
}

QString mdiVelmar::GetCaption(const QString &key) const {
    return TableVocabulary::GetCaption(key);
}

void mdiVelmar::SetRowColors(TDBGrid &grid, bool swapped) {
    grid.setEvenRowStyle({toQColor(swapped ? cBlue : cGreen)});
    grid.setOddRowStyle({toQColor(swapped ? cGreen : cBlue)});
}

void mdiVelmar::Do_Undo_Colour_All() {
    const bool coloursOn = menu.mnuSettingsElem(SettingsEntry::Colour).Checked();
    bColoursOff = !coloursOn;
    setBackColor(coloursOn ? cBlue : vbWhite);
    const int colour = coloursOn ? cInfoBack : vbWhite;
    if (FormBase *search = Forms::byName("frmSearch")) GridColours::applyToSearch(*search, coloursOn, colour);
    for (FormBase &form : Forms()) {
        if (form.Name() == QLatin1String("frmMaterial2")) Do_Undo_Colour(*form.as<Form>());
        if (form.Name() == QLatin1String("frmChart")) GridColours::applyToChart(form, colour);
    }
}

void mdiVelmar::Do_Undo_Colour(Form &frm) {
    const bool coloursOn = menu.mnuSettingsElem(SettingsEntry::Colour).Checked();
    GridColours::applyToMaterial(frm, coloursOn, coloursOn ? cInfoBack : vbWhite);
}

void mdiVelmar::GetDecimal() {
    const NumberFlags flags = NumberFlags::fromSystem();
    bDecimalPoint |= flags.bDecimalPoint;
    bCommaGroup |= flags.bCommaGroup;
}

void mdiVelmar::ReadSettings() {
    MainSettings::read(*this);
}

void mdiVelmar::WriteSettings() {
    MainSettings::write(*this);
}

void mdiVelmar::SetStatus() {
    strStatusText = statusMessages(App::current().title);
}

void mdiVelmar::ShowStatus(int code) {
    const bool onlyShown = code > StatusNumber::Restore;
    if (code == StatusNumber::Restore) code = iLastStatus;
    if (onlyShown) code -= StatusNumber::onlyShown(0);
    stbStatus->setPanelText(1, element(strStatusText, code));
    if (!onlyShown) iLastStatus = code;
}

void mdiVelmar::UpdateMenusAndButtons(const QString &group, int index) {
    m_actions->updateMenusAndButtons(group, index);
}

void mdiVelmar::ShowAbout() {
    m_actions->help(HelpEntry::About);
}

void mdiVelmar::SelectMaterials() {
    m_actions->file(FileEntry::ShowOrSelect);
}

void mdiVelmar::DoBatchPrint() {
    m_actions->batchPrint();
}

void mdiVelmar::SetCurrentMaterial(const std::shared_ptr<Material> &mat) {
    mCurrent = mat;
    if (!bToolTips || !mat) return;
    Toolbar1->Buttons("Close").setToolTipText("Close " + mat->Name());
    Toolbar1->Buttons("Save").setToolTipText("Save " + mat->Name() + " Report To File...");
    Toolbar1->Buttons("Print").setToolTipText("Print (Preview) " + mat->Name() + " Report...");
}

/// In spite of its name it counts nothing: it follows the count that the windows keep.
void mdiVelmar::CountMaterialsOpen() {
    if (iMaterialsOpen < 1) MainState::showMaterialsOpen(*this, false);
}

void mdiVelmar::CloseMaterial() {
    try {
        if (!mCurrent || mCurrent->MyForm() == nullptr) throw RuntimeError(91);
        Form *form = mCurrent->MyForm();
        colMaterials.Remove(Materials::keyOf(*mCurrent));
        form->Unload();
    } catch (const RuntimeError &) {
        return; // nothing is left to close
    }
}

std::shared_ptr<Material> mdiVelmar::materialOf(const Form &form) const {
    for (const auto &material : colMaterials)
        if (material->MyForm() == &form) return material;
    return nullptr;
}

void mdiVelmar::DoCascade() {
    WindowArrangement::cascade(Width(), [this](Form &form) { SetCurrentMaterial(materialOf(form)); });
}

void mdiVelmar::DoTileHorizontal() {
    WindowArrangement::tileHorizontal(Width(), colMaterials.Count(),
                                      [this](Form &form) { SetCurrentMaterial(materialOf(form)); });
}
