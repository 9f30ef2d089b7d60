// The message box, with its classic numbers.
#pragma once

#include <functional>

#include <QString>

enum MsgBoxStyle {
    vbOKOnly = 0,
    vbOKCancel = 1,
    vbAbortRetryIgnore = 2,
    vbYesNoCancel = 3,
    vbYesNo = 4,
    vbRetryCancel = 5,
    vbCritical = 16,
    vbQuestion = 32,
    vbExclamation = 48,
    vbInformation = 64,
    vbDefaultButton2 = 256,
    vbDefaultButton3 = 512
};

enum MsgBoxResult { vbOK = 1, vbCancel = 2, vbAbort = 3, vbRetry = 4, vbIgnore = 5, vbYes = 6, vbNo = 7 };

/// Shows `text`, lines ended by CR LF, under `title` (the program's title where it is empty) and returns the
/// button pressed. `style` is a sum of buttons, icon and default button. With `help` the box has a Help
/// button, which calls it and leaves the box standing.
int MsgBox(const QString &text, int style = vbOKOnly, const QString &title = {},
           const std::function<void()> &help = {});
