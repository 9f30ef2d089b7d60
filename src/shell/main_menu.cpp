#include "shell/main_menu.h"

#include <QMenu>
#include <QMenuBar>

#include "platform/forms/mdi_form.h"

namespace {

MenuEntry *addToBar(MDIForm &window, const QString &name, const QString &caption) {
    auto *entry = new MenuEntry(name, caption, &window);
    entry->SubMenu();
    window.menuBar()->addAction(entry);
    return entry;
}

QKeySequence ctrl(char key) {
    return QKeySequence(QStringLiteral("Ctrl+") + QLatin1Char(key));
}

/// A separator is an entry of its own in its array.
void addSeparator(MenuArray &array, MenuEntry *menu, int index) {
    array.add(menu, index, {}).setSeparator(true);
}

void buildFile(MainMenu &menu) {
    menu.mnuFileElem.add(menu.mnuFile, FileEntry::ShowOrSelect, ShowSelectedCaption, ctrl('M'));
    addSeparator(menu.mnuFileElem, menu.mnuFile, 1);
    menu.mnuFileElem.add(menu.mnuFile, FileEntry::Save, "&Save Report For Current Material To File...",
                         ctrl('S'));
    menu.mnuFileElem.add(menu.mnuFile, FileEntry::Print, "&Print (Preview) Report For Current Material...",
                         ctrl('P'));
    addSeparator(menu.mnuFileElem, menu.mnuFile, 4);
    menu.mnuFileElem.add(menu.mnuFile, FileEntry::GeneralInformation, "&Generial Information",
                         ctrl('G')); // so spelt since its first release
    addSeparator(menu.mnuFileElem, menu.mnuFile, 6);
    menu.mnuFileElem.add(menu.mnuFile, FileEntry::Exit, "E&xit", ctrl('Q'));
    menu.mnuFileElem(FileEntry::Save).setEnabled(false);
    menu.mnuFileElem(FileEntry::Print).setEnabled(false);
}

void buildView(MainMenu &menu) {
    menu.mnuView->setVisible(false);
    menu.mnuViewElem.add(menu.mnuView, 0, "&References").setEnabled(false);
    menu.mnuViewElem.add(menu.mnuView, 1, "&Chemical Composition");
    MenuEntry &mech = menu.mnuViewElem.add(menu.mnuView, 2, "&Mechanical Properties");
    menu.mnuViewMechElem.add(&mech, 0, "At &Room Temperature");
    menu.mnuViewMechElem.add(&mech, 1, "At &Elevated Temperature");
    addSeparator(menu.mnuViewMechElem, &mech, 2);
    menu.mnuViewMechElem.add(&mech, 3, "&Creep Properties");
    menu.mnuViewElem.add(menu.mnuView, 3, "&Impact Energy");
    MenuEntry &phys = menu.mnuViewElem.add(menu.mnuView, 4, "&Physical Properties");
    menu.mnuViewPhysElem.add(&phys, 0, "&Modulus Of Elasticity");
    menu.mnuViewPhysElem.add(&phys, 1, "Thermal &Expansion");
    menu.mnuViewPhysElem.add(&phys, 2, "Thermal &Conductivity");
    menu.mnuViewPhysElem.add(&phys, 3, "Specific &Thermal Capacity");
    menu.mnuViewPhysElem.add(&phys, 4, "Specific Electrical &Resistivity");
    menu.mnuViewElem.add(menu.mnuView, 5, "&Additional Information");
    menu.mnuViewElem.add(menu.mnuView, 6, "&Design Values");
}

void buildSettings(MainMenu &menu) {
    MenuEntry &toolbar = menu.mnuSettingsElem.add(menu.mnuSettings, SettingsEntry::Toolbar, "&Toolbar");
    toolbar.setEnabled(false);
    menu.mnuSettingsToolElem.add(&toolbar, ToolbarEntry::Show, "&Show").setEnabled(false);
    menu.mnuSettingsToolElem.add(&toolbar, ToolbarEntry::Hide, "&Hide");
    menu.mnuSettingsToolElem.add(&toolbar, ToolbarEntry::AlignTop, "Align &Top").setEnabled(false);
    menu.mnuSettingsToolElem.add(&toolbar, ToolbarEntry::AlignBottom, "Align &Bottom");
    menu.mnuSettingsElem.add(menu.mnuSettings, SettingsEntry::StatusBar, "Status &Bar").setChecked(true);
    menu.mnuSettingsElem.add(menu.mnuSettings, SettingsEntry::Colour, "&Colour").setChecked(true);
    menu.mnuSettingsElem.add(menu.mnuSettings, SettingsEntry::ToolTips, "ToolTi&ps").setChecked(true);
    menu.mnuSettingsElem.add(menu.mnuSettings, SettingsEntry::BackColour, "C&hange Back Colour");
}

/// Its windows stand beside the main window, and their keys hold in these, too.
void buildTools(MainMenu &menu) {
    const auto add = [&menu](int index, const QString &caption, const QKeySequence &keys = {}) {
        menu.mnuToolsElem.add(menu.mnuTools, index, caption, keys)
            .setShortcutContext(Qt::ApplicationShortcut);
    };
    add(ToolsEntry::CompareGrades, "&Compare Grades", ctrl('E'));
    add(ToolsEntry::FindByValue, "&Find by Value", ctrl('F'));
    addSeparator(menu.mnuToolsElem, menu.mnuTools, 2);
    add(ToolsEntry::ValuesOverTemperature, "&Values over Temperature");
    add(ToolsEntry::MaterialCard, "&Material Card");
}

void buildWindowAndHelp(MainMenu &menu) {
    menu.mnuWindowElem.add(menu.mnuWindow, WindowEntry::Cascade, "&Cascade").setChecked(true);
    menu.mnuWindowElem.add(menu.mnuWindow, WindowEntry::TileHorizontal, "Tile &Horizontal");
    menu.mnuHelpElem.add(menu.mnuHelp, HelpEntry::Contents, "&Contents", QKeySequence(Qt::Key_F1));
    menu.mnuHelpElem.add(menu.mnuHelp, HelpEntry::Index, "&Index");
    menu.mnuHelpElem.add(menu.mnuHelp, HelpEntry::Search, "&Search");
    addSeparator(menu.mnuHelpElem, menu.mnuHelp, 3);
    menu.mnuHelpElem.add(menu.mnuHelp, HelpEntry::About, "&About VELMAR-PED");
}

} // namespace

MainMenu::MainMenu(MDIForm &window)
    : mnuFile(addToBar(window, "mnuFile", "&File"))
    , mnuFileElem("mnuFileElem")
    , mnuView(addToBar(window, "mnuView", "&View"))
    , mnuViewElem("mnuViewElem")
    , mnuViewMechElem("mnuViewMechElem")
    , mnuViewPhysElem("mnuViewPhysElem")
    , mnuSettings(addToBar(window, "mnuSettings", "&Settings"))
    , mnuSettingsElem("mnuSettingsElem")
    , mnuSettingsToolElem("mnuSettingsToolElem")
    , mnuTools(addToBar(window, "mnuTools", "&Tools"))
    , mnuToolsElem("mnuToolsElem")
    , mnuWindow(addToBar(window, "mnuWindow", "&Window"))
    , mnuWindowElem("mnuWindowElem")
    , mnuHelp(addToBar(window, "mnuHelp", "&Help"))
    , mnuHelpElem("mnuHelpElem") {
    buildFile(*this);
    buildView(*this);
    buildSettings(*this);
    buildTools(*this);
    buildWindowAndHelp(*this);
    window.setWindowList(mnuWindow);
}
