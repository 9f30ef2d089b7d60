// A grid with a caption, headings and footers, bound to a data control or fed by an array.
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QFrame>
#include <QPointer>

#include "platform/forms/grid_column.h"
#include "platform/forms/grid_look.h"

struct GridCells;
class DataControl;
class GridDelegate;
class GridFooter;
class GridHeader;
class GridModel;
class GridView;
class QHelpEvent;
class QLabel;
class QModelIndex;
class QScrollBar;
class XArrayDB;

/// The part of a grid under the mouse, for cell tips.
enum class GridArea { Header, Cell, Footer };

/// Bound, it reads from the data control's recordset only the rows on the screen, and its current row and the
/// recordset's follow each other. Rows and columns count from 0.
class TDBGrid : public QFrame {
    Q_OBJECT
public:
    explicit TDBGrid(QWidget *parent = nullptr);
    ~TDBGrid() override;

    /// The bar over the headings; without a caption there is none.
    QString Caption() const;
    void setCaption(const QString &caption);

    void setDataSource(DataControl *source);
    DataControl *DataSource() const;
    /// Shown from the next Rebind() or Refresh() on. Grid column c shows the array's c-th column, whatever
    /// its lower bound.
    void setArray(std::shared_ptr<XArrayDB> array);

    /// Shown at once. The current row stays where `cells` has as many rows.
    void setCells(std::shared_ptr<const GridCells> cells);

    /// Reads bounds and values anew. The columns keep their layout.
    void Rebind();
    void Refresh();
    /// A bound grid that was never given a column shows every field of each new recordset; after this call it
    /// keeps the columns it has. Adding a column has the same effect.
    void HoldFields();

    /// Raises 9 for an index that no column has.
    GridColumn &Columns(int index);
    int ColumnCount() const;
    /// Behind the last column.
    GridColumn &AddColumn(const QString &caption = {});
    /// Raises 9 for an index that no column has.
    void RemoveColumn(int index);

    /// The text on the screen; empty for Null. Raises 9 outside the grid.
    QString CellText(int row, int column) const;
    int RowCount() const;
    /// The current row, -1 without one. Setting it raises 9 for a row that is not there.
    int Row() const;
    void setRow(int row);
    void ScrollToFirstColumn();

    /// The first row counts as odd.
    void setEvenRowStyle(const GridRowStyle &style);
    void setOddRowStyle(const GridRowStyle &style);
    /// The two styles show only while this is on. Off at first.
    bool AlternatingRowStyle() const { return m_look.alternating; }
    void setAlternatingRowStyle(bool on);
    void setMarqueeStyle(MarqueeStyle style);

    /// The narrow cells left of the rows, with an arrow at the current one; a click selects the row. On at
    /// first.
    void setRecordSelectors(bool shown);
    /// On at first.
    void setColumnHeaders(bool shown);
    /// Off at first.
    void setColumnFooters(bool shown);

    /// For a grid whose captions are rows among the others: gives the row with the captions of a row. They
    /// are copied with the cells where headings are asked for.
    void setCaptionRows(std::function<int(int row)> finder);

    /// Has a screen reader say by which column the rows are ordered, at once where the keyboard is in the
    /// rows. It orders nothing; column -1 for no such order, as at first.
    void setRowOrder(int column, Qt::SortOrder order);

    /// Puts "Save Table As..." (Ctrl+Shift+S) into the menu of the cells, which runs `save`. An empty one
    /// takes it out again; there is none at first.
    void setSaver(std::function<void()> save);

    /// 0 none, 2 shown while the mouse rests. What has no room in its cell or heading is told by a tip in any
    /// case.
    void setCellTips(int mode) { m_cellTips = mode; }
    /// Gives the tip of a place; `column` is -1 beside the columns. Where it is empty the grid's own tool tip
    /// shows, and without a value none at all.
    using CellTipFetcher = std::function<std::optional<QString>(GridArea area, int column)>;
    void setCellTipFetcher(CellTipFetcher fetcher) { m_fetchCellTip = std::move(fetcher); }

    /// On, a mouse drag from a cell makes its row the current one and starts a drag that carries the grid's
    /// object name; off (at first), it selects cells.
    void setCellDrag(bool on);

Q_SIGNALS:
    /// Also by Alt+Up and Alt+Down in the column with the focus, where headings or footers are shown.
    void HeadClick(int column);
    void FootClick(int column);
    /// The user has made the column wider or narrower.
    void ColResize(int column);
    /// On a row.
    void DblClick();
    void EnterPressed();
    /// A drag was let go over the grid.
    void Dropped(const QString &sourceName);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void layOut();
    void connectView();
    void applyColumns(int first, int last);
    void userResized(int column, int pixels);
    void showRecordset();
    void showArray();
    void showRows(bool sameRows, const std::function<void()> &show);
    void followRecordset();
    void moveRecordset(const QModelIndex &current);
    void selectRow(int row);
    bool showCellTip(QWidget &place, const QHelpEvent &event);
    std::optional<QString> fetchedTip(const QWidget &place, int x) const;
    QRect partAt(const QWidget &place, const QPoint &at) const;
    QString markedTip(const QWidget &place, const QPoint &at) const;
    QString wholeTextAt(const QWidget &place, const QPoint &at) const;
    void updateScrollBar();

    QLabel *m_caption;
    GridModel *m_model;
    GridView *m_view;
    GridDelegate *m_delegate;
    GridHeader *m_header;
    GridFooter *m_footer;
    QScrollBar *m_scrollBar;
    GridLook m_look;
    QPointer<DataControl> m_source;
    std::shared_ptr<XArrayDB> m_array;
    CellTipFetcher m_fetchCellTip;
    int m_cellTips = 0;
    bool m_fieldsHeld = false;
    int m_columnBefore = -1; // the one with the keyboard, for new rows in the same columns
    bool m_layingOut = false;
};
