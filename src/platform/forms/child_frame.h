// The frame of a child window in the main window's work area.
#pragma once

#include <QMdiSubWindow>

class Form;
class QWindowStateChangeEvent;

/// Its close box asks the form, which alone decides.
class ChildFrame : public QMdiSubWindow {
    Q_OBJECT

public:
    explicit ChildFrame(Form &form);

    /// Null once the form has gone.
    Form *form() const;

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void stateChanged(QWindowStateChangeEvent *event);

    QPointer<QWidget> m_content;
    Form *m_form;
    /// Between two window states the frame is hidden for a moment, which is no leaving.
    bool m_changingState = false;
};
