// The thickness bands of a table.
#pragma once

#include <QStringList>
#include <QVector>

struct ThicknessBands {
    /// Upper limits in mm, the first band's at index 1; empty without bands.
    QVector<qint16> limits;

    bool isEmpty() const { return limits.isEmpty(); }
    int count() const { return isEmpty() ? 0 : static_cast<int>(limits.size()) - 1; }
    /// From 1; above the limit before it and up to its own. 0 where no band holds.
    int of(double thickness) const;
    /// As the design values have it; empty without bands.
    QString heading(int band) const;
    /// Why no band holds.
    QString missing(double thickness) const;
};
