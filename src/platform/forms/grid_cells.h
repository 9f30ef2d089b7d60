// Rows of a grid that are made when they are looked at.
#pragma once

#include <functional>

#include <QColor>
#include <QString>

/// How a cell stands out, and what is told of it.
struct GridCellMark {
    bool bold = false;
    /// In the place of the row's colour; invalid without one.
    QColor BackColor = {};
    /// A sentence for the tip and for a screen reader; empty without one.
    QString tip = {};
};

/// Rows and columns count from 0.
struct GridCells {
    int rows = 0;
    std::function<QString(int row, int column)> text;
    std::function<GridCellMark(int row, int column)> mark = {};
    /// Rows are as tall as their text; else all have one line.
    bool rowsGrow = false;
};
