// The box for the design temperature: leads keys and mouse of a text box to the rules of its input.
#pragma once

#include <functional>

#include <QObject>

#include "design/temperature_input.h"

class QKeyEvent;
class QLineEdit;

class TemperatureBox : public QObject {
    Q_OBJECT
public:
    /// `box` must outlive it.
    explicit TemperatureBox(QLineEdit &box, QObject *parent = nullptr);

    /// Empty, although no key did it; the input's flags stay as they are.
    void Clear();
    void setDecimalTyped(bool typed) { m_input.bDecimalTyped = typed; }

Q_SIGNALS:
    /// The user acts on this box, so the others follow it from now on.
    void becameSource();
    void enterPressed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool keyDown(QKeyEvent &event);
    void readBox();
    void writeBox();
    void editedByMouseOrClipboard();

    QLineEdit &m_box;
    TemperatureInput m_input;
};
