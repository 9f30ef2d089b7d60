// What a screen reader is told that the library leaves out or says wrong: news, and where the keyboard is.
#pragma once

class QString;
class QWidget;

/// To be said at once, wherever the keyboard is, for what changes without a move of the user's. Empty says
/// nothing.
void announce(QWidget &place, const QString &text);

/// Tells once more where the keyboard is, when the event at hand is done: of a table the current cell.
void tellFocusLater(QWidget &place);
