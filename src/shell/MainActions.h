// What the menu entries and tool bar buttons of the main window do; those who know all windows do it.
#pragma once

class ButtonMenu;
class QString;
class ToolbarButton;

class MainActions {
public:
    virtual ~MainActions() = default;

    // An entry of a menu family, by its index.
    virtual void file(int index) = 0;
    virtual void view(int index) = 0;
    virtual void mechanical(int index) = 0;
    virtual void physical(int index) = 0;
    virtual void settings(int index) = 0;
    virtual void toolbarSettings(int index) = 0;
    virtual void tools(int index) = 0;
    virtual void window(int index) = 0;
    virtual void help(int index) = 0;

    virtual void toolbarButton(ToolbarButton &button) = 0;
    virtual void toolbarMenu(const ButtonMenu &entry) = 0;

    /// The window that the user sees first.
    virtual void showSearch() = 0;
    /// Prints all selected materials, whose windows are open, in one document.
    virtual void batchPrint() = 0;
    virtual void updateMenusAndButtons(const QString &group, int index) = 0;
};
