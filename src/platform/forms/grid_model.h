// The cells of a grid: its columns over the rows of a recordset or of an array.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QAbstractTableModel>

#include "platform/forms/grid_column.h"

struct GridCells;
class Recordset;
class XArrayDB;

/// The lines of a caption, empty ones left out, joined by blanks.
QString onOneLine(const QString &caption);

/// Keeps no values: each is read from its source when the view asks for it.
class GridModel : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit GridModel(QObject *parent = nullptr);
    ~GridModel() override;

    /// Null shows no rows.
    void showRecordset(std::shared_ptr<Recordset> recordset);
    void showArray(std::shared_ptr<XArrayDB> array);
    void showCells(std::shared_ptr<const GridCells> cells);
    /// Rows are as tall as their text.
    bool rowsGrow() const;
    /// The array on show, with the bounds that it had when it was shown.
    bool shows(const XArrayDB &array) const;

    GridColumn &addColumn();
    void removeColumn(int index);
    GridColumn &column(int index) const { return *m_columns[static_cast<std::size_t>(index)]; }
    /// One column for each field of the recordset on show, in the place of all others.
    /// Raises 3343 where a column's field cannot be read, which is better told now than while painting.
    void checkReadable() const;
    void makeColumnsOfFields();

    /// In a grid whose captions are rows among the others: gives the row with the captions of a row.
    void setCaptionRows(std::function<int(int row)> finder) { m_captionRowOf = std::move(finder); }
    bool hasCaptionRows() const { return m_captionRowOf != nullptr; }
    int captionRowOf(int row) const { return m_captionRowOf(row); }

    /// For a screen reader; -1 where the rows have no order by a column.
    void setRowOrder(int column, Qt::SortOrder order);
    /// A heading as a screen reader says it, with the order of the rows.
    QString spokenHeading(int column) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

Q_SIGNALS:
    void columnChanged(int index);

private:
    void onColumnChanged(const GridColumn &column);
    QVariant value(int row, int column) const;
    QVariant marked(const QModelIndex &index, int role) const;
    QString spokenText(const QModelIndex &index) const;
    QString rowHeading(int row) const;
    void findFields();

    std::vector<std::unique_ptr<GridColumn>> m_columns;
    std::vector<int> m_fields; // of each column its field's position in the recordset, or -1
    std::shared_ptr<Recordset> m_recordset;
    std::shared_ptr<XArrayDB> m_array;
    std::shared_ptr<const GridCells> m_cells;
    std::function<int(int row)> m_captionRowOf;
    int m_orderColumn = -1;
    Qt::SortOrder m_order = Qt::AscendingOrder;
    int m_rows = 0;
    int m_firstArrayRow = 0;
    int m_firstArrayColumn = 0;
};
