// An entry of a menu: a command, a sub-menu or an entry of the menu bar.
#pragma once

#include <map>

#include <QAction>

class QMenu;

/// Its check mark is the program's alone: a click does not change it.
class MenuEntry : public QAction {
    Q_OBJECT

public:
    MenuEntry(const QString &name, const QString &caption, QObject *parent);

    QString Caption() const { return text(); }
    void setCaption(const QString &caption) { setText(caption); }
    bool Checked() const { return m_checked; }
    void setChecked(bool checked);
    bool Enabled() const { return isEnabled(); }
    bool Visible() const { return isVisible(); }

    /// The menu that this entry opens, made on first use.
    QMenu *SubMenu();
    /// A further entry, or a separator, at the end of the sub-menu.
    MenuEntry *add(const QString &name, const QString &caption, const QKeySequence &shortcut = {});
    void addSeparator();

Q_SIGNALS:
    void Click();

private:
    void triggeredByUser();

    bool m_checked = false;
};

/// A control array of menu entries: `mnuFileElem.add(mnuFile, 0, "&Open", QKeySequence("Ctrl+O"))`,
/// `mnuFileElem(0).setEnabled(false)`. One handler takes the clicks of all with the index.
class MenuArray : public QObject {
    Q_OBJECT

public:
    explicit MenuArray(const QString &name, QObject *parent = nullptr);

    MenuEntry &add(MenuEntry *menu, int index, const QString &caption, const QKeySequence &shortcut = {});
    /// Raises 340 for an index without an entry.
    MenuEntry &operator()(int index) const;

Q_SIGNALS:
    void Click(int index);

private:
    std::map<int, MenuEntry *> m_entries;
};
