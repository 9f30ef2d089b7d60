#include "design/source_array.h"

#include "platform/runtime/conversions.h"
#include "platform/runtime/runtime_error.h"
#include "platform/runtime/x_array_db.h"

SourceArray::SourceArray(int rowCount, int lastColumn)
    : m_rowCount(rowCount)
    , m_columns(static_cast<std::size_t>(lastColumn + 1), QStringList(rowCount)) {}

SourceArray::SourceArray(const XArrayDB &cells)
    : SourceArray(cells.UpperBound(1), cells.UpperBound(2)) {
    for (int row = 1; row <= m_rowCount; ++row) {
        for (int column = 0; column <= lastColumn(); ++column) {
            const QVariant cell = cells.Get(row, column);
            if (!IsNull(cell)) setText(row, column, CStr(cell));
        }
    }
}

const QString &SourceArray::text(int row, int column) const {
    check(row, column);
    return m_columns[static_cast<std::size_t>(column)][row - 1];
}

void SourceArray::setText(int row, int column, const QString &text) {
    check(row, column);
    m_columns[static_cast<std::size_t>(column)][row - 1] = text;
}

void SourceArray::check(int row, int column) const {
    if (row < 1 || row > m_rowCount || column < 0 || column > lastColumn()) throw RuntimeError(9);
}
