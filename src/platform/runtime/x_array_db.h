// A two-dimensional array of cells with any lower bounds.
#pragma once

#include <vector>

#include <QVariant>

/// Feeds unbound grids. An index outside the bounds raises 9.
class XArrayDB {
public:
    /// Makes the array anew; every cell is Null. An upper bound below its lower one gives an empty array.
    void ReDim(int lowerRow, int upperRow, int lowerColumn, int upperColumn);
    void Clear();

    void Set(int row, int column, const QVariant &value);
    QVariant Get(int row, int column) const;

    /// `dimension` is 1 for rows, 2 for columns. An array never dimensioned has the bounds 0 to -1.
    int LowerBound(int dimension) const;
    int UpperBound(int dimension) const;
    /// Number of rows or columns.
    int Count(int dimension) const;

private:
    std::size_t at(int row, int column) const;

    int m_lower[2] = {0, 0};
    int m_upper[2] = {-1, -1};
    std::vector<QVariant> m_cells;
};
