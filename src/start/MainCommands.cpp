#include "start/MainCommands.h"

#include <optional>

#include <QPushButton>

#include "data/Material.h"
#include "data/status_numbers.h"
#include "data/table_vocabulary.h"
#include "platform/forms/call_by_name.h"
#include "platform/forms/colours.h"
#include "platform/forms/default_instance.h"
#include "platform/forms/form.h"
#include "platform/forms/forms.h"
#include "platform/forms/send_keys.h"
#include "platform/forms/status_bar.h"
#include "platform/forms/step_progress.h"
#include "platform/forms/toolbar.h"
#include "platform/runtime/runtime_error.h"
#include "reports/actRepBatchPrint.h"
#include "reports/frmSelData.h"
#include "reports/ReportSource.h"
#include "search/frmSearch.h"
#include "shell/HTMLHelp.h"
#include "shell/main_state.h"
#include "shell/mdiVelmar.h"
#include "shell/modToolTips.h"
#include "start/frmAbout.h"
#include "workbench/Workbench.h"

namespace {

/// What a View command shows, and the status message that goes with it.
struct TableCommand {
    QString key;
    int status = 0;
};

/// No key for an entry that shows nothing itself.
TableCommand commandAt(const QString &group, int index) {
    if (group == QLatin1String("View") && index == 6) return {"Design", StatusNumber::DesignValues};
    for (int i = 0; i < TableVocabulary::TableCount; ++i) {
        const TableVocabulary::Table &table = TableVocabulary::tableAt(i);
        if (group != QStringView(table.menuGroup) || index != table.menuIndex) continue;
        const bool elevated = table.kind == TableVocabulary::Kind::Elevated;
        return {elevated ? QStringLiteral("Elevated") : QString::fromUtf16(table.key), table.status};
    }
    return {};
}

constexpr int ViewEntries = 7;
constexpr int PhysicalEntries = 5;
constexpr int FirstTableButton = 8;
constexpr int LastTableButton = 14;

bool isDropDown(const ToolbarButton &button) {
    return button.Key() == QLatin1String("Mech") || button.Key() == QLatin1String("Physical");
}

/// The windows that a View command speaks to.
bool showsTables(FormBase &form) {
    const auto *window = form.as<Form>();
    if (window != nullptr && window->isBeside()) return false;
    return form.Name() != QLatin1String("mdiVelmar") && form.Name() != QLatin1String("frmSearch");
}

} // namespace

MainCommands::MainCommands(mdiVelmar &window)
    : m_window(window) {}

void MainCommands::showSearch() {
    DefaultInstance<frmSearch>().Show();
}

void MainCommands::file(int index) {
    switch (index) {
    case FileEntry::ShowOrSelect:
        showSelectedOrSearch();
        break;
    case FileEntry::Save:
        selectData(true);
        break;
    case FileEntry::Print:
        selectData(false);
        break;
    case FileEntry::GeneralInformation:
        HTMLHelp::ShowHelpTopic(1, "General_Information.htm");
        break;
    case FileEntry::Exit:
        leaveProgram();
        break;
    default:
        break;
    }
}

/// The caption of the save says "As Text File" whatever format is chosen then: the choice stands in the
/// window itself.
void MainCommands::selectData(bool save) {
    const auto &current = m_window.mCurrent;
    if (!current || !current->MyForm()) throw RuntimeError(91);
    current->MyForm()->bringUp(); // what is printed is to be seen
    ReportSource::of(*current).setReportKind(ReportKind::Tables);
    auto &dialog = DefaultInstance<frmSelData>();
    dialog.setCaption(save ? "Save " + current->Name() + " As Text File - " + dialog.Caption()
                           : "Print " + current->Name() + " - " + dialog.Caption());
    dialog.cmdSavePrint->setText(save ? "Save..." : "Print/Preview...");
    m_window.ShowStatus(
        StatusNumber::onlyShown(save ? StatusNumber::ChooseForSaving : StatusNumber::ChooseForPrinting));
    dialog.setIcon(m_window.ImageList1.ListImages(save ? 4 : 5));
    dialog.setTop(1500);
    dialog.framSave->setVisible(save);
    dialog.ShowModal(&m_window);
}

/// The references are not forced into the reports: their mark stays as it was.
void MainCommands::batchPrint() {
    m_window.setMousePointer(vbHourglass);
    std::optional<StepProgress> progress(std::in_place, m_window.stbStatus->PanelPlace(1),
                                         m_window.colMaterials.Count());
    for (const auto &material : m_window.colMaterials) {
        if (!material->MyForm()) throw RuntimeError(91);
        FormBase &form = *material->MyForm();
        CallByName(form, "CheckTablesForRecords");
        ReportSource::of(*material).setReportKind(ReportKind::Tables);
        for (int i = 1; i < TableVocabulary::TableCount; ++i)
            if (material->TableHasData(m_window.GetShortTableName(i))) material->setPrintTable(i, true);
        form.UnloadAtOnce();
        progress->step();
    }
    progress.reset();
    m_window.setMousePointer(vbDefault);
    actRepBatchPrint::instance().ShowModal(&m_window);
}

void MainCommands::showSelectedOrSearch() {
    MenuEntry &entry = m_window.menu.mnuFileElem(FileEntry::ShowOrSelect);
    if (entry.Caption() == SelectCaption) {
        backToSearch();
    } else if (m_window.colMaterials.Count() > 0) {
        entry.setCaption(SelectCaption);
        DefaultInstance<frmSearch>().ShowSelections();
    }
}

void MainCommands::backToSearch() {
    MainMenu &menu = m_window.menu;
    menu.mnuFileElem(FileEntry::ShowOrSelect).setCaption(ShowSelectedCaption);
    for (FormBase &form : Forms())
        if (form.Name() == QLatin1String("frmMaterial2")) form.Unload();

    auto &search = DefaultInstance<frmSearch>();
    if (search.WindowState() != vbNormal) search.setWindowState(vbNormal);
    search.Show();
    search.setTop(50);
    search.RefreshSelected({});

    m_window.Toolbar1->setVisible(false);
    MainState::showMaterialsOpen(m_window, false);
    for (int i : {1, 3, 4, 5})
        menu.mnuViewElem(i).setChecked(false);
    m_window.ShowStatus(StatusNumber::Search);
}

void MainCommands::leaveProgram() {
    for (FormBase &form : Forms())
        if (form.Name() != m_window.Name()) form.Unload();
    m_window.Unload();
}

void MainCommands::view(int index) {
    if (m_window.menu.mnuViewElem(index).Enabled()) showTable("View", index);
}

void MainCommands::mechanical(int index) {
    if (m_window.menu.mnuViewMechElem(index).Enabled()) showTable("Mech", index);
}

void MainCommands::physical(int index) {
    if (m_window.menu.mnuViewPhysElem(index).Enabled()) showTable("Phys", index);
}

void MainCommands::showTable(const QString &group, int index) {
    const auto [key, status] = commandAt(group, index);
    if (key.isEmpty()) return;
    updateMenusAndButtons(group, index);
    m_window.setMousePointer(vbHourglass);
    const bool statusFirst = key == QLatin1String("Design");
    for (FormBase &form : Forms()) {
        if (!showsTables(form)) continue;
        if (statusFirst) m_window.ShowStatus(status);
        CallByName(form, "ShowTable", {key});
        if (!statusFirst) m_window.ShowStatus(status);
    }
    m_window.setMousePointer(vbDefault);
}

void MainCommands::updateMenusAndButtons(const QString &group, int index) {
    MainMenu &menu = m_window.menu;
    Toolbar &toolbar = *m_window.Toolbar1;
    ToolbarButton &mech = toolbar.Buttons("Mech");
    ToolbarButton &physical = toolbar.Buttons("Physical");
    for (int i : {0, 1, 3})
        menu.mnuViewMechElem(i).setEnabled(true);
    for (int i = 1; i <= mech.MenuCount(); ++i)
        mech.ButtonMenus(i).setEnabled(true);
    for (int i = 0; i <= 4; ++i)
        menu.mnuViewPhysElem(i).setEnabled(true);
    for (int i = 1; i <= physical.MenuCount(); ++i)
        physical.ButtonMenus(i).setEnabled(true);
    for (int i = 0; i <= 6; ++i)
        menu.mnuViewElem(i).setEnabled(true);
    for (int i = FirstTableButton; i <= LastTableButton; ++i)
        toolbar.Buttons(i).setValue(tbrUnpressed);

    if (group == QLatin1String("View")) {
        menu.mnuViewElem(index).setEnabled(false);
        toolbar.Buttons(index + FirstTableButton).setValue(tbrPressed);
        m_window.strTableButton = toolbar.Buttons(index + FirstTableButton).Key();
    } else if (group == QLatin1String("Mech")) {
        menu.mnuViewMechElem(index).setEnabled(false);
        mech.setValue(tbrPressed);
        m_window.strTableButton = mech.Key();
        // the menu has a separator where the drop-down has none
        const int entry = index == 3 ? 2 : index;
        mech.ButtonMenus(entry + 1).setEnabled(false);
    } else if (group == QLatin1String("Phys")) {
        menu.mnuViewPhysElem(index).setEnabled(false);
        physical.setValue(tbrPressed);
        m_window.strTableButton = physical.Key();
        physical.ButtonMenus(index + 1).setEnabled(false);
    }
    toolbar.update();
}

void MainCommands::settings(int index) {
    MenuEntry &entry = m_window.menu.mnuSettingsElem(index);
    switch (index) {
    case SettingsEntry::StatusBar:
        m_window.stbStatus->setVisible(!m_window.stbStatus->Visible());
        entry.setChecked(!entry.Checked());
        break;
    case SettingsEntry::Colour:
        entry.setChecked(!entry.Checked());
        m_window.Do_Undo_Colour_All();
        break;
    case SettingsEntry::ToolTips:
        entry.setChecked(!entry.Checked());
        m_window.bToolTips = !m_window.bToolTips;
        modToolTips::SetToolTips(m_window.bToolTips);
        break;
    case SettingsEntry::BackColour:
        changeBackColour();
        break;
    default:
        break;
    }
}

void MainCommands::toolbarSettings(int index) {
    MenuArray &entries = m_window.menu.mnuSettingsToolElem;
    Toolbar &toolbar = *m_window.Toolbar1;
    if (index < ToolbarEntry::AlignTop)
        toolbar.setVisible(!toolbar.Visible());
    else
        toolbar.setAlign(toolbar.Align() == vbAlignTop ? vbAlignBottom : vbAlignTop);
    const int first = index < ToolbarEntry::AlignTop ? ToolbarEntry::Show : ToolbarEntry::AlignTop;
    for (int i : {first, first + 1})
        entries(i).setEnabled(!entries(i).Enabled());
}

void MainCommands::changeBackColour() {
    const int colour = m_window.BackColor();
    // a colour outside the cycle, as a settings file may hold, stays for good
    const QList<int> cycle =
        m_window.bColoursOff
            ? QList<int>{vbWhite, m_window.cWorkspace}
            : QList<int>{m_window.cBlue, m_window.cGreen, m_window.cInfoBack, m_window.cWorkspace, vbWhite};
    const qsizetype at = cycle.indexOf(colour);
    if (at >= 0) m_window.setBackColor(cycle[(at + 1) % cycle.size()]);
}

void MainCommands::tools(int index) {
    Workbench::show(index);
}

void MainCommands::window(int index) {
    if (m_window.menu.mnuWindowElem(index).Checked()) return;
    MainState::arrange(m_window, index == WindowEntry::TileHorizontal);
}

void MainCommands::help(int index) {
    switch (index) {
    case HelpEntry::Contents:
        HTMLHelp::ShowHelpContents(1);
        break;
    case HelpEntry::Index:
        HTMLHelp::ShowHelpIndex(1);
        break;
    case HelpEntry::Search:
        HTMLHelp::ShowHelpSearch(1);
        break;
    case HelpEntry::About:
        m_window.ShowStatus(StatusNumber::onlyShown(StatusNumber::About));
        DefaultInstance<frmAbout>().ShowModal(&m_window);
        m_window.ShowStatus(StatusNumber::Restore);
        break;
    default:
        break;
    }
}

void MainCommands::toolbarButton(ToolbarButton &button) {
    if (button.Value() == tbrUnpressed && button.Index() >= 9 && button.Index() <= 20 && !isDropDown(button))
        button.setValue(tbrPressed);
    runButton(button);
    const bool showsTable = button.Index() >= FirstTableButton && button.Index() <= LastTableButton;
    if (showsTable && !isDropDown(button)) pressAgain(m_window.strArrangement);
}

void MainCommands::runButton(ToolbarButton &button) {
    const QString key = button.Key();
    if (key == QLatin1String("Select")) {
        file(FileEntry::ShowOrSelect);
        m_window.ShowStatus(StatusNumber::Search);
    } else if (key == QLatin1String("Next")) {
        SendKeys("^{TAB}");
    } else if (key == QLatin1String("Close")) {
        m_window.CloseMaterial();
    } else if (key == QLatin1String("Print")) {
        file(FileEntry::Print);
        m_window.ShowStatus(StatusNumber::Restore);
    } else if (key == QLatin1String("Save")) {
        file(FileEntry::Save);
    } else if (key == QLatin1String("Exit")) {
        file(FileEntry::Exit);
    } else if (key == QLatin1String("GenInfo")) {
        file(FileEntry::GeneralInformation);
    } else if (key == QLatin1String("Cascade") || key == QLatin1String("Horizontal")) {
        window(key == QLatin1String("Horizontal") ? WindowEntry::TileHorizontal : WindowEntry::Cascade);
        pressAgain(m_window.strTableButton);
    } else {
        for (int i = 0; i < ViewEntries; ++i)
            if (key == commandAt("View", i).key) return view(i);
    }
}

/// The two groups on the bar keep their state against each other.
void MainCommands::pressAgain(const QString &key) {
    ToolbarButton &button = m_window.Toolbar1->Buttons(key);
    if (button.Value() == tbrUnpressed) button.setValue(tbrPressed);
}

void MainCommands::toolbarMenu(const ButtonMenu &entry) {
    for (int i : {0, 1, 3})
        if (entry.Key() == commandAt("Mech", i).key) return mechanical(i);
    for (int i = 0; i < PhysicalEntries; ++i)
        if (entry.Key() == commandAt("Phys", i).key) return physical(i);
}
