// A long work in the middle of which its window goes on painting, and which the user can stop.
#pragma once

#include <memory>
#include <vector>

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>

class QAbstractButton;
class QEvent;
class QWidget;

/// While it lives nothing that the user does reaches the program, beside the button that stops the work, so
/// that the work cannot be called from its own middle. Keys typed into its window, and the coming to the
/// front of other windows, are made up for at the end. Esc, and closing the window, stop it as well; the
/// window is then closed at the end.
class InterruptibleWork : public QObject {
    Q_OBJECT
public:
    InterruptibleWork(QWidget &window, QAbstractButton &stop);
    ~InterruptibleWork() override;

    /// Lets the windows paint, if that was not just done. False once the work is to be stopped.
    bool goOn();

protected:
    bool eventFilter(QObject *receiver, QEvent *event) override;

private:
    bool isOfWindow(const QObject *receiver) const;
    bool keyHeld(QObject *receiver, QEvent *event);
    bool closeHeld(QObject *receiver, QEvent *event);
    void keep(QObject *receiver, const QEvent &event);

    QWidget &m_window;
    QAbstractButton &m_stop;
    QElapsedTimer m_sincePaint;
    std::vector<std::pair<QPointer<QObject>, std::unique_ptr<QEvent>>> m_kept;
    bool m_stopped = false;
    bool m_closing = false;
};
