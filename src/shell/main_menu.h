// The menu tree of the main window.
#pragma once

#include "platform/forms/menu_entry.h"

class MDIForm;

/// The first File entry with the search before the user, and with material windows: the caption is the mode.
inline const QString ShowSelectedCaption = QStringLiteral("Show Selected &Material(s)");
inline const QString SelectCaption = QStringLiteral("Select &Material(s)");

/// Made with the captions, short cuts and states that hold at the program's start.
struct MainMenu {
    explicit MainMenu(MDIForm &window);

    MenuEntry *mnuFile;
    MenuArray mnuFileElem;
    MenuEntry *mnuView;
    MenuArray mnuViewElem;
    MenuArray mnuViewMechElem;
    MenuArray mnuViewPhysElem;
    MenuEntry *mnuSettings;
    MenuArray mnuSettingsElem;
    MenuArray mnuSettingsToolElem;
    MenuEntry *mnuWindow;
    MenuArray mnuWindowElem;
    MenuEntry *mnuHelp;
    MenuArray mnuHelpElem;
};
