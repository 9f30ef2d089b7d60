// The menu tree of the main window.
#pragma once

#include "platform/forms/menu_entry.h"

class MDIForm;

/// The first File entry with the search before the user, and with material windows: the caption is the mode.
inline const QString ShowSelectedCaption = QStringLiteral("Show Selected &Material(s)");
inline const QString SelectCaption = QStringLiteral("Select &Material(s)");

// The entries by their place in a menu; the gaps are separators.
namespace FileEntry {
enum : int { ShowOrSelect = 0, Save = 2, Print = 3, GeneralInformation = 5, Exit = 7 };
}
namespace SettingsEntry {
enum : int { Toolbar, StatusBar, Colour, ToolTips, BackColour };
}
/// Below Settings > Toolbar.
namespace ToolbarEntry {
enum : int { Show, Hide, AlignTop, AlignBottom };
}
namespace WindowEntry {
enum : int { Cascade, TileHorizontal };
}
namespace ToolsEntry {
enum : int { CompareGrades = 0, FindByValue = 1, ValuesOverTemperature = 3, MaterialCard = 4 };
}
namespace HelpEntry {
enum : int { Contents = 0, Index = 1, Search = 2, About = 4 };
}

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
    MenuEntry *mnuTools;
    MenuArray mnuToolsElem;
    MenuEntry *mnuWindow;
    MenuArray mnuWindowElem;
    MenuEntry *mnuHelp;
    MenuArray mnuHelpElem;
};
