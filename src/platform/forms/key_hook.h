// The filter that the key hooks put before a box.
#pragma once

#include <functional>

#include <QObject>

class QInputMethodEvent;
class QKeyEvent;
class QWidget;

class KeyHook : public QObject {
    Q_OBJECT

public:
    /// The hook of that box, made at the first call.
    static KeyHook &of(QWidget *box);

    std::function<void(int &)> onPress;
    std::function<bool(QKeyEvent &)> onDown;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using QObject::QObject;
    bool keyPressed(QWidget &box, QKeyEvent &event);
    bool committed(QWidget &box, QInputMethodEvent &event);

    bool m_resending = false;
};
