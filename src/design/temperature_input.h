// The keys of the box for the design temperature: at most six characters, one decimal digit, a comma.
#pragma once

#include <functional>

#include <QString>

/// Holds the box's state while a key is dealt with. The window writes text, caret and selection here before
/// it passes a key, and takes them back in textChanged.
class TemperatureInput {
public:
    QString text;
    /// From 0; with a selection, where it begins.
    int caret = 0;
    int selectionLength = 0;
    /// The flags follow the keys and the clipboard, not the text: a text written by code leaves them as they
    /// are.
    bool bDecimalTyped = false;
    int iDecimalDigits = 0;

    /// Called after each change of the text; one key may change it twice. A handler may set the members anew.
    std::function<void()> textChanged;
    /// Called when this box becomes the one that the others follow, before the key's own change of the text.
    std::function<void()> becameSource;

    /// Backspace (U+0008) or a typed character, with the flags' and the text's changes. False: refused,
    /// although a selection is gone even then.
    bool keyPress(QChar key);

    /// To be passed before keyPress of a Backspace.
    void backspaceDown();
    /// The whole of the Delete key, which types nothing.
    void deleteDown();
    /// To be called when `text` was pasted or cut: gives it the one decimal sign and no blanks around it, and
    /// takes the flags from it.
    void textReplaced();

private:
    bool dropSelection();
    bool accepts(QChar &key);
    bool acceptsDigit();
    bool acceptsDecimalSign();
    void prepareDeletion(qsizetype place);
    void forgetDecimals();
    void erase(qsizetype from, qsizetype length);
    void changed();
};
