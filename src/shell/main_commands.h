// What the menu entries and tool bar buttons of the main window do.
#pragma once

#include <QObject>
#include <QString>

class ButtonMenu;
class mdiVelmar;
class ToolbarButton;

/// One routine a family of entries; the tool bar is a second face of the menu and runs the same routines.
class MainCommands : public QObject {
    Q_OBJECT
public:
    explicit MainCommands(mdiVelmar &window);

    void file(int index);
    void view(int index);
    void mechanical(int index);
    void physical(int index);
    void settings(int index);
    void toolbarSettings(int index);
    void window(int index);
    void help(int index);

    void toolbarButton(ToolbarButton &button);
    void toolbarMenu(const ButtonMenu &entry);

    /// Prints all selected materials, whose windows are open, in one document.
    void batchPrint();

    void updateMenusAndButtons(const QString &group, int index);

private:
    void showSelectedOrSearch();
    void selectData(bool save);
    void backToSearch();
    void leaveProgram();
    void showTable(const QString &group, int index, const QString &key, int status);
    void changeBackColour();
    void runButton(ToolbarButton &button);
    void pressAgain(const QString &key);

    mdiVelmar &m_window;
};
