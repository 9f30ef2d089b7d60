// Key strokes sent by the program to itself.
#pragma once

#include <QString>

/// Puts the keys in the queue of the control that has the focus; they arrive when the program is back in its
/// event loop. `^`, `+` and `%` before a key hold Ctrl, Shift and Alt; `{TAB}`, `{ENTER}`, `{ESC}` and their
/// like name a key. Raises 5 for a name that is none.
void SendKeys(const QString &keys);
