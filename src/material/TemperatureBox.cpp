#include "material/TemperatureBox.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>

#include "platform/forms/key_hooks.h"

TemperatureBox::TemperatureBox(QLineEdit &box, QObject *parent)
    : QObject(parent)
    , m_box(box) {
    m_input.textChanged = [this] { writeBox(); };
    m_input.becameSource = [this] { Q_EMIT becameSource(); };
    onKeyDown(&m_box, [this](QKeyEvent &event) { return keyDown(event); });
    // The rules write the text themselves, so no key is left for the box.
    onKeyPress(&m_box, [this](int &keyAscii) {
        readBox();
        m_input.keyPress(QChar(keyAscii));
        keyAscii = 0;
    });
    connect(&m_box, &QLineEdit::textEdited, this, &TemperatureBox::editedByMouseOrClipboard);
    m_box.installEventFilter(this);
}

void TemperatureBox::Clear() {
    m_box.clear();
}

bool TemperatureBox::keyDown(QKeyEvent &event) {
    const bool isBackspace = event.key() == Qt::Key_Backspace;
    const bool isDelete = event.key() == Qt::Key_Delete;
    if (isBackspace || isDelete) {
        if (event.modifiers() & Qt::ControlModifier) return true; // a whole word is no rule of this box
        if (isDelete && (event.modifiers() & Qt::ShiftModifier)) return false; // cuts
        readBox();
        if (isDelete)
            m_input.deleteDown();
        else
            m_input.backspaceDown();
        return isDelete;
    }
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) Q_EMIT enterPressed();
    return false;
}

bool TemperatureBox::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::MouseButtonRelease) {
        const bool left = static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton;
        if (left && m_box.hasSelectedText()) m_box.selectAll();
    } else if (event->type() == QEvent::MouseButtonPress) {
        // What the menu of that button pastes goes to the other windows too.
        if (static_cast<QMouseEvent *>(event)->button() == Qt::RightButton) Q_EMIT becameSource();
    }
    return QObject::eventFilter(watched, event);
}

void TemperatureBox::readBox() {
    m_input.text = m_box.text();
    m_input.selectionLength = m_box.selectionLength();
    m_input.caret = m_box.hasSelectedText() ? m_box.selectionStart() : m_box.cursorPosition();
}

void TemperatureBox::writeBox() {
    m_box.setText(m_input.text);
    // Whoever was told of the change may have emptied the box.
    m_input.text = m_box.text();
    m_box.setCursorPosition(m_input.caret);
}

/// Pasted, cut or undone: the keys for these are no typed characters.
void TemperatureBox::editedByMouseOrClipboard() {
    readBox();
    m_input.textReplaced();
    Q_EMIT becameSource();
    if (m_input.text != m_box.text()) writeBox();
}
