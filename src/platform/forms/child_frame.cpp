#include "platform/forms/child_frame.h"

#include <QCloseEvent>
#include <QScopedValueRollback>
#include <QWindowStateChangeEvent>

#include "platform/forms/announcement.h"
#include "platform/forms/form.h"
#include "platform/forms/mdi_form.h"

ChildFrame::ChildFrame(Form &form)
    : m_content(&form)
    , m_form(&form) {
    setAttribute(Qt::WA_DeleteOnClose, false);
    setWidget(&form);
}

Form *ChildFrame::form() const {
    return m_content ? m_form : nullptr;
}

void ChildFrame::closeEvent(QCloseEvent *event) {
    event->ignore();
    if (Form *content = form()) content->Unload(vbFormControlMenu);
}

void ChildFrame::changeEvent(QEvent *event) {
    if (event->type() == QEvent::WindowStateChange) {
        stateChanged(static_cast<QWindowStateChangeEvent *>(event));
        return;
    }
    QMdiSubWindow::changeEvent(event);
    if (event->type() == QEvent::WindowTitleChange && MDIForm::current() != nullptr)
        MDIForm::current()->childChanged();
}

void ChildFrame::stateChanged(QWindowStateChangeEvent *event) {
    {
        const QScopedValueRollback changing(m_changingState, true);
        QMdiSubWindow::changeEvent(event);
    }
    // Every other change of state resizes the form inside, which hears of it by itself.
    if (isMinimized() == event->oldState().testFlag(Qt::WindowMinimized)) return;
    if (form() != nullptr) form()->sizeChanged();
    if (isMinimized() && MDIForm::current() != nullptr) MDIForm::current()->activateBehind(this);
}

void ChildFrame::focusInEvent(QFocusEvent *event) {
    QMdiSubWindow::focusInEvent(event);
    tellFocusLater(*this); // it passes the keyboard on, and is itself told of last
}

void ChildFrame::showEvent(QShowEvent *event) {
    QMdiSubWindow::showEvent(event);
    if (MDIForm::current() != nullptr) MDIForm::current()->childChanged();
}

void ChildFrame::hideEvent(QHideEvent *event) {
    QMdiSubWindow::hideEvent(event);
    if (m_changingState || MDIForm::current() == nullptr || !isHidden()) return;
    MDIForm::current()->activateBehind(this);
    MDIForm::current()->childChanged();
}
