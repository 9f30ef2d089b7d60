// A window of the program: a child of the main window, or a window of its own.
#pragma once

#include "platform/forms/form_base.h"

class ChildFrame;
class QAbstractButton;
class QEventLoop;

/// Its controls are made in the constructor and placed with `place()`; Form_Load follows at the first touch.
/// Operations that are called by name are marked Q_INVOKABLE, values read by name are Q_PROPERTYs.
class Form : public QWidget, public FormBase {
    Q_OBJECT

public:
    /// Beside: a window of its own above the main window, for as long as the user wants it.
    enum class Kind { Window, MdiChild, Beside };

    /// A child needs a main window: without one it raises 366.
    explicit Form(const QString &name, Kind kind = Kind::Window);
    ~Form() override;

    QWidget *asWidget() override { return this; }
    using FormBase::asWidget;
    using FormBase::setWindowState;
    using QWidget::setWindowState;

    bool isMdiChild() const { return m_kind == Kind::MdiChild; }
    bool isBeside() const { return m_kind == Kind::Beside; }

    /// Shows a form of its own above `owner` (without one, above the form in front) and returns when it is
    /// hidden or unloaded; the other forms are disabled meanwhile. It is moved and made smaller where it
    /// would not fit on the screen. Raises 400 when it already shows.
    void ShowModal(QWidget *owner = nullptr);

    /// SetFocus, and out of the minimised state.
    void bringUp();

    /// Whether the user can change its size; sizable at first.
    void setSizable(bool sizable);
    void setMinMaxButtons(bool minimise, bool maximise);
    /// A window without a frame, as a start window is.
    void setBorderless();
    void setIcon(const QIcon &icon);

    /// The buttons that Enter and Escape press when the control in use has no use for the key. Without a
    /// cancel button Escape closes a modal form.
    void setDefaultButton(QAbstractButton *button);
    void setCancelButton(QAbstractButton *button);

protected:
    QWidget *frame() override;
    using FormBase::frame;
    QSize nominalFrame() const override;
    void showFrame() override;
    void focusFrame() override;
    void leaveScreen() override;

    void closeEvent(QCloseEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool event(QEvent *event) override;

private:
    void applyWindowFlags();
    void standAbove(QWidget *owner);
    void endModal();

    Kind m_kind;
    QPointer<ChildFrame> m_frame;
    QPointer<QAbstractButton> m_defaultButton;
    QPointer<QAbstractButton> m_cancelButton;
    QEventLoop *m_modalLoop = nullptr;
    bool m_minimiseButton = true;
    bool m_maximiseButton = true;
    bool m_borderless = false;
};
