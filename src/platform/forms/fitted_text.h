// Texts in boxes that may be too small for them: what does not fit is marked, so that a text cut off is never
// taken for a shorter one, or for none.
#pragma once

#include <QFont>
#include <QRect>
#include <QStringList>

class QPainter;

/// The lines of a text that a box has room for.
struct FittedText {
    /// Empty where not even an ellipsis has room: then drawCutMark() is to be painted.
    QStringList lines;
    /// Something of the text is missing. The last line, or each line that was too long, ends in an ellipsis.
    bool cut = false;
    /// What the lines take.
    QSize size;

    bool isBareMark() const { return cut && lines.isEmpty(); }
};

/// `room` in pixels. LF and line separators part lines; with `wrap`, words that do not fit go on in a further
/// one.
FittedText fitText(const QString &text, const QFont &font, QSize room, bool wrap);

/// Three dots in the middle of `rect`, as large as it allows.
void drawCutMark(QPainter &painter, const QRect &rect, const QColor &colour);
