// One button of a tool bar, and the entries of its drop-down.
#pragma once

#include <vector>

#include <QAction>
#include <QObject>

class QToolButton;
class Toolbar;

enum ToolbarButtonStyle {
    tbrDefault = 0,
    /// A click turns its value.
    tbrCheck = 1,
    /// A click presses it and takes the pressed state from the others between the same two separators.
    tbrButtonGroup = 2,
    tbrSeparator = 3,
    tbrDropdown = 5
};

enum ToolbarButtonValue { tbrUnpressed = 0, tbrPressed = 1 };

class ButtonMenu : public QAction {
    Q_OBJECT

public:
    ButtonMenu(const QString &key, const QString &text, int index, QObject *parent);

    QString Key() const { return m_key; }
    int Index() const { return m_index; }
    bool Enabled() const { return isEnabled(); }

private:
    QString m_key;
    int m_index;
};

class ToolbarButton : public QObject {
    Q_OBJECT

public:
    ToolbarButton(Toolbar &toolbar, const QString &key, int index, ToolbarButtonStyle style);

    QString Key() const { return m_key; }
    int Index() const { return m_index; }
    ToolbarButtonStyle Style() const { return m_style; }

    ToolbarButtonValue Value() const { return m_value; }
    void setValue(ToolbarButtonValue value);
    QString ToolTipText() const { return m_toolTip; }
    void setToolTipText(const QString &text);
    bool Visible() const;
    void setVisible(bool visible);
    bool Enabled() const;
    void setEnabled(bool enabled);
    /// The number in the bar's image list, 0 for none.
    int Image() const { return m_image; }
    void setImage(int index);

    /// Entries of the drop-down, counted from 1.
    ButtonMenu &AddMenu(const QString &key, const QString &text);
    int MenuCount() const { return static_cast<int>(m_menu.size()); }
    /// Raise 35600 and 35601 as the bar does.
    ButtonMenu &ButtonMenus(int index) const;
    ButtonMenu &ButtonMenus(const QString &key) const;

    /// Null for a separator.
    QToolButton *widget() const { return m_widget; }

private:
    friend class Toolbar;
    void showPicture();

    Toolbar &m_toolbar;
    QString m_key;
    int m_index;
    ToolbarButtonStyle m_style;
    ToolbarButtonValue m_value = tbrUnpressed;
    QString m_toolTip;
    int m_image = 0;
    QToolButton *m_widget = nullptr;
    QAction *m_place = nullptr;
    std::vector<ButtonMenu *> m_menu;
};
