#include "platform/forms/mdi_form.h"

#include <algorithm>

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QScopedValueRollback>

#include "platform/forms/child_frame.h"
#include "platform/forms/colours.h"
#include "platform/forms/form.h"
#include "platform/forms/forms.h"
#include "platform/forms/menu_entry.h"
#include "platform/forms/platform_style.h"
#include "platform/runtime/runtime_error.h"

namespace {

MDIForm *theMainWindow = nullptr;

bool isMinimised(const Form *form) {
    return form->WindowState() == vbMinimized;
}

} // namespace

MDIForm::MDIForm(const QString &name)
    : m_area(new QMdiArea)
    , m_backColor(vbApplicationWorkspace) {
    if (current() != nullptr) throw RuntimeError(5);
    theMainWindow = this;
    setObjectName(name);
    setContextMenuPolicy(Qt::PreventContextMenu); // else a right click could hide the tool bar past the menu
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_area->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    // A window that cannot be maximised must not become so because the one before it was; the area itself
    // would not ask.
    m_area->setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
    setBackColor(m_backColor);
    setCentralWidget(m_area);
    m_area->viewport()->installEventFilter(this);
    qApp->installEventFilter(this);
    connect(m_area, &QMdiArea::subWindowActivated, this, &MDIForm::frameActivated);
}

MDIForm::~MDIForm() {
    disconnect(m_area, nullptr, this, nullptr); // it tells of its children up to its own end
    if (theMainWindow == this) theMainWindow = nullptr;
}

MDIForm *MDIForm::current() {
    return theMainWindow != nullptr && !theMainWindow->isUnloaded() ? theMainWindow : nullptr;
}

QSize MDIForm::nominalFrame() const {
    return PlatformStyle::frameSize();
}

void MDIForm::showFrame() {
    show();
}

void MDIForm::focusFrame() {
    raise();
    activateWindow();
    if (activeChild() == nullptr) becomeActive();
}

QList<Form *> MDIForm::forms() const {
    QList<Form *> result;
    for (QMdiSubWindow *frame : m_area->subWindowList(QMdiArea::CreationOrder))
        if (Form *form = static_cast<ChildFrame *>(frame)->form()) result.append(form);
    return result;
}

QList<Form *> MDIForm::visibleChildren() const {
    QList<Form *> result = forms();
    result.removeIf([](const Form *form) { return !form->Visible() || form->isUnloaded(); });
    return result;
}

Form *MDIForm::activeChild() const {
    const auto *frame = static_cast<ChildFrame *>(m_area->currentSubWindow());
    return frame != nullptr && !frame->isHidden() ? frame->form() : nullptr;
}

void MDIForm::activateNextChild(bool backward) {
    const QList<Form *> shown = visibleChildren();
    const bool allMinimised = std::all_of(shown.begin(), shown.end(), isMinimised);
    const qsizetype count = shown.size();
    qsizetype at = shown.indexOf(activeChild());
    if (at < 0) at = backward ? 0 : count - 1;
    for (qsizetype step = 1; step <= count; ++step) {
        Form *next = shown.at((at + (backward ? count - step : step)) % count);
        if (isMinimised(next) && !allMinimised) continue;
        next->bringUp();
        return;
    }
}

void MDIForm::setBackColor(int colour) {
    m_backColor = colour;
    m_area->setBackground(toQColor(colour));
}

void MDIForm::setWindowList(MenuEntry *menu) {
    m_windowList = menu;
    childChanged();
}

void MDIForm::addChild(ChildFrame *frame) {
    m_area->addSubWindow(frame);
}

void MDIForm::removeChild(ChildFrame *frame) {
    m_area->removeSubWindow(frame);
    childChanged();
}

void MDIForm::activateBehind(const ChildFrame *leaving) {
    if (m_area->currentSubWindow() != leaving) return;
    ChildFrame *next = nullptr;
    const QList<QMdiSubWindow *> stack = m_area->subWindowList(QMdiArea::ActivationHistoryOrder);
    for (auto frame = stack.crbegin(); frame != stack.crend(); ++frame) {
        if (*frame == leaving || (*frame)->isHidden()) continue;
        const bool better = next == nullptr || (next->isMinimized() && !(*frame)->isMinimized());
        if (better) next = static_cast<ChildFrame *>(*frame);
    }
    // Where all are minimised the last one stays the active one.
    if (next == nullptr || (next->isMinimized() && leaving->isMinimized())) return;
    m_area->setActiveSubWindow(next);
    const bool handsOn = leaving->isMaximized() && !next->isMinimized();
    if (handsOn && next->windowFlags().testFlag(Qt::WindowMaximizeButtonHint)) next->showMaximized();
}

/// The title, the boxes in the menu bar and what the commands act on are then those of one child.
void MDIForm::takeMaximisedStateOver(ChildFrame &active) {
    // A frame that changes its state is hidden for a moment, and the focus then wakes any other.
    const QScopedValueRollback handingOver(m_handingOver, true);
    bool takesOver = false;
    for (QMdiSubWindow *frame : m_area->subWindowList()) {
        if (frame == &active || frame->isHidden() || !frame->isMaximized()) continue;
        frame->setWindowState(frame->windowState() & ~Qt::WindowMaximized);
        takesOver = true;
    }
    if (!takesOver) return;
    if (active.windowFlags().testFlag(Qt::WindowMaximizeButtonHint) && !active.isMinimized())
        active.showMaximized();
    else
        active.raise(); // above the one that was restored
    m_area->setActiveSubWindow(&active);
}

void MDIForm::frameActivated(QMdiSubWindow *frame) {
    // Null says that the whole main window is no longer the active one: its active child stays what it was.
    if (frame == nullptr || m_handingOver) return;
    auto &active = *static_cast<ChildFrame *>(frame);
    takeMaximisedStateOver(active);
    if (Form *form = active.form()) form->becomeActive();
    childChanged();
}

void MDIForm::childChanged() {
    if (!m_windowList) return;
    qDeleteAll(m_windowListActions);
    m_windowListActions.clear();
    const QList<Form *> shown = visibleChildren();
    if (shown.isEmpty()) return;
    QMenu *menu = m_windowList->SubMenu();
    m_windowListActions.append(menu->addSeparator());
    int number = 0;
    for (Form *form : shown) {
        ++number;
        const QString caption = form->Caption().replace(QLatin1Char('&'), QLatin1String("&&"));
        const QString digit = number < 10 ? QStringLiteral("&%1").arg(number) : QString::number(number);
        QAction *action = menu->addAction(digit + QLatin1Char(' ') + caption);
        action->setObjectName(QStringLiteral("%1List(%2)").arg(m_windowList->objectName()).arg(number));
        action->setCheckable(true);
        action->setChecked(form == activeChild());
        // Later, since taking the focus makes this list anew.
        connect(
            action, &QAction::triggered, form, [form] { form->bringUp(); }, Qt::QueuedConnection);
        m_windowListActions.append(action);
    }
}

bool MDIForm::queryDependents() {
    for (Form *form : forms())
        if (form->isLoaded() && !form->queryUnload(vbFormMDIForm)) return false;
    return true;
}

bool MDIForm::unloadDependents() {
    for (FormBase &form : Forms()) {
        Form *child = form.as<Form>();
        if (child != nullptr && child->isMdiChild() && child->isLoaded() && !child->finishUnload())
            return false;
    }
    return true;
}

void MDIForm::closeEvent(QCloseEvent *event) {
    event->ignore();
    Unload(vbFormControlMenu);
}

void MDIForm::showEvent(QShowEvent *event) {
    QMainWindow::showEvent(event);
    shown();
}

void MDIForm::resizeEvent(QResizeEvent *event) {
    QMainWindow::resizeEvent(event);
    sizeChanged();
}

void MDIForm::changeEvent(QEvent *event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_area != nullptr) setBackColor(m_backColor);
}

bool MDIForm::event(QEvent *event) {
    const bool handled = QMainWindow::event(event);
    if (event->type() == QEvent::WindowActivate) {
        activatedByDesktop();
        if (Form *child = activeChild())
            child->becomeActive();
        else
            becomeActive();
    }
    return handled;
}

bool MDIForm::eventFilter(QObject *watched, QEvent *event) {
    if (watched == m_area->viewport() && event->type() == QEvent::MouseButtonDblClick) {
        Q_EMIT DblClick();
        return true;
    }
    if (event->type() == QEvent::ShortcutOverride && isMenuKey(*static_cast<QKeyEvent *>(event))) {
        event->ignore();
        return true;
    }
    if (event->type() == QEvent::KeyPress && watched->isWidgetType() &&
        static_cast<QWidget *>(watched)->window() == this && childKey(*static_cast<QKeyEvent *>(event)))
        return true;
    return QMainWindow::eventFilter(watched, event);
}

/// A text box claims keys for itself that are a command of the menu: on X11 Ctrl+E would go to the end of its
/// text.
bool MDIForm::isMenuKey(const QKeyEvent &event) const {
    if (!(event.modifiers() & Qt::ControlModifier)) return false; // as with every letter that is typed
    const QKeySequence keys(event.keyCombination());
    const QList<MenuEntry *> entries = findChildren<MenuEntry *>();
    return std::any_of(entries.begin(), entries.end(), [&](const MenuEntry *entry) {
        return entry->isEnabled() && entry->shortcut() == keys;
    });
}

/// Ctrl with Tab or F6 walks the children, with F4 closes the one in front. QMdiArea's own Ctrl+Tab would go
/// back and forth between the two windows used last.
bool MDIForm::childKey(const QKeyEvent &event) {
    if (!event.modifiers().testFlag(Qt::ControlModifier)) return false;
    switch (event.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_F6:
        activateNextChild(event.key() == Qt::Key_Backtab || event.modifiers().testFlag(Qt::ShiftModifier));
        return true;
    case Qt::Key_F4:
        if (Form *child = activeChild()) child->Unload(vbFormControlMenu);
        return true;
    default:
        return false;
    }
}
