#include "data/source_array.h"

#include "platform/runtime/runtime_error.h"

SourceArray::SourceArray(int rowCount, int lastColumn)
    : m_rowCount(rowCount)
    , m_columns(static_cast<std::size_t>(lastColumn + 1), QStringList(rowCount)) {}

const QString &SourceArray::text(int row, int column) const {
    check(row, column);
    return m_columns[static_cast<std::size_t>(column)][row - 1];
}

void SourceArray::setText(int row, int column, const QString &text) {
    check(row, column);
    m_columns[static_cast<std::size_t>(column)][row - 1] = text;
}

void SourceArray::appendColumn(const QStringList &texts) {
    if (texts.size() != m_rowCount) throw RuntimeError(9);
    m_columns.push_back(texts);
}

void SourceArray::check(int row, int column) const {
    if (row < 1 || row > m_rowCount || column < 0 || column > lastColumn()) throw RuntimeError(9);
}
