#include "shell/main_state.h"

#include "platform/forms/toolbar.h"
#include "shell/main_toolbar.h"
#include "shell/mdiVelmar.h"

void MainState::showMaterialsOpen(mdiVelmar &window, bool open) {
    MainToolbar::showMaterialButtons(*window.Toolbar1, open);
    window.menu.mnuView->setVisible(open);
    window.menu.mnuSettingsElem(SettingsEntry::Toolbar).setEnabled(open);
    window.menu.mnuFileElem(FileEntry::Save).setEnabled(open);
    window.menu.mnuFileElem(FileEntry::Print).setEnabled(open);
}

void MainState::arrange(mdiVelmar &window, bool tile) {
    if (tile)
        window.DoTileHorizontal();
    else
        window.DoCascade();
    markArrangement(window, tile);
    window.Toolbar1->Buttons("Cascade").setValue(tile ? tbrUnpressed : tbrPressed);
    window.Toolbar1->Buttons("Horizontal").setValue(tile ? tbrPressed : tbrUnpressed);
    window.Toolbar1->update();
    window.strArrangement = tile ? "Horizontal" : "Cascade";
}

void MainState::markArrangement(mdiVelmar &window, bool tile) {
    window.menu.mnuWindowElem(WindowEntry::Cascade).setChecked(!tile);
    window.menu.mnuWindowElem(WindowEntry::TileHorizontal).setChecked(tile);
    window.iArrangement = tile ? 1 : 0;
}
