// A word with each character typed into a box, before the box has it.
#pragma once

#include <functional>

class QKeyEvent;
class QWidget;

/// The key codes of characters that are no text.
enum KeyAscii { vbKeyBack = 8, vbKeyReturn = 13, vbKeyEscape = 27 };

/// `handler` gets each typed character, and Backspace, Enter and Escape, as a number that it may change; 0
/// refuses the key. It sees characters that come from an input method or a dead key as well. A paste, and any
/// key with Ctrl or Alt, does not come here.
void onKeyPress(QWidget *box, std::function<void(int &keyAscii)> handler);

/// Every key pressed, before onKeyPress of the same box; True keeps it from the box.
void onKeyDown(QWidget *box, std::function<bool(QKeyEvent &event)> handler);
