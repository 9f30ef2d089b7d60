// Rows that are handed over one by one, past the memory.
#pragma once

#include <functional>
#include <optional>
#include <string_view>

#include <QVector>

#include "platform/dao/table_columns.h"

/// One row of which some columns are wanted. Positions count in these.
class RowCells {
public:
    RowCells(const TableColumns &rows, const QVector<int> &columns, int row)
        : m_rows(rows)
        , m_columns(columns)
        , m_row(row) {}

    qsizetype size() const { return m_columns.size(); }
    QVariant operator[](qsizetype position) const { return m_rows.cell(m_row, m_columns[position]); }
    /// The cell in UTF-8, while its row is handed over. Nothing where it is Null, or of a column without
    /// texts.
    std::optional<std::string_view> text(qsizetype position) const {
        const int column = m_columns[position];
        if (!isTextType(m_rows.fields()[column].type) || m_rows.isNull(m_row, column)) return {};
        return m_rows.text(m_row, column);
    }

private:
    const TableColumns &m_rows;
    const QVector<int> &m_columns;
    int m_row;
};

/// Called for each row in the order of the file.
using RowSink = std::function<void(const RowCells &cells)>;
