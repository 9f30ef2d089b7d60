// The grid that an array feeds, for the tables whose columns are made at run time.
#pragma once

#include <memory>

class TDBGrid;
class XArrayDB;
struct LoadedTable;

class UnboundGrid {
public:
    explicit UnboundGrid(TDBGrid &tdbTable);

    /// Behind the grid since the last Show().
    std::shared_ptr<XArrayDB> mTableArray;

    /// One column without a heading, and one empty cell.
    void ClearUnboundGrid();
    /// Into a cleared grid.
    void Show(const LoadedTable &table);

private:
    void showArray();

    TDBGrid &m_grid;
};
