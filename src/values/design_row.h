// One row of design values, with what keeps it from being whole.
#pragma once

#include <QStringList>

#include "design/interpolation.h"

class SourceArray;

struct DesignRow {
    /// From column 1 to the last one that could be computed.
    QStringList texts;
    /// Why there are no more; empty where all are there.
    QString failure;

    /// Of an array without columns it is empty.
    static DesignRow of(const SourceArray &source, const Interpolation::Temperature &temperature,
                        bool bDecimalPoint);
};
