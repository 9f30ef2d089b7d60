// The main window, whose work area holds the child windows.
#pragma once

#include <QMainWindow>
#include <QMdiArea>

#include "platform/forms/form_base.h"

class ChildFrame;
class Form;
class MenuEntry;

/// At most one exists at a time. At most one child is maximised, and it is the active one: the next that
/// becomes active takes the state over where it can be maximised.
///
///  Unloading it first asks itself and then every child, and goes on only when
/// none cancels: the children unload first, then it.
class MDIForm : public QMainWindow, public FormBase {
    Q_OBJECT

public:
    explicit MDIForm(const QString &name);
    ~MDIForm() override;

    /// Null before it is made and after it is unloaded.
    static MDIForm *current();

    QWidget *asWidget() override { return this; }
    using FormBase::asWidget;
    using FormBase::setWindowState;
    using QMainWindow::setWindowState;

    /// The child in front, or null.
    Form *activeChild() const;
    /// The children that show, in the order of their making.
    QList<Form *> visibleChildren() const;
    /// What Ctrl+Tab does: the next visible child in the order of their making comes to the front. It passes
    /// minimised ones, and restores one where there is no other.
    void activateNextChild(bool backward = false);

    /// The colour of the empty work area: a colour number, or a system colour.
    int BackColor() const { return m_backColor; }
    void setBackColor(int colour);

    /// The sub-menu of this entry ends with the visible children, the active one with a mark.
    void setWindowList(MenuEntry *menu);

Q_SIGNALS:
    /// A double click on the empty area between the children.
    void DblClick();

protected:
    QWidget *frame() override { return this; }
    using FormBase::frame;
    QSize nominalFrame() const override;
    void showFrame() override;
    void focusFrame() override;
    bool queryDependents() override;
    bool unloadDependents() override;

    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    friend class ChildFrame;
    friend class Form;
    void addChild(ChildFrame *frame);
    void removeChild(ChildFrame *frame);
    /// A child was shown, hidden, activated or renamed.
    void childChanged();
    /// The child leaves the front, hidden or minimised: the one used before it comes forward.
    void activateBehind(const ChildFrame *leaving);
    void takeMaximisedStateOver(ChildFrame &active);
    void frameActivated(QMdiSubWindow *frame);
    QList<Form *> forms() const;
    bool isMenuKey(const QKeyEvent &event) const;
    bool childKey(const QKeyEvent &event);

    QMdiArea *m_area;
    int m_backColor;
    QPointer<MenuEntry> m_windowList;
    QList<QAction *> m_windowListActions;
    bool m_handingOver = false;
};
