#include "platform/runtime/x_array_db.h"

#include <algorithm>

#include "platform/runtime/runtime_error.h"

namespace {

int dimensionIndex(int dimension) {
    if (dimension < 1 || dimension > 2) throw RuntimeError(9);
    return dimension - 1;
}

} // namespace

void XArrayDB::ReDim(int lowerRow, int upperRow, int lowerColumn, int upperColumn) {
    m_lower[0] = lowerRow;
    m_upper[0] = upperRow;
    m_lower[1] = lowerColumn;
    m_upper[1] = upperColumn;
    const auto rows = static_cast<std::size_t>(Count(1));
    const auto columns = static_cast<std::size_t>(Count(2));
    m_cells.assign(rows * columns, QVariant());
}

void XArrayDB::Clear() {
    *this = XArrayDB();
}

void XArrayDB::Set(int row, int column, const QVariant &value) {
    m_cells[at(row, column)] = value;
}

QVariant XArrayDB::Get(int row, int column) const {
    return m_cells[at(row, column)];
}

int XArrayDB::LowerBound(int dimension) const {
    return m_lower[dimensionIndex(dimension)];
}

int XArrayDB::UpperBound(int dimension) const {
    return m_upper[dimensionIndex(dimension)];
}

int XArrayDB::Count(int dimension) const {
    const int i = dimensionIndex(dimension);
    return std::max(0, m_upper[i] - m_lower[i] + 1);
}

std::size_t XArrayDB::at(int row, int column) const {
    if (row < m_lower[0] || row > m_upper[0] || column < m_lower[1] || column > m_upper[1])
        throw RuntimeError(9);
    return static_cast<std::size_t>(row - m_lower[0]) * static_cast<std::size_t>(Count(2)) +
           static_cast<std::size_t>(column - m_lower[1]);
}
