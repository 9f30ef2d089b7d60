#include "shell/main_settings.h"

#include "data/modFileHandler.h"
#include "platform/forms/status_bar.h"
#include "platform/forms/toolbar.h"
#include "shell/main_state.h"
#include "shell/mdiVelmar.h"
#include "shell/settings_file.h"

namespace MainSettings {

namespace {

const QString FileName = QStringLiteral("Settings.vlp");

/// The entry for the state that holds is the disabled one.
void applyToolbar(mdiVelmar &window, const Settings &settings) {
    MenuArray &entries = window.menu.mnuSettingsToolElem;
    if (!settings.toolbarShown) {
        window.Toolbar1->setVisible(false);
        entries(ToolbarEntry::Show).setEnabled(true);
        entries(ToolbarEntry::Hide).setEnabled(false);
    }
    if (settings.toolbarAtBottom) {
        window.Toolbar1->setAlign(vbAlignBottom);
        entries(ToolbarEntry::AlignTop).setEnabled(true);
        entries(ToolbarEntry::AlignBottom).setEnabled(false);
    }
}

void applyMenus(mdiVelmar &window, const Settings &settings) {
    MainMenu &menu = window.menu;
    if (settings.tileHorizontal) {
        MainState::markArrangement(window, true);
    }
    applyToolbar(window, settings);
    if (!settings.statusShown) {
        window.stbStatus->setVisible(false);
        menu.mnuSettingsElem(SettingsEntry::StatusBar).setChecked(false);
    }
    if (settings.coloursOff) {
        window.bColoursOff = true;
        menu.mnuSettingsElem(SettingsEntry::Colour).setChecked(false);
    }
    window.bToolTips = settings.toolTips;
    if (!settings.toolTips) menu.mnuSettingsElem(SettingsEntry::ToolTips).setChecked(false);
}

} // namespace

void read(mdiVelmar &window) {
    const Settings settings = SettingsFile::read(modFileHandler::GetUserPath(FileName));
    applyMenus(window, settings);
    for (int i = 0; i < 6; ++i) {
        window.setColumnSize(i, settings.columnSize[static_cast<std::size_t>(i)]);
        window.setColumnVisible(i, settings.columnVisible[static_cast<std::size_t>(i)]);
    }
    for (int i = 0; i < 8; ++i)
        window.setSavedSearch(i, settings.savedSearch[static_cast<std::size_t>(i)]);
    // Starting over would meet a colour that is no number again and again: the error goes up instead. All
    // else is there by then, so that what is written at the end mends the file and loses nothing.
    if (const auto colour = settings.backColor()) window.setBackColor(*colour);
}

void write(const mdiVelmar &window) {
    const MainMenu &menu = window.menu;
    Settings settings;
    settings.tileHorizontal = !menu.mnuWindowElem(WindowEntry::Cascade).Checked();
    settings.toolbarShown = !menu.mnuSettingsToolElem(ToolbarEntry::Show).Enabled();
    settings.toolbarAtBottom = window.Toolbar1->Align() != vbAlignTop;
    settings.statusShown = window.stbStatus->Visible();
    settings.setBackColor(window.BackColor());
    settings.coloursOff = window.bColoursOff;
    settings.toolTips = window.bToolTips;
    for (int i = 0; i < 6; ++i) {
        settings.columnSize[static_cast<std::size_t>(i)] = window.ColumnSize(i);
        settings.columnVisible[static_cast<std::size_t>(i)] = window.ColumnVisible(i);
    }
    for (int i = 0; i < 8; ++i)
        settings.savedSearch[static_cast<std::size_t>(i)] = window.SavedSearch(i);
    SettingsFile::write(modFileHandler::GetUserPath(FileName), settings);
}

} // namespace MainSettings
