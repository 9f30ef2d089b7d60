#include "platform/forms/form.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QScopeGuard>
#include <QTimer>
#include <QWindow>
#include <QWindowStateChangeEvent>

#include "platform/forms/child_frame.h"
#include "platform/forms/forms.h"
#include "platform/forms/mdi_form.h"
#include "platform/forms/modal_seam.h"
#include "platform/forms/modality.h"
#include "platform/forms/platform_style.h"
#include "platform/forms/pointer_pause.h"
#include "platform/forms/screen.h"
#include "platform/runtime/runtime_error.h"

Form::Form(const QString &name, Kind kind)
    : m_kind(kind) {
    setObjectName(name);
    if (kind == Kind::MdiChild) {
        if (MDIForm::current() == nullptr)
            throw RuntimeError(366, QStringLiteral("No MDI form available to load"));
        m_frame = new ChildFrame(*this);
        MDIForm::current()->addChild(m_frame);
    }
    applyWindowFlags();
}

Form::~Form() {
    endModal();
}

QWidget *Form::frame() {
    if (m_frame) return m_frame;
    return this;
}

QSize Form::nominalFrame() const {
    return isMdiChild() || m_borderless ? QSize(0, 0) : PlatformStyle::frameSize();
}

void Form::applyWindowFlags() {
    Qt::WindowFlags flags = isMdiChild() ? Qt::SubWindow : Qt::Dialog;
    flags |= Qt::CustomizeWindowHint;
    if (m_borderless) {
        flags |= Qt::FramelessWindowHint;
    } else {
        flags |= Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
        if (m_minimiseButton) flags |= Qt::WindowMinimizeButtonHint;
        if (m_maximiseButton) flags |= Qt::WindowMaximizeButtonHint;
    }
    frame()->setWindowFlags(flags);
}

void Form::setSizable(bool sizable) {
    if (sizable) {
        frame()->setMinimumSize(0, 0);
        frame()->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    } else {
        frame()->setFixedSize(frame()->size());
    }
}

void Form::setMinMaxButtons(bool minimise, bool maximise) {
    m_minimiseButton = minimise;
    m_maximiseButton = maximise;
    applyWindowFlags();
}

void Form::setBorderless() {
    m_borderless = true;
    applyWindowFlags();
}

void Form::setIcon(const QIcon &icon) {
    setWindowIcon(icon);
    if (m_frame) m_frame->setWindowIcon(icon);
}

void Form::bringUp() {
    if (WindowState() == vbMinimized) setWindowState(vbNormal);
    SetFocus();
}

void Form::setDefaultButton(QAbstractButton *button) {
    m_defaultButton = button;
}

void Form::setCancelButton(QAbstractButton *button) {
    m_cancelButton = button;
}

void Form::showFrame() {
    if (isMdiChild() && MDIForm::current() != nullptr && !MDIForm::current()->Visible())
        MDIForm::current()->Show(); // a child cannot show without it
    if (isBeside() && MDIForm::current() != nullptr) {
        create();
        windowHandle()->setTransientParent(MDIForm::current()->windowHandle());
    }
    frame()->show();
}

void Form::focusFrame() {
    if (m_frame) {
        if (MDIForm::current() != nullptr) MDIForm::current()->m_area->setActiveSubWindow(m_frame);
    } else {
        raise();
        activateWindow();
    }
    becomeActive();
}

void Form::leaveScreen() {
    endModal();
    if (!m_frame) {
        FormBase::leaveScreen();
        return;
    }
    if (MDIForm::current() != nullptr) MDIForm::current()->removeChild(m_frame);
    m_frame->deleteLater(); // and this form inside it
}

void Form::ShowModal(QWidget *owner) {
    if (m_modalLoop != nullptr || (isLoaded() && Visible())) throw RuntimeError(400);
    Load();
    if (!isLoaded()) return;

    std::function<void(Form &)> drive;
    ModalSeam *seam = ModalSeam::active();
    if (seam != nullptr) {
        ModalSeam::Request request;
        request.kind = ModalSeam::Kind::Window;
        request.text = Name();
        request.title = Caption();
        drive = seam->takeDrive(request);
        if (!drive) return;
    }

    const QPointer<QWidget> below = owner != nullptr ? owner : Modality::front();
    standAbove(below);
    const PointerPause pause;
    QEventLoop loop;
    QPointer<Form> self(this);
    m_modalLoop = &loop;
    const auto loopEnds = qScopeGuard([&self] {
        if (self) self->m_modalLoop = nullptr;
    });
    showFrame();
    focusFrame();
    if (seam != nullptr && self && m_modalLoop != nullptr) {
        QTimer::singleShot(0, this, [this, self, seam, drive] {
            const auto mustBeClosed = qScopeGuard([&] {
                if (!self || m_modalLoop == nullptr) return;
                seam->unexpected(QStringLiteral("the modal window %1 was left open").arg(Name()));
                Hide();
            });
            drive(*this);
        });
    }
    if (self && m_modalLoop != nullptr) loop.exec(QEventLoop::DialogExec);
    // Of two modal windows that close in one go, some window managers leave the keyboard to the lower one.
    if (!below || QGuiApplication::applicationState() != Qt::ApplicationActive) return;
    QTimer::singleShot(0, below, [below] {
        const QWidget *modal = QApplication::activeModalWidget();
        if (below->isVisible() && (modal == nullptr || modal == below->window())) below->activateWindow();
    });
}

void Form::standAbove(QWidget *owner) {
    const bool stands = owner != nullptr && owner->isVisible() && owner->window() != this;
    setWindowModality(stands ? Qt::WindowModal : Qt::ApplicationModal);
    if (stands && !testAttribute(Qt::WA_Moved))
        move(owner->window()->frameGeometry().center() - rect().center());
    m_fitted = false;
    Screen::fit(*this);
    // No widget parent: an owner that goes must not take the form with it.
    create();
    windowHandle()->setTransientParent(stands ? owner->window()->windowHandle() : nullptr);
}

void Form::endModal() {
    if (m_modalLoop == nullptr) return;
    m_modalLoop->quit();
    m_modalLoop = nullptr;
}

void Form::closeEvent(QCloseEvent *event) {
    event->ignore();
    Unload(vbFormControlMenu);
}

void Form::hideEvent(QHideEvent *event) {
    QWidget::hideEvent(event);
    if (isHidden()) endModal();
}

void Form::showEvent(QShowEvent *event) {
    QWidget::showEvent(event);
    shown();
}

void Form::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    sizeChanged();
}

void Form::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (isMdiChild() || event->type() != QEvent::WindowStateChange) return;
    const bool wasMinimized =
        static_cast<QWindowStateChangeEvent *>(event)->oldState().testFlag(Qt::WindowMinimized);
    if (isMinimized() != wasMinimized) sizeChanged();
}

void Form::keyPressEvent(QKeyEvent *event) {
    const auto press = [event](QAbstractButton *button) {
        if (button == nullptr || !button->isEnabled() || !button->isVisible()) return false;
        event->accept();
        button->click();
        return true;
    };
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        // Enter does not tick a box or choose an option
        auto *focused = qobject_cast<QAbstractButton *>(focusWidget());
        if (focused && focused->isCheckable()) focused = nullptr;
        if (press(focused) || press(m_defaultButton)) return;
    } else if (event->key() == Qt::Key_Escape) {
        if (press(m_cancelButton)) return;
        if (m_cancelButton == nullptr && m_modalLoop != nullptr) {
            close();
            return;
        }
    }
    QWidget::keyPressEvent(event);
}

bool Form::event(QEvent *event) {
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::WindowActivate && !isMdiChild()) {
        activatedByDesktop();
        becomeActive();
    }
    return handled;
}
