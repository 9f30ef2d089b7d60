#include "platform/forms/form_base.h"

#include <QGuiApplication>

#include "platform/forms/event_procedure.h"
#include "platform/forms/forms.h"
#include "platform/forms/platform_style.h"
#include "platform/forms/screen.h"
#include "platform/runtime/twips.h"

namespace {
FormBase *activeForm = nullptr;
}

FormBase *Forms::active() {
    return activeForm;
}

FormBase::~FormBase() {
    setMousePointer(vbDefault);
    if (activeForm == this) activeForm = nullptr;
    Forms::remove(*this);
}

int FormBase::Left() const {
    return toTwips(frame()->x());
}

int FormBase::Top() const {
    return toTwips(frame()->y());
}

int FormBase::Width() const {
    return toTwips(frame()->width() + nominalFrame().width());
}

int FormBase::Height() const {
    return toTwips(frame()->height() + nominalFrame().height());
}

void FormBase::setLeft(int twips) {
    if (WindowState() == vbNormal) frame()->move(toPixels(twips), frame()->y());
}

void FormBase::setTop(int twips) {
    if (WindowState() == vbNormal) frame()->move(frame()->x(), toPixels(twips));
}

void FormBase::setWidth(int twips) {
    setPixelSize({toPixels(twips) - nominalFrame().width(), frame()->height()});
}

void FormBase::setHeight(int twips) {
    setPixelSize({frame()->width(), toPixels(twips) - nominalFrame().height()});
}

void FormBase::Move(int left, int top, int width, int height) {
    setLeft(left);
    setTop(top);
    setPixelSize(QSize(toPixels(width), toPixels(height)) - nominalFrame());
}

int FormBase::ScaleWidth() const {
    return toTwips(asWidget()->width());
}

int FormBase::ScaleHeight() const {
    return toTwips(asWidget()->height());
}

void FormBase::setScaleSize(int width, int height) {
    const QSize childFrame = frame() == asWidget() ? QSize(0, 0) : PlatformStyle::frameSize();
    setPixelSize(QSize(toPixels(width), toPixels(height)) + childFrame);
}

void FormBase::setPixelSize(const QSize &size) {
    if (WindowState() != vbNormal) return;
    QWidget *outer = frame();
    const bool fixed = outer->minimumSize() == outer->maximumSize();
    if (fixed)
        outer->setFixedSize(size);
    else
        outer->resize(size);
}

FormWindowState FormBase::WindowState() const {
    if (frame()->isMinimized()) return vbMinimized;
    return frame()->isMaximized() ? vbMaximized : vbNormal;
}

void FormBase::setWindowState(FormWindowState state) {
    Qt::WindowStates states = frame()->windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized);
    if (state == vbMinimized) states |= Qt::WindowMinimized;
    if (state == vbMaximized) states |= Qt::WindowMaximized;
    frame()->setWindowState(states);
}

bool FormBase::Visible() const {
    return !frame()->isHidden();
}

void FormBase::setMousePointer(int shape) {
    if ((shape == vbHourglass) == (m_mousePointer == vbHourglass)) return;
    m_mousePointer = shape;
    if (shape == vbHourglass)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QGuiApplication::restoreOverrideCursor();
}

void FormBase::Load() {
    if (m_phase != Phase::New) return;
    m_phase = Phase::Loading;
    Forms::add(*this);
    EventProcedure::run([this] { Form_Load(); });
    if (m_phase == Phase::Loading) m_phase = Phase::Loaded;
}

void FormBase::Show() {
    Load();
    if (!isLoaded()) return; // it unloaded itself in its Form_Load
    showFrame();
    focusFrame();
}

void FormBase::Hide() {
    frame()->hide();
    if (activeForm == this) activeForm = nullptr;
}

void FormBase::SetFocus() {
    if (isLoaded() && Visible()) focusFrame();
}

bool FormBase::Unload(UnloadMode mode) {
    if (m_phase == Phase::New) Load();
    if (!isLoaded()) return isUnloaded();
    m_phase = Phase::Unloading;
    const bool gone = queryUnload(mode) && queryDependents() && unloadDependents() && finishUnload();
    if (!gone) m_phase = Phase::Loaded;
    return gone;
}

bool FormBase::UnloadAtOnce() {
    QWidget *outer = frame();
    if (!Unload()) return false;
    QCoreApplication::sendPostedEvents(outer, QEvent::DeferredDelete);
    return true;
}

bool FormBase::queryUnload(UnloadMode mode) {
    bool cancel = false;
    EventProcedure::run([&] { Form_QueryUnload(cancel, mode); });
    return !cancel;
}

bool FormBase::finishUnload() {
    m_phase = Phase::Unloading;
    bool cancel = false;
    EventProcedure::run([&] { Form_Unload(cancel); });
    if (cancel) {
        m_phase = Phase::Loaded;
        return false;
    }
    m_phase = Phase::Unloaded;
    setMousePointer(vbDefault);
    Hide();
    leaveScreen();
    Forms::remove(*this);
    return true;
}

void FormBase::leaveScreen() {
    asWidget()->deleteLater();
}

void FormBase::sizeChanged() {
    if (!isLoaded() || !m_everShown || !frame()->isVisible()) {
        m_resizePending = true;
        return;
    }
    m_resizePending = false;
    EventProcedure::run([this] { Form_Resize(); });
}

void FormBase::shown() {
    if (!isLoaded() || (m_everShown && !m_resizePending)) return;
    m_everShown = true;
    m_resizePending = false;
    EventProcedure::run([this] { Form_Resize(); });
}

void FormBase::activatedByDesktop() {
    if (m_fitted) return;
    m_fitted = true;
    Screen::fit(*asWidget());
}

void FormBase::becomeActive() {
    if (!isLoaded() || activeForm == this || !frame()->isVisible()) return;
    activeForm = this;
    shown(); // the frame may be activated before the form inside it hears that it shows
    EventProcedure::run([this] { Form_Activate(); });
}
