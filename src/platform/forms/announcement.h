// What a screen reader says at once, wherever the keyboard is.
#pragma once

class QString;
class QWidget;

/// For what changes without a move of the user's. Empty says nothing.
void announce(QWidget &place, const QString &text);
