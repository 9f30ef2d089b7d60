// What design values are computed from: one table's cells as texts.
#pragma once

#include <vector>

#include <QStringList>

/// Rows 1 to rowCount(), columns 0 to lastColumn(). Column 0 is the temperature in °C, ascending; the others
/// are values as they stand in the database. An index outside the bounds raises 9.
class SourceArray {
public:
    /// Empty texts; `lastColumn` is -1 for an array without columns.
    explicit SourceArray(int rowCount = 0, int lastColumn = -1);

    int rowCount() const { return m_rowCount; }
    int lastColumn() const { return static_cast<int>(m_columns.size()) - 1; }
    const QString &text(int row, int column) const;
    void setText(int row, int column, const QString &text);
    /// Behind the last column; `texts` has rowCount() elements, from row 1.
    void appendColumn(const QStringList &texts);

private:
    void check(int row, int column) const;

    int m_rowCount = 0;
    std::vector<QStringList> m_columns;
};
