// What the menu entries and tool bar buttons of the main window do.
#pragma once

#include <QString>

#include "shell/MainActions.h"

class mdiVelmar;

/// One routine a family of entries; the tool bar is a second face of the menu and runs the same routines.
class MainCommands : public MainActions {
public:
    explicit MainCommands(mdiVelmar &window);

    void file(int index) override;
    void view(int index) override;
    void mechanical(int index) override;
    void physical(int index) override;
    void settings(int index) override;
    void toolbarSettings(int index) override;
    void tools(int index) override;
    void window(int index) override;
    void help(int index) override;

    void toolbarButton(ToolbarButton &button) override;
    void toolbarMenu(const ButtonMenu &entry) override;

    void showSearch() override;
    void batchPrint() override;
    void updateMenusAndButtons(const QString &group, int index) override;

private:
    void showSelectedOrSearch();
    void selectData(bool save);
    void backToSearch();
    void leaveProgram();
    void showTable(const QString &group, int index);
    void changeBackColour();
    void runButton(ToolbarButton &button);
    void pressAgain(const QString &key);

    mdiVelmar &m_window;
};
