// What the graph of two columns of an unbound table is chosen from and drawn from.
#pragma once

#include <QVector>

#include "platform/runtime/x_array_db.h"

struct UnboundColumns {
    /// One element more than there are columns.
    QVector<qint16> mColIDs;
    /// The columns of the graph, by their colID, and its points: rows from 1, column 0 the X values and
    /// column 1 the Y values.
    qint16 iChartColX = 0;
    qint16 iChartColY = 0;
    XArrayDB aChartXY;
};
