// The grid that an array feeds, for the tables whose columns are made at run time.
#pragma once

#include <memory>

#include <QString>

class TDBGrid;
class XArrayDB;

class UnboundGrid {
public:
    explicit UnboundGrid(TDBGrid &tdbTable);

    TDBGrid &grid() { return m_grid; }
    /// Behind the grid since the last Show().
    std::shared_ptr<XArrayDB> mTableArray;

    /// One column without a heading, and one empty cell.
    void ClearUnboundGrid();
    void AddColumn(const QString &heading, double width);
    /// Shows the array as it is now.
    void Show();

private:
    TDBGrid &m_grid;
};
