// How a grid's rows look: what the delegate paints from.
#pragma once

#include <QColor>

/// A row style without a colour takes the palette's.
struct GridRowStyle {
    QColor BackColor;
};

/// How the current row is marked, beside the arrow in its record selector.
enum class MarqueeStyle {
    Cell, ///< the current cell alone, and only while the grid has the keyboard
    Row   ///< the whole row, always
};

/// The first row is an odd row.
struct GridLook {
    GridRowStyle evenRow;
    GridRowStyle oddRow;
    bool alternating = false;
    MarqueeStyle marquee = MarqueeStyle::Cell;
};
